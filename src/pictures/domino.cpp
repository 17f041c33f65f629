#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/score_table.hpp"
#include "pieces/domino_set.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kTileSize{92, 52};
constexpr Rect kTile{0, 0, kTileSize.width, kTileSize.height};

/// By the numbers that they stand for.
constexpr Slots<const PictureStore*, 0, kNumbers - 1> kFlags = slots<0, const PictureStore*>(
    {&spagnadom, &brasiledom, &giapponedom, &usadom, &sveziadom, &portogallodom, &danimarcadom});

/// `tessera della Spagna e del Brasile`, as it lies.
std::string tileWords(int face) {
  const auto country = [](int number) { return PictureId(*kFlags[number]).words().substr(kFlagOf.size()); };
  const auto& [first, second] = kFaceNumbers[face];
  return "tessera " + country(first) + " e " + country(second);
}

/// White, a line down the middle, and the flags of both numbers.
void drawTile(Painter& painter, int face) {
  const auto& [first, second] = kFaceNumbers[face];
  painter.fillRect(kTile, kWhite);
  painter.bar({45, 0, 2, kTile.h}, kBlack);
  painter.picture(*kFlags[first], Vec{7, 13});
  painter.picture(*kFlags[second], Vec{53, 13});
}

void drawBlank(Painter& painter, int) {
  painter.fillRect(kTile, kWhite);
  painter.enter(kTile);
  painter.line({0, 0}, {kTile.w, kTile.h}, kBlack, 1);
  painter.line({0, kTile.h}, {kTile.w, 0}, kBlack, 1);
  painter.leave();
}

void drawScore(Painter& painter, int) {
  constexpr Inks kName{kBlack, kGreen};
  constexpr Inks kHeading{kYellow, kRed};
  scoreCorner(painter, "", {kBlack, kWhite});
  scoreNames(painter, kName, kName);
  scoreColumn(painter, 0, "PEDINE", kHeading, kWhite);
  scoreColumn(painter, 1, "SCORE", kHeading, kWhite);
}

}  // namespace

constinit const PictureStore dominob = pictureRow<kTileSize>("dominob", 0, kFaces, tileWords, drawTile);
constinit const PictureStore domin = pictureRow<kTileSize>(
    "domin", kFaces, 1, [](int) { return std::string("nessuna tessera"); }, drawBlank);
constinit const PictureStore tabdom = singlePicture<Size{229, kScoreHeight}>(
    "tabdom", [](int) { return std::string("tabella del punteggio"); }, drawScore);
constinit const PictureStore Commdomban =
    plateStore<"SCELTA COMPUTER", Size{124, 14}, kYellow, kRed, 9>("Commdomban");
constinit const PictureStore passadomban =
    plateStore<"PASSA", Size{43, 13}, kBlack, kYellow, 9, 41>("passadomban");

}  // namespace tombolario::pictures
