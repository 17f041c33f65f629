#include "pieces/chain_set.hpp"

#include <array>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kTileSize{91, 45};

struct Numeral {
  Rgb colour;
  const char* word;
};
constexpr Slots<Numeral, 0, 3> kNumerals =
    slots<0, Numeral>({{kRed, "uno"}, {0x800000, "due"}, {kBlue, "tre"}, {0x008000, "quattro"}});

std::string tileWords(int tile) {
  const auto& [first, second] = kChainSet[tile];
  return std::string("tessera ") + kNumerals[first].word + '-' + kNumerals[second].word;
}

/// A value is shown as a numeral, from 1, in a colour of its own.
void drawTile(Painter& painter, int tile) {
  const Rect all{0, 0, kTileSize.width, kTileSize.height};
  painter.fillRect(all, kWhite);
  painter.outlineRect(all, kBlack, 2);
  painter.bar({44.5, 0, 2, all.h}, kBlack);
  const auto numeral = [&](double left, int value) {
    painter.text({left, 0, 44.5, all.h}, std::to_string(value + 1), lettering(20), kNumerals[value].colour,
                 Align::Centre);
  };
  numeral(0.5, kChainSet[tile].first);
  numeral(46.5, kChainSet[tile].second);
}

constexpr Size kPatternSize{92, 52};

/// Green and blue lozenges, where there is no tile yet.
void drawPattern(Painter& painter, int) {
  painter.fillRect({0, 0, kPatternSize.width, kPatternSize.height}, kBlue);
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      const double x = 23.0 * column;
      const double y = 13.0 * row;
      painter.fillPolygon(
          std::array<Vec, 4>{Vec{x + 11.5, y}, Vec{x + 23, y + 6.5}, Vec{x + 11.5, y + 13}, Vec{x, y + 6.5}},
          kGreen);
    }
  }
}

}  // namespace

constinit const PictureStore Picture2 =
    pictureRow<kTileSize>("Picture2", 0, kChainTiles, tileWords, drawTile);
constinit const PictureStore pictca = pictureRow<kPatternSize>(
    "pictca", 0, 9, [](int) { return std::string("nessuna tessera"); }, drawPattern);
constinit const PictureStore INICAT = plateStore<"NUOVA PARTITA", Size{240, 24}, kWhite, kRed>("INICAT");
constinit const PictureStore CoNTCAT = plateStore<"CONTINUA", Size{156, 22}, kWhite, kRed>("CoNTCAT");
constinit const PictureStore CARCAT = plateStore<"CARICA", Size{113, 24}, kWhite, kRed>("CARCAT");
constinit const PictureStore SALVACAT = plateStore<"SALVA", Size{99, 21}, kWhite, kRed>("SALVACAT");
constinit const PictureStore FINECA = plateStore<"FINE", Size{38, 14}, kWhite, kRed>("FINECA");
constinit const PictureStore SC1 = plateStore<"SCAMBIA", Size{88, 16}, kYellow, 0xC0C0C0>("SC1");
constinit const PictureStore SC2 = plateStore<"SCAMBIA", Size{88, 16}, kYellow, kRed>("SC2");

}  // namespace tombolario::pictures
