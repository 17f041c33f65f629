#include "toolkit/view.hpp"

#include <algorithm>
#include <cmath>

namespace tombolario {

namespace {

constexpr double kSmallestScale = 0.05;

}  // namespace

void View::fit(int width, int height) {
  const double roomWidth = form_.Width / double{kTwipsPerPixel};
  const double roomHeight = form_.Height / double{kTwipsPerPixel};
  scale_ = std::max(kSmallestScale, std::min(width / roomWidth, height / roomHeight));
  marginX_ = static_cast<int>((width - roomWidth * scale_) / 2);
  marginY_ = static_cast<int>((height - roomHeight * scale_) / 2);
  hasMargins_ = std::lround(roomWidth * scale_) < width || std::lround(roomHeight * scale_) < height;
}

void View::mouseAt(double x, double y) {
  const auto twips = [this](double at, int margin) {
    return static_cast<int>(std::floor((at - margin) / scale_ * kTwipsPerPixel));
  };
  const Point place{twips(x, marginX_), twips(y, marginY_)};
  if (place == mouse_) return;
  mouse_ = place;
  form_.mouseMove(place);
}

}  // namespace tombolario
