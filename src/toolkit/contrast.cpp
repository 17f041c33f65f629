#include "toolkit/contrast.hpp"

#include <algorithm>
#include <cmath>

namespace tombolario {

namespace {

/// What is quiet is at least as far from its ground as large text must be, and a little more, since thin
/// strokes lose some of it to their edges; at most so far that nobody takes it for what can be pressed.
constexpr double kLeast = 3.2;
constexpr double kMost = 3.8;
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
  const double loudness = contrast(ink, ground);
  // A loud ink moves to the ground as long as it can be read, a faint one away from it until it can.
  const bool loud = loudness >= kLeast;
  const double wanted = loud ? std::clamp(0.85 * loudness, kLeast, kMost) : kMost;
  const Rgb outermost = contrast(kBlack, ground) > contrast(kWhite, ground) ? kBlack : kWhite;
  Rgb found = ink;
  for (int step = 1; step <= kSteps; ++step) {
    const Rgb next = mixed(ink, loud ? ground : outermost, 1.0 * step / kSteps);
    const bool legible = contrast(next, ground) >= wanted;
    if (loud && !legible) break;
    found = next;
    if (!loud && legible) break;
  }
  return found;
}

}  // namespace tombolario
