#include <array>
#include <numbers>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/outline.hpp"
#include "pictures/score_table.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::pictures {

namespace {

using std::numbers::pi;

constexpr Size kBackSize{72, 94};

/// A figure in that colour or gradient, in the outline that all parts of a saucer have.
template <class Paint>
void drawPart(Painter& painter, const Outline& outline, const Paint& paint) {
  painter.fillPolygon(outline, paint);
  painter.outlinePolygon(outline, kBlack, 1.6);
}

/// A grey flying saucer with a dome, lights and three feet over a yellow ground.
void drawSaucer(Painter& painter, int) {
  constexpr Rgb kGrey = 0x808080;
  constexpr Rgb kBelly = 0x606060;
  constexpr std::array<Rgb, 3> kGlass{kWhite, 0xE0E0E0, 0x989898};
  constexpr std::array<Rgb, 3> kShell{0xE8E8E8, 0xB8B8B8, 0x707070};
  painter.fillRect({0, 0, kBackSize.width, kBackSize.height}, kYellow);
  for (const double side : {-1.0, 1.0}) {
    const auto at = [side](double x, double y) { return Vec{36 + side * x, y}; };
    drawPart(painter, Outline(at(8, 56)).lineTo(at(13, 56)).lineTo(at(20.5, 68)).lineTo(at(17, 68)), kGrey);
    drawPart(painter, Outline(at(14, 69)).arc(at(18.5, 69), {4.5, 3}, pi, 2 * pi), kGrey);
  }
  drawPart(painter, ellipse({36, 54.5}, {16, 7}), kBelly);
  drawPart(painter, ellipse({36, 49}, {28, 9}),
           Gradient{Gradient::Shape::Linear, {36, 40}, {36, 58}, kShell});
  drawPart(painter, Outline({23, 43}).arc({36, 41}, {13, 15}, pi, 2 * pi).arc({36, 43}, {13, 4}, 0, pi),
           Gradient{Gradient::Shape::Radial, {31, 33}, {47, 45}, kGlass});
  for (const Vec& light : {Vec{16, 50.5}, Vec{36, 53.5}, Vec{56, 50.5}}) {
    drawPart(painter, ellipse(light, {3, 2.2}), kYellow);
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

std::string combinationWords(int) {
  std::string words;
  for (const auto& [name, points] : kCombinations) {
    if (points != 0) words += std::string(words.empty() ? "" : ", ") + name + ' ' + std::to_string(points);
  }
  return words;
}

void drawScore(Painter& painter, int) {
  scoreCorner(painter, "", {kBlack, kWhite});
  scoreNames(painter, {kWhite, kRed}, {kWhite, kRed});
  scoreColumn(painter, 0, "SCORE", {kBlack, 0xFFFFBF}, kWhite);
}

}  // namespace

constinit const PictureStore ufo = singlePicture<kBackSize>(
    "ufo", [](int) { return std::string("carta coperta"); }, drawSaucer);
constinit const PictureStore Pictcompok =
    singlePicture<kCombinationsSize>("Pictcompok", combinationWords, drawCombinations);
constinit const PictureStore Picture5 = singlePicture<Size{165, kScoreHeight}>(
    "Picture5", [](int) { return std::string("tabella del punteggio"); }, drawScore);

}  // namespace tombolario::pictures
