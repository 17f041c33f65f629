#include "pictures/score_table.hpp"

#include "pictures/lettering.hpp"

namespace tombolario::pictures {

namespace {

constexpr double kValuesWidth = 64;
// The lines are a pixel wide, and every cell shares them with its neighbours.
constexpr double kHead = 0;
constexpr double kComputer = 20;
constexpr double kHuman = 50;
constexpr double kHeadHeight = 21;
constexpr double kSideHeight = 31;

void cell(Painter& painter, const Rect& box, const char* text, Inks inks) {
  const Rect bounds{0, 0, box.w, box.h};
  painter.enterEdged(box);
  painter.fillRect(bounds, inks.ground);
  painter.outlineRect(bounds, kBlack, 1);
  fittedText(painter, bounds.inset(5), text, lettering(9), inks.text);
  painter.leave();
}

}  // namespace

void scoreCorner(Painter& painter, const char* text, Inks inks) {
  cell(painter, {0, kHead, kNamesWidth, kHeadHeight}, text, inks);
}

void scoreNames(Painter& painter, Inks computer, Inks human) {
  cell(painter, {0, kComputer, kNamesWidth, kSideHeight}, "COMPUTER", computer);
  cell(painter, {0, kHuman, kNamesWidth, kSideHeight}, "HUMAN", human);
}

void scoreColumn(Painter& painter, int column, const char* heading, Inks head, Rgb values) {
  const double left = kNamesWidth - 1 + column * kValuesWidth;
  const double width = kValuesWidth + 1;
  cell(painter, {left, kHead, width, kHeadHeight}, heading, head);
  cell(painter, {left, kComputer, width, kSideHeight}, "", {kBlack, values});
  cell(painter, {left, kHuman, width, kSideHeight}, "", {kBlack, values});
}

}  // namespace tombolario::pictures
