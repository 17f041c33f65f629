#include "toolkit/contrast.hpp"

#include <algorithm>
#include <cmath>

namespace tombolario {

namespace {

/// More than large text needs, since thin strokes lose some of it to their edges.
constexpr double kQuietContrast = 4;
constexpr int kSteps = 32;

/// The light that a colour sends, by what the eye makes of it: 0 is black, 1 white.
double luminance(Rgb colour) {
  const auto channel = [colour](unsigned shift) {
    const double level = (colour >> shift & 0xFF) / 255.0;
    return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(16) + 0.7152 * channel(8) + 0.0722 * channel(0);
}

}  // namespace

Rgb mixed(Rgb from, Rgb to, double share) {
  Rgb colour = 0;
  for (const unsigned shift : {16U, 8U, 0U}) {
    const double a = from >> shift & 0xFF;
    const double b = to >> shift & 0xFF;
    colour |= static_cast<Rgb>(std::lround(a + (b - a) * share)) << shift;
  }
  return colour;
}

double contrast(Rgb one, Rgb other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

Rgb quiet(Rgb ink, Rgb ground) {
  const bool loud = contrast(ink, ground) > kQuietContrast;
  const Rgb outermost = contrast(kBlack, ground) > contrast(kWhite, ground) ? kBlack : kWhite;
  // A loud ink moves to the ground as long as it can be read, a faint one away from it until it can.
  Rgb found = ink;
  for (int step = 0; step <= kSteps; ++step) {
    const Rgb next = mixed(ink, loud ? ground : outermost, 1.0 * step / kSteps);
    const bool legible = contrast(next, ground) >= kQuietContrast;
    if (loud && !legible) break;
    found = next;
    if (!loud && legible) break;
  }
  return found;
}

}  // namespace tombolario
