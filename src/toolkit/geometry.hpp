#pragma once

namespace tombolario {

/// The unit of every control: a pixel of the unscaled window has 15 twips.
inline constexpr int kTwipsPerPixel = 15;

/// A place in twips, relative to whatever its owner says.
struct Point {
  int x = 0;
  int y = 0;
  constexpr bool operator==(const Point&) const = default;
  constexpr Point operator+(Point o) const { return {x + o.x, y + o.y}; }
  constexpr Point operator-(Point o) const { return {x - o.x, y - o.y}; }
};

/// Place and size of a control in twips, relative to the inside of its parent.
struct Box {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// A place in pixels of the unscaled window, or of a picture at its own size; fractions are welcome.
struct Vec {
  double x = 0;
  double y = 0;
};

/// A rectangle in the same pixels.
struct Rect {
  double x = 0;
  double y = 0;
  double w = 0;
  double h = 0;

  /// The rectangle smaller by d pixels on each side.
  constexpr Rect inset(double d) const { return {x + d, y + d, w - 2 * d, h - 2 * d}; }
  constexpr Rect movedBy(double dx, double dy) const { return {x + dx, y + dy, w, h}; }
};

/// The size of a picture in pixels.
struct Size {
  int width = 0;
  int height = 0;
  constexpr bool operator==(const Size&) const = default;
};

}  // namespace tombolario
