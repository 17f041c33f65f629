#pragma once

#include "toolkit/painter.hpp"

/// The score tables: 81 pixels high, a column of 101 pixels for the names of the sides, "COMPUTER" above
/// "HUMAN", then 64 for each column of values. The values are labels that lie on the table.
namespace tombolario::pictures {

inline constexpr int kNamesWidth = 101;
inline constexpr int kScoreHeight = 81;

struct Inks {
  Rgb text;
  Rgb ground;
};

/// The cell above the names.
void scoreCorner(Painter& painter, const char* text, Inks inks);
void scoreNames(Painter& painter, Inks computer, Inks human);
/// A column of values, counted from 0, under its heading.
void scoreColumn(Painter& painter, int column, const char* heading, Inks head, Rgb values);

}  // namespace tombolario::pictures
