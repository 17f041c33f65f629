#pragma once

#include <span>
#include <string_view>

#include "toolkit/colour.hpp"
#include "toolkit/geometry.hpp"

namespace tombolario {

class PictureId;

/// A type of the room: a plain sans serif, or a very heavy one for banners and pictures.
enum class Face { Sans, Heavy };

/// A font by type, height in points (72 points are 96 pixels) and weight.
struct Font {
  Face face = Face::Sans;
  double points = 8.25;
  bool bold = false;
  constexpr bool operator==(const Font&) const = default;
};

enum class Align { Left, Centre, Right };

/// The drawing interface of the whole room. Coordinates are pixels of the unscaled window from the
/// present origin; the painter maps them to its device and keeps upright edges on whole device pixels,
/// so that flat things stay sharp at any scale. Nothing outside the present clip is drawn.
class Painter {
 public:
  virtual ~Painter() = default;

  virtual void fillRect(const Rect& rect, Rgb colour) = 0;
  /// A frame of that line width inside the rectangle; never thinner than one device pixel.
  virtual void outlineRect(const Rect& rect, Rgb colour, double width) = 0;
  virtual void fillPolygon(std::span<const Vec> points, Rgb colour) = 0;
  /// A closed line through the points, half of its width on either side.
  virtual void outlinePolygon(std::span<const Vec> points, Rgb colour, double width) = 0;
  virtual void fillEllipse(const Rect& bounds, Rgb colour) = 0;
  virtual void line(Vec from, Vec to, Rgb colour, double width) = 0;
  /// One line of UTF-8 text, centred upright in the box and aligned in it sideways; it is not clipped.
  virtual void text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) = 0;
  /// The advance of the text in pixels; it grows with the points alone, whatever the scale.
  virtual double textWidth(std::string_view text, const Font& font) = 0;
  /// Draws the picture at its own size, its top left corner there; a dimmed one under a grey veil.
  virtual void picture(const PictureId& picture, Vec at, bool dimmed) = 0;
  /// Clips to the rectangle and moves the origin to its top left corner, on a whole device pixel, until the
  /// matching leave; what is drawn meanwhile is that many times as large.
  virtual void enter(const Rect& rect, double zoom) = 0;
  void enter(const Rect& rect) { enter(rect, 1); }
  virtual void leave() = 0;
};

}  // namespace tombolario
