#include "pieces/cards.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"

namespace tombolario::pictures {

namespace {

/// The colours of a pack.
using Suits = Slots<Rgb, 0, kSuits - 1>;

/// A flat card in the colour of its suit, its value large in the middle.
void drawCard(Painter& painter, int card, Size size, const Suits& suits, Rgb ink) {
  const Rect all{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  painter.fillRect(all, suits[card / kValues]);
  fittedText(painter, all.inset(size.width * 0.08), kValueNames[card % kValues],
             lettering(size.height * 0.36), ink);
}

constexpr Size kVideoPokerCard{70, 92};
constexpr Size kJokerCard{70, 93};
constexpr Suits kVideoPokerSuits = slots<0, Rgb>({kRed, kYellow, 0x00E8E8, kGreen});

constexpr Size kPokerCard{70, 92};
constexpr Suits kPokerSuits = slots<0, Rgb>({0xFF00FF, 0xFF8040, 0xFFFFB3, kBlue});

constexpr Size kRaminoCard{40, 59};
constexpr Suits kRaminoSuits = slots<0, Rgb>({0x008000, 0xF0BC09, 0xFF0080, 0x800000});

/// A ball of many gores that meet a little above its middle, with a light on it.
void drawBall(Painter& painter, Vec centre, double radius) {
  constexpr auto kGores =
      std::to_array<Rgb>({kRed, 0xFF8040, kYellow, kGreen, 0x00E8E8, kBlue, 0x8000FF, 0xFF00FF});
  constexpr int kSteps = 6;
  const double outline = radius + 1;
  painter.fillEllipse({centre.x - outline, centre.y - outline, 2 * outline, 2 * outline}, kBlack);
  const Vec pole{centre.x - radius * 0.2, centre.y - radius * 0.25};
  for (std::size_t gore = 0; gore < kGores.size(); ++gore) {
    std::array<Vec, kSteps + 2> points{pole};
    for (int step = 0; step <= kSteps; ++step) {
      const double turn = (static_cast<double>(gore) + step * 1.0 / kSteps) / kGores.size();
      const double angle = 2 * std::numbers::pi * turn;
      points.at(static_cast<std::size_t>(step) + 1) = {centre.x + radius * std::cos(angle),
                                                       centre.y + radius * std::sin(angle)};
    }
    painter.fillPolygon(points, kGores.at(gore));
  }
  const double light = radius * 0.24;
  painter.fillEllipse({pole.x - light, pole.y - light, 2 * light, 2 * light}, kWhite);
}

void drawJoker(Painter& painter) {
  const Rect all{0, 0, kJokerCard.width, kJokerCard.height};
  painter.fillRect(all, kWhite);
  painter.outlineRect(all, 0xFF8040, 5);
  fittedText(painter, {9, 11, 52, 20}, "Joker", lettering(12), kBlack);
  drawBall(painter, {35, 58}, 21);
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

constinit const PictureStore Picture1{"Picture1",
                                      0,
                                      kPack + 1,
                                      true,
                                      [](int card) { return card == kJoker ? kJokerCard : kVideoPokerCard; },
                                      drawVideoPokerCard};
constinit const PictureStore Picture11 = pictureRow<kPokerCard>("Picture11", 0, kPack, drawPokerCard);
constinit const PictureStore ramcar = pictureRow<kRaminoCard>("ramcar", 0, kPack, drawRaminoCard);

}  // namespace tombolario::pictures
