#include "pictures/score_table.hpp"

#include "pictures/lettering.hpp"

namespace tombolario::pictures {

namespace {

constexpr double kNameColumn = 101;
constexpr double kValueColumn = 64;
constexpr double kHeadRow = 21;
constexpr double kSideRow = 30;

/// A cell with an edge all around, which it shares with the cells beside and below it.
void cell(Painter& painter, const Rect& box, const char* text, Rgb ink, Rgb ground) {
  painter.fillRect(box, ground);
  painter.outlineRect(box, kBlack, 1);
  fittedText(painter, box.inset(5), text, lettering(9), ink);
}

}  // namespace

void scoreTable(Painter& painter, std::initializer_list<const char*> headings) {
  const double computer = kHeadRow - 1;
  const double human = computer + kSideRow;
  cell(painter, {0, 0, kNameColumn, kHeadRow}, "", kWhite, kWhite);
  cell(painter, {0, computer, kNameColumn, kSideRow + 1}, "COMPUTER", kBlack, kGreen);
  cell(painter, {0, human, kNameColumn, kSideRow + 1}, "HUMAN", kBlack, kGreen);
  double left = kNameColumn - 1;
  for (const char* heading : headings) {
    const double width = kValueColumn + 1;
    cell(painter, {left, 0, width, kHeadRow}, heading, kYellow, kRed);
    cell(painter, {left, computer, width, kSideRow + 1}, "", kWhite, kWhite);
    cell(painter, {left, human, width, kSideRow + 1}, "", kWhite, kWhite);
    left += kValueColumn;
  }
}

}  // namespace tombolario::pictures
