#include "shell/viewport.hpp"

#include <algorithm>
#include <cmath>

#include "shell/form.hpp"

namespace tombolario {

namespace {

constexpr double kSmallestScale = 0.05;

}  // namespace

Viewport Viewport::fit(const Form& form, int width, int height) {
  const double roomWidth = form.Width / double{kTwipsPerPixel};
  const double roomHeight = form.Height / double{kTwipsPerPixel};
  const double scale = std::max(kSmallestScale, std::min(width / roomWidth, height / roomHeight));
  return {scale, static_cast<int>((width - roomWidth * scale) / 2),
          static_cast<int>((height - roomHeight * scale) / 2)};
}

Point Viewport::place(double x, double y) const {
  const auto twips = [this](double at, int margin) {
    return static_cast<int>(std::floor((at - margin) / scale * kTwipsPerPixel));
  };
  return {twips(x, marginX), twips(y, marginY)};
}

}  // namespace tombolario
