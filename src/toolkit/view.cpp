#include "toolkit/view.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

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
  size_ = {width, height};
  cursor_.reset();
  form_.redraw();
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

std::optional<PictureId> View::newCursor() {
  const std::optional<PictureId> wanted = form_.cursor();
  return std::exchange(cursor_, wanted) == wanted ? std::nullopt : wanted;
}

void View::paint(Canvas& canvas) {
  const double x = marginX_;
  const double y = marginY_;
  canvas.startAt({x, y});
  if (hasMargins_) {
    canvas.fillRect({-x, -y, double(size_.width), double(size_.height)},
                    form_.inSight().BackColor.get().rgb());
  }
  Painter painter(canvas, scale_, pictures_);
  form_.repaint(painter);
}

void View::forget() {
  pictures_ = {};
  form_.redraw();
}

}  // namespace tombolario
