#pragma once

#include "toolkit/colour.hpp"

namespace tombolario {

/// Between two colours, each channel by itself: 0 is the first, 1 the second.
Rgb mixed(Rgb from, Rgb to, double share);

/// How far apart two colours are in lightness: from 1, which is not at all, to 21, black and white. Large
/// text can be read from 3 on.
double contrast(Rgb one, Rgb other);

/// An ink for what is out of use: the ink, nearer to the ground, as long as it can be read there. An ink that
/// is too faint for that moves the other way, to black or white.
Rgb quiet(Rgb ink, Rgb ground);

}  // namespace tombolario
