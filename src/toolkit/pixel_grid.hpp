#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "toolkit/geometry.hpp"

namespace tombolario {

/// How many device pixels a length in pixels takes at that scale: at least one.
inline int devicePixels(double length, double scale) {
  return std::max(1, static_cast<int>(std::lround(length * scale)));
}

/// Where the coordinates of a painter lie on its device. Upright edges and the places that are entered lie
/// on whole device pixels, so that flat things stay sharp and look alike wherever they are drawn.
class PixelGrid {
 public:
  /// A rectangle in whole device pixels.
  struct Area {
    double left, top, right, bottom;
    double width() const { return right - left; }
    double height() const { return bottom - top; }
  };

  explicit PixelGrid(double scale) : places_{{{0, 0}, scale}} {}

  /// Device pixels to a pixel, at the present place.
  double scale() const { return places_.back().scale; }

  Vec device(Vec point) const {
    const auto& [origin, scale] = places_.back();
    return {origin.x + point.x * scale, origin.y + point.y * scale};
  }

  /// The whole device pixel that a point lies on.
  Vec wholeDevice(Vec point) const {
    const Vec at = device(point);
    return {std::round(at.x), std::round(at.y)};
  }

  Area area(const Rect& rect) const {
    const Vec from = wholeDevice({rect.x, rect.y});
    const Vec to = wholeDevice({rect.x + rect.w, rect.y + rect.h});
    Area area{from.x, from.y, to.x, to.y};
    // Nothing that has a size vanishes at a small scale.
    if (rect.w > 0) area.right = std::max(area.right, area.left + 1);
    if (rect.h > 0) area.bottom = std::max(area.bottom, area.top + 1);
    return area;
  }

  /// The four bars of a frame of that line width inside the rectangle; never thinner than one device pixel.
  std::array<Area, 4> frame(const Rect& rect, double width) const {
    const Area a = area(rect);
    const double w = std::max(1.0, std::round(width * scale()));
    return {{{a.left, a.top, a.right, a.top + w},
             {a.left, a.bottom - w, a.right, a.bottom},
             {a.left, a.top + w, a.left + w, a.bottom - w},
             {a.right - w, a.top + w, a.right, a.bottom - w}}};
  }

  /// Moves the origin to the corner of the rectangle and multiplies the scale, until the matching leave.
  /// The answer is what is to be clipped to.
  Area enter(const Rect& rect, double zoom) {
    const Area a = area(rect);
    places_.push_back({{a.left, a.top}, scale() * zoom});
    return a;
  }
  void leave() { places_.pop_back(); }

 private:
  struct Place {
    Vec origin;
    double scale;
  };
  std::vector<Place> places_;
};

}  // namespace tombolario
