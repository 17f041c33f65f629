#include <array>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/score_table.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kBackSize{72, 94};

/// A grey flying saucer with a dome and three lights, tilted on its way over a yellow ground.
void drawSaucer(Painter& painter, int) {
  painter.fillRect({0, 0, kBackSize.width, kBackSize.height}, kYellow);
  painter.fillEllipse({22, 26, 28, 30}, kBlack);
  painter.fillEllipse({23.5, 27.5, 25, 27}, 0xE0E0E0);
  painter.fillEllipse({28, 31, 8, 9}, kWhite);
  painter.fillPolygon(std::array<Vec, 4>{Vec{20, 58}, Vec{24, 57}, Vec{18, 72}, Vec{14, 72}}, 0x808080);
  painter.fillPolygon(std::array<Vec, 4>{Vec{48, 57}, Vec{52, 58}, Vec{58, 72}, Vec{54, 72}}, 0x808080);
  painter.fillEllipse({4, 40, 64, 24}, kBlack);
  painter.fillEllipse({5.5, 41.5, 61, 21}, 0x808080);
  painter.fillEllipse({7, 41.5, 58, 16}, 0xB8B8B8);
  painter.fillEllipse({21, 43, 30, 8}, 0x606060);
  painter.fillEllipse({23.5, 40, 25, 9}, 0xE0E0E0);
  for (const double x : {13.0, 32.5, 52.0}) {
    painter.fillEllipse({x, 52.5, 7, 5}, 0x404040);
  }
}

constexpr Size kCombinationsSize{150, 137};

void drawCombinations(Painter& painter, int) {
  painter.fillRect({0, 0, kCombinationsSize.width, kCombinationsSize.height}, kBlue);
  Rect row{10, 4.5, kCombinationsSize.width - 20, 16};
  for (const auto& [name, points] : kCombinations) {
    if (points == 0) continue;
    painter.text(row, name, lettering(9.5), kWhite, Align::Left);
    painter.text(row, std::to_string(points), lettering(9.5), kWhite, Align::Right);
    row.y += 16;
  }
}

void drawScore(Painter& painter, int) {
  scoreCorner(painter, "", {kBlack, kWhite});
  scoreNames(painter, {kWhite, kRed}, {kWhite, kRed});
  scoreColumn(painter, 0, "SCORE", {kBlack, 0xFFFFBF}, kWhite);
}

}  // namespace

constinit const PictureStore ufo = singlePicture<kBackSize>("ufo", drawSaucer);
constinit const PictureStore Pictcompok = singlePicture<kCombinationsSize>("Pictcompok", drawCombinations);
constinit const PictureStore Picture5 = singlePicture<Size{165, kScoreHeight}>("Picture5", drawScore);

}  // namespace tombolario::pictures
