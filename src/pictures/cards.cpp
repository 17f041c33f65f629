#include "pieces/cards.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/outline.hpp"
#include "toolkit/contrast.hpp"

namespace tombolario::pictures {

namespace {

using std::numbers::pi;

/// The colour of a suit and its name, for a card and for a queen, who is a lady.
struct Suit {
  Rgb colour;
  const char* name;
  const char* ofQueen = name;
};
using Suits = Slots<Suit, 0, kSuits - 1>;

/// `asso rosso`, `donna rossa`, `7 verde`.
std::string cardWords(int card, const Suits& suits) {
  const std::string value = kValueNames[cardValue(card)];
  const Suit& suit = suits[card / kValues];
  if (value == "A") return std::string("asso ") + suit.name;
  if (value == "J") return std::string("fante ") + suit.name;
  if (value == "Q") return std::string("donna ") + suit.ofQueen;
  if (value == "K") return std::string("re ") + suit.name;
  return value + ' ' + suit.name;
}

/// A flat card in the colour of its suit, its value large in the middle.
void drawCard(Painter& painter, int card, Size size, const Suits& suits, Rgb ink) {
  const Rect all{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  painter.fillRect(all, suits[card / kValues].colour);
  fittedText(painter, all.inset(size.width * 0.08), kValueNames[card % kValues],
             lettering(size.height * 0.36), ink);
}

constexpr Size kVideoPokerCard{70, 92};
constexpr Size kJokerCard{70, 93};
constexpr Suits kVideoPokerSuits = slots<0, Suit>({{kRed, "rosso", "rossa"},
                                                   {kYellow, "giallo", "gialla"},
                                                   {0x00E8E8, "azzurro", "azzurra"},
                                                   {kGreen, "verde"}});

constexpr Size kPokerCard{70, 92};
constexpr Suits kPokerSuits =
    slots<0, Suit>({{0xFF00FF, "fucsia"}, {0xFF8040, "arancione"}, {0xFFFFB3, "crema"}, {kBlue, "blu"}});

constexpr Size kRaminoCard{40, 59};
constexpr Suits kRaminoSuits =
    slots<0, Suit>({{0x008000, "verde"}, {0xF0BC09, "oro"}, {0xFF0080, "rosa"}, {0x800000, "bordeaux"}});

/// One of the gores of a ball whose pole leans upwards, away from who looks: between two meridians, from the
/// pole to where they go round to the far side.
Outline gore(Vec centre, double radius, double from, double to) {
  constexpr double kLean = 0.6;
  constexpr int kSteps = 32;
  const auto at = [&](double meridian, double shareOfSeen) {
    const double seen = std::atan2(std::cos(kLean), std::cos(meridian) * std::sin(kLean));
    const double angle = seen * shareOfSeen;
    const double up =
        std::cos(angle) * std::sin(kLean) + std::sin(angle) * std::cos(meridian) * std::cos(kLean);
    return Vec{centre.x + radius * std::sin(angle) * std::sin(meridian), centre.y - radius * up};
  };
  Outline outline(at(from, 0));
  for (int step = 1; step <= kSteps; ++step) outline.lineTo(at(from, 1.0 * step / kSteps));
  for (int step = 1; step <= kSteps; ++step) outline.lineTo(at(from + (to - from) * step / kSteps, 1));
  for (int step = kSteps; step > 0; --step) outline.lineTo(at(to, 1.0 * step / kSteps));
  return outline;
}

/// A ball of many colours in a light from the upper left.
void drawBall(Painter& painter, Vec centre, double radius) {
  constexpr std::array<Rgb, 8> kGores{kBlue, 0x00E8E8, kGreen, kYellow, 0xFF8040, kRed, 0xFF00FF, 0x8000FF};
  constexpr double kWidth = 2 * pi / kGores.size();
  constexpr double kTurn = 0.5;
  const Vec light{centre.x - radius * 0.4, centre.y - radius * 0.4};
  const Vec shade{centre.x + radius * 0.75, centre.y + radius * 0.75};
  double from = 0;
  for (const Rgb colour : kGores) {
    const double to = from + kWidth;
    // A little under the next one, or the ground would shine through between them.
    painter.fillPolygon(
        gore(centre, radius, from, to + 0.02).turned(centre, kTurn),
        {Gradient::Shape::Radial, light, shade,
         std::array{mixed(colour, kWhite, 0.25), colour, colour, mixed(colour, kBlack, 0.5)}});
    from = to;
  }
  painter.outlinePolygon(circle(centre, radius), kBlack, 1.5);
  painter.fillPolygon(
      ellipse({centre.x - radius * 0.66, centre.y}, {radius * 0.09, radius * 0.2}).turned(centre, 0.25 * pi),
      kWhite);
}

void drawJoker(Painter& painter) {
  const Rect all{0, 0, kJokerCard.width, kJokerCard.height};
  painter.fillRect(all, kWhite);
  painter.outlineRect(all, 0xFF8040, 5);
  fittedText(painter, {9, 11, 52, 20}, "Joker", lettering(12), kBlack);
  drawBall(painter, {35, 58.5}, 21.5);
}

std::string videoPokerCardWords(int card) {
  return card == kJoker ? "jolly" : cardWords(card, kVideoPokerSuits);
}

void drawVideoPokerCard(Painter& painter, int card) {
  if (card == kJoker) return drawJoker(painter);
  drawCard(painter, card, kVideoPokerCard, kVideoPokerSuits, kBlack);
}

void drawPokerCard(Painter& painter, int card) { drawCard(painter, card, kPokerCard, kPokerSuits, kBlack); }

void drawRaminoCard(Painter& painter, int card) {
  drawCard(painter, card, kRaminoCard, kRaminoSuits, kWhite);
}

}  // namespace

constinit const PictureStore Picture1{
    "Picture1",          0,
    kPack + 1,           true,
    videoPokerCardWords, [](int card) { return card == kJoker ? kJokerCard : kVideoPokerCard; },
    drawVideoPokerCard};
constinit const PictureStore Picture11 = pictureRow<kPokerCard>(
    "Picture11", 0, kPack, [](int card) { return cardWords(card, kPokerSuits); }, drawPokerCard);
constinit const PictureStore ramcar = pictureRow<kRaminoCard>(
    "ramcar", 0, kPack, [](int card) { return cardWords(card, kRaminoSuits); }, drawRaminoCard);

}  // namespace tombolario::pictures
