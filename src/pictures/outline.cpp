#include "pictures/outline.hpp"

#include <cmath>
#include <numbers>

namespace tombolario::pictures {

namespace {

using std::numbers::pi;

/// A curve of the largest picture is then within a tenth of a device pixel at four times its size.
constexpr int kSteps = 64;

}  // namespace

Outline& Outline::lineTo(Vec end) {
  points_.push_back(end);
  return *this;
}

Outline& Outline::curveTo(Vec first, Vec second, Vec end) {
  const Vec start = points_.back();
  for (int step = 1; step <= kSteps; ++step) {
    const double t = 1.0 * step / kSteps;
    const double u = 1 - t;
    const auto at = [&](double a, double b, double c, double d) {
      return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
    };
    points_.push_back({at(start.x, first.x, second.x, end.x), at(start.y, first.y, second.y, end.y)});
  }
  return *this;
}

Outline& Outline::arc(Vec centre, Vec radii, double from, double to) {
  for (int step = 0; step <= kSteps; ++step) {
    const double angle = from + (to - from) * step / kSteps;
    points_.push_back({centre.x + radii.x * std::cos(angle), centre.y + radii.y * std::sin(angle)});
  }
  return *this;
}

Outline& Outline::mirrored(double x) {
  for (std::size_t left = points_.size(); left-- > 0;)
    points_.push_back({2 * x - points_[left].x, points_[left].y});
  return *this;
}

Outline& Outline::turned(Vec centre, double angle) {
  const Vec turn{std::cos(angle), std::sin(angle)};
  for (Vec& point : points_) {
    const Vec from{point.x - centre.x, point.y - centre.y};
    point = {centre.x + from.x * turn.x - from.y * turn.y, centre.y + from.x * turn.y + from.y * turn.x};
  }
  return *this;
}

Outline ellipse(Vec centre, Vec radii) { return Outline().arc(centre, radii, 0, 2 * pi); }

Outline circle(Vec centre, double radius) { return ellipse(centre, {radius, radius}); }

Outline star(Vec centre, int rays, double inner, double outer) {
  Outline outline({centre.x, centre.y - outer});
  for (int point = 1; point < 2 * rays; ++point) {
    const double angle = pi * point / rays;
    const double reach = point % 2 == 0 ? outer : inner;
    outline.lineTo({centre.x + reach * std::sin(angle), centre.y - reach * std::cos(angle)});
  }
  return outline;
}

}  // namespace tombolario::pictures
