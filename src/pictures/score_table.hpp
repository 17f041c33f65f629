#pragma once

#include <initializer_list>

#include "shell/painter.hpp"

namespace tombolario::pictures {

/// Where the columns and rows of every score table part, in pixels. The left column names the sides, the
/// rows below the heading are the computer's and the player's.
inline constexpr double kNameColumn = 101;
inline constexpr double kHeadRow = 21;
inline constexpr double kSideRow = 30;

/// The table of two sides with a column of 64 pixels for each heading; the values and the corner are left
/// to labels that lie on it.
void scoreTable(Painter& painter, std::initializer_list<const char*> headings);

}  // namespace tombolario::pictures
