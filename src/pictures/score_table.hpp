#pragma once

#include <initializer_list>

#include "shell/painter.hpp"

namespace tombolario::pictures {

/// A table of two sides, 81 pixels high: 101 pixels for their names, "COMPUTER" above "HUMAN", and 64 for a
/// column under each heading. The values and the corner are left to labels that lie on it.
void scoreTable(Painter& painter, std::initializer_list<const char*> headings);

}  // namespace tombolario::pictures
