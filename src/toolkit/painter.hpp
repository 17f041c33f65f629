#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <span>
#include <string_view>
#include <tuple>
#include <vector>

#include "toolkit/canvas.hpp"

namespace tombolario {

class PictureId;
struct PictureStore;

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

/// How many device pixels something of that size in pixels takes at that scale: at least one each way.
Size deviceSize(Size size, double scale);

/// Each picture as it was drawn at its scale, kept from one drawing of the room to the next.
class PictureCache {
  friend class Painter;
  using Key =
      std::tuple<const PictureStore*, int, double, bool>;  // a picture, its scale, whether it is dimmed

  /// A drawing at that scale begins: what was kept for a drawing at another scale is dropped.
  void begin(double scale);
  /// The picture, drawn now, on a canvas that the device makes, if it is not kept.
  Canvas& drawn(const PictureId& picture, double scale, bool dimmed, Canvas& device);

  std::map<Key, std::unique_ptr<Canvas>> kept_;
  std::size_t bytes_ = 0;
  double scale_ = 0;  // of the drawing
};

/// Draws the room on a canvas. Coordinates are pixels of the unscaled window from the present origin; the
/// painter keeps upright edges, and the places that are entered, on whole device pixels, so that flat things
/// stay sharp and look alike wherever they are, at any scale. Nothing outside the present clip is drawn.
class Painter {
 public:
  /// With that many device pixels to a pixel of the room.
  Painter(Canvas& canvas, double scale, PictureCache& pictures) : Painter(canvas, pictures, scale) {
    pictures.begin(scale);
  }

  void fillRect(const Rect& rect, Rgb colour);
  /// A frame of that line width inside the rectangle; never thinner than one device pixel.
  void outlineRect(const Rect& rect, Rgb colour, double width);
  void fillPolygon(std::span<const Vec> points, Rgb colour);
  void fillPolygon(std::span<const Vec> points, const Gradient& gradient);
  /// A closed line through the points, half of its width on either side.
  void outlinePolygon(std::span<const Vec> points, Rgb colour, double width);
  void fillEllipse(const Rect& bounds, Rgb colour);
  void line(Vec from, Vec to, Rgb colour, double width);
  /// One line of UTF-8 text, centred upright in the box and aligned in it sideways; it is not clipped.
  void text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align);
  /// The advance of the text in pixels; it grows with the points alone, whatever the scale.
  double textWidth(std::string_view text, const Font& font);
  /// Draws the picture at its own size, its top left corner there; a dimmed one under a grey veil.
  void picture(const PictureId& picture, Vec at, bool dimmed);
  /// Clips to the rectangle and moves the origin to its top left corner, on a whole device pixel, until the
  /// matching leave; what is drawn meanwhile is that many times as large.
  void enter(const Rect& rect, double zoom = 1);
  void leave();

 private:
  friend class PictureCache;
  struct Place {
    Vec origin;
    double scale;
  };

  /// For a picture inside a drawing, which drops nothing.
  Painter(Canvas& canvas, PictureCache& pictures, double scale)
      : canvas_(canvas), pictures_(pictures), places_{{{0, 0}, scale}} {}

  double scale() const { return places_.back().scale; }
  Vec device(Vec point) const;
  std::vector<Vec> device(std::span<const Vec> points) const;
  Vec wholeDevice(Vec point) const;
  Rect wholeDevice(const Rect& rect) const;

  Canvas& canvas_;
  PictureCache& pictures_;
  std::vector<Place> places_;  // those that are entered, around each other
};

/// Draws the picture alone on the canvas.
void drawAlone(const PictureId& picture, Canvas& canvas, double scale);

}  // namespace tombolario
