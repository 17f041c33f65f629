#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/score_table.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kCardSize{40, 59};
constexpr Size kScoreSize{165, kScoreHeight};
constexpr Size kNamesSize{kNamesWidth, kScoreHeight};
constexpr Rgb kMagenta = 0xFF00FF;
constexpr Rgb kGrey = 0xC0C0C0;

/// The back of a card: thin bands, edged.
void drawBack(Painter& painter, int) {
  constexpr std::array kBands{kYellow, kCyan, kBlue};
  painter.enter({0, 0, kCardSize.width, kCardSize.height});
  for (std::size_t band = 0; 2 * static_cast<int>(band) < kCardSize.height; ++band) {
    painter.fillRect({0, 2.0 * static_cast<double>(band), kCardSize.width, 2},
                     kBands.at(band % kBands.size()));
  }
  painter.leave();
  painter.outlineRect({0, 0, kCardSize.width, kCardSize.height}, kBlack, 1);
}

/// An arrow with a shaft, from its tail to its tip, along one of the axes.
void drawArrow(Painter& painter, Vec tail, Vec tip, double width, Rgb ink) {
  const double length = std::abs(tip.x - tail.x) + std::abs(tip.y - tail.y);
  const Vec along{(tip.x - tail.x) / length, (tip.y - tail.y) / length};
  const Vec across{-along.y, along.x};
  const Vec neck{tip.x - along.x * width * 0.75, tip.y - along.y * width * 0.75};
  const auto at = [&](Vec from, double aside) {
    return Vec{from.x + across.x * aside, from.y + across.y * aside};
  };
  painter.fillPolygon(std::array<Vec, 7>{at(tail, width / 6), at(neck, width / 6), at(neck, width / 2), tip,
                                         at(neck, -width / 2), at(neck, -width / 6), at(tail, -width / 6)},
                      ink);
}

constexpr Size kExchangeSize{37, 15};
void drawExchange(Painter& painter, int) {
  painter.fillRect({0, 0, kExchangeSize.width, kExchangeSize.height}, kBlue);
  drawArrow(painter, {13.5, 13.5}, {13.5, 1.5}, 9, kWhite);
  drawArrow(painter, {23.5, 1.5}, {23.5, 13.5}, 9, kWhite);
}

constexpr Size kSwapSize{46, 29};
void drawSwap(Painter& painter, int) {
  painter.fillRect({0, 0, kSwapSize.width, kSwapSize.height}, kYellow);
  drawArrow(painter, {40, 8.5}, {6, 8.5}, 11, kBlack);
  drawArrow(painter, {6, 20.5}, {40, 20.5}, 11, kBlack);
}

/// A band of small squares above the names, as far from the lines on all sides.
void drawScore(Painter& painter, int) {
  scoreCorner(painter, "", {kBlack, kYellow});
  scoreNames(painter, {kWhite, kRed}, {kWhite, kRed});
  scoreColumn(painter, 0, "PUNTI", {kBlack, 0xFFFFBF}, 0x0080FF);
  constexpr int kSquare = 5;
  constexpr int kRows = 3;
  constexpr int kColumns = 19;
  for (int row = 0; row < kRows; ++row) {
    for (int column = row % 2; column < kColumns; column += 2) {
      painter.fillRect({3.0 + column * kSquare, 3.0 + row * kSquare, kSquare, kSquare}, kGreen);
    }
  }
}

/// The names of the sides at the end of a hand, to lie over those of the table.
template <Inks kComputer, Inks kHuman, FixedText kWords>
constexpr PictureStore endStore(std::string_view name) {
  return singlePicture<kNamesSize>(
      name, [](int) { return std::string(kWords.text); },
      [](Painter& painter, int) {
        scoreCorner(painter, "FINE", {kYellow, kMagenta});
        scoreNames(painter, kComputer, kHuman);
      });
}
constexpr Inks kLit{kBlue, kYellow};
constexpr Inks kPlain{kWhite, kRed};
constexpr Inks kEven{0xFF8040, kGrey};

}  // namespace

constinit const PictureStore PicRAM3 = singlePicture<kCardSize>(
    "PicRAM3", [](int) { return std::string("carta coperta"); }, drawBack);
constinit const PictureStore rampul1 =
    plateStore<"Segna", Size{37, 13}, kWhite, kRed, kSmallCapHeight>("rampul1");
constinit const PictureStore rampul2 = singlePicture<kExchangeSize>(
    "rampul2", [](int) { return std::string("scambia con la carta presa"); }, drawExchange);
constinit const PictureStore ramlas =
    plateStore<"lascia", Size{46, 15}, kWhite, kBlue, kSmallCapHeight>("ramlas");
constinit const PictureStore scambiaram = singlePicture<kSwapSize>(
    "scambiaram", [](int) { return std::string("scambia le due carte scelte"); }, drawSwap);
constinit const PictureStore RAMRESULT = singlePicture<kScoreSize>(
    "RAMRESULT", [](int) { return std::string("tabella del punteggio"); }, drawScore);
constinit const PictureStore rampar = endStore<kEven, kEven, "FINE, pari">("rampar");
constinit const PictureStore ramvin = endStore<kPlain, kLit, "FINE, vince HUMAN">("ramvin");
constinit const PictureStore ramper = endStore<kLit, kPlain, "FINE, vince COMPUTER">("ramper");

}  // namespace tombolario::pictures
