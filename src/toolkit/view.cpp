#include "toolkit/view.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tombolario {

namespace {

constexpr double kSmallestScale = 0.05;
constexpr double kLargest = 4;  // times the scale that fits

}  // namespace

void View::fit(int width, int height, int below) {
  const double roomWidth = form_.Width / double{kTwipsPerPixel};
  const double roomHeight = form_.Height / double{kTwipsPerPixel};
  scale_ = fitting_ = std::max(kSmallestScale, std::min(width / roomWidth, (height - below) / roomHeight));
  size_ = {width, height};
  below_ = below;
  place(0, 0);
}

void View::enlarge(double times, Vec from, Vec to) {
  const double scale = std::clamp(scale_ * times, fitting_, fitting_ * kLargest);
  const double grown = scale / scale_;
  scale_ = scale;
  place(to.x - (from.x - marginX_) * grown, to.y - (from.y - marginY_) * grown);
}

/// The room is in the middle where it is smaller than the window, and leaves no margin where it is larger.
void View::place(double left, double top) {
  const auto margin = [](double wanted, int window, int free, double room) {
    return static_cast<int>(room <= free ? (free - room) / 2
                                         : std::clamp(wanted, std::min(0.0, window - room), 0.0));
  };
  const double width = form_.Width / double{kTwipsPerPixel} * scale_;
  const double height = form_.Height / double{kTwipsPerPixel} * scale_;
  marginX_ = margin(left, size_.width, size_.width, width);
  marginY_ = margin(top, size_.height, size_.height - below_, height);
  hasMargins_ = std::lround(width) < size_.width || std::lround(height) < size_.height;
  cursor_.reset();
  form_.redraw();
}

Point View::placeInRoom(double x, double y) const {
  const auto twips = [this](double at, int margin) {
    return static_cast<int>(std::floor((at - margin) / scale_ * kTwipsPerPixel));
  };
  return {twips(x, marginX_), twips(y, marginY_)};
}

void View::mouseAt(double x, double y) {
  const Point place = placeInRoom(x, y);
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
