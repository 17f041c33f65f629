#include <array>
#include <cstddef>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/outline.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kGameSize{166, 18};
constexpr std::array kGames{"POKER", "VIDEOPOKER", "DOMINO", "DOMINO/POKER", "RAMINO", "MAHJONGG"};

std::string gameWords(int index) { return kGames.at(static_cast<std::size_t>(index - 1)); }

/// The number of the game at the left, then its name, white on red.
void drawGame(Painter& painter, int index) {
  painter.fillRect({0, 0, kGameSize.width, kGameSize.height}, kRed);
  const Font font = lettering(11);
  painter.text({12, 0, 20, kGameSize.height}, std::to_string(index), font, kWhite, Align::Left);
  fittedText(painter, {40, 0, kGameSize.width - 46, kGameSize.height},
             kGames.at(static_cast<std::size_t>(index - 1)), font, kWhite, Align::Left);
}

/// A red diamond on white, in a black border: taller than wide, its sides drawn in a little.
void drawDiamond(Painter& painter, int) {
  painter.fillRect({0, 0, 100, 100}, kWhite);
  painter.outlineRect({0, 0, 100, 100}, kBlack, 3);
  painter.fillPolygon(Outline({50, 9})
                          .curveTo({59, 24.5}, {70, 37.5}, {83, 50})
                          .curveTo({70, 62.5}, {59, 75.5}, {50, 91})
                          .mirrored(50),
                      kRed);
}

constexpr Size kOrnamentSize{100, 100};

}  // namespace

constinit const PictureStore commpr = pictureRow<kGameSize>("commpr", 1, kGames.size(), gameWords, drawGame);
constinit const PictureStore Picture3 = singlePicture<kOrnamentSize>("Picture3", ornament, drawDiamond);
constinit const PictureStore Picture4 = singlePicture<kOrnamentSize>("Picture4", ornament, drawDiamond);

}  // namespace tombolario::pictures
