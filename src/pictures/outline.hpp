#pragma once

#include <span>
#include <vector>

#include "toolkit/geometry.hpp"

namespace tombolario::pictures {

/// The closed outline of a figure, of straight and curved parts; its points lie so near to each other that
/// curves are smooth at any scale.
class Outline {
 public:
  Outline() = default;  // which an arc or a line is to begin
  explicit Outline(Vec start) : points_{start} {}

  Outline& lineTo(Vec end);
  /// A Bézier curve that is drawn towards the two points on its way.
  Outline& curveTo(Vec first, Vec second, Vec end);
  /// A part of an ellipse, between angles in radians, clockwise from its rightmost point if the second is
  /// larger; a line leads to where it begins.
  Outline& arc(Vec centre, Vec radii, double from, double to);
  /// All so far and then, back to the start, its image in an upright mirror.
  Outline& mirrored(double x);
  /// All so far, turned clockwise about the point by that angle in radians.
  Outline& turned(Vec centre, double angle);

  operator std::span<const Vec>() const { return points_; }

 private:
  std::vector<Vec> points_;
};

Outline ellipse(Vec centre, Vec radii);
Outline circle(Vec centre, double radius);
/// With that many rays, the first of them upright, from the one radius to the other.
Outline star(Vec centre, int rays, double inner, double outer);

}  // namespace tombolario::pictures
