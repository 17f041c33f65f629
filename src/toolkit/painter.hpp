#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
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

/// Some sides of a box.
struct Sides {
  bool left = false;
  bool top = false;
  bool right = false;
  bool bottom = false;
};

/// How many device pixels something of that size in pixels takes at that scale: at least one each way.
Size deviceSize(Size size, double scale);

/// Each picture as it was drawn at its scale, kept from one drawing of the room to the next.
class PictureCache {
  friend class Painter;
  // A picture, its size in device pixels, and the ground on which it is quiet.
  using Key = std::tuple<const PictureStore*, int, int, int, std::optional<Rgb>>;

  /// A drawing at that scale begins: what was kept for a drawing at another scale is dropped.
  void begin(double scale);
  /// The picture, drawn now, on a canvas that the device makes, if it is not kept. The size is in device
  /// pixels.
  Canvas& drawn(const PictureId& picture, Size size, double scale, std::optional<Rgb> quietOn,
                Canvas& device);

  std::map<Key, std::unique_ptr<Canvas>> kept_;
  std::size_t bytes_ = 0;
  double scale_ = 0;  // of the drawing
};

/// Draws the room on a canvas. Coordinates are pixels of the unscaled window from the corner of the present
/// place; nothing outside the place is drawn.
///
/// A pixel of the room begins on the device pixel that its place rounds to, wherever it is seen from, and a
/// line is n = max(1, round(scale)) device pixels thick. What reaches the edge of a place ends where the
/// place ends. So flat things stay sharp, what touches at one scale touches at every scale, and lines are
/// alike wherever they are.
class Painter {
 public:
  /// With that many device pixels to a pixel of the room.
  Painter(Canvas& canvas, double scale, PictureCache& pictures);

  /// What is a pixel wide or high, or less, is a line.
  void fillRect(const Rect& rect, Rgb colour);
  /// An upright or level line as thick as the rectangle, and as thick as its like elsewhere.
  void bar(const Rect& rect, Rgb colour);
  /// A frame of that line width inside the rectangle; never thinner than one device pixel.
  void outlineRect(const Rect& rect, Rgb colour, double width);
  /// Lines along the inside of the rectangle, within as many layers of other lines: left and top in one
  /// colour, right and bottom, with the corners that they share, in another.
  void bevel(const Rect& rect, int layer, Rgb leftTop, Rgb rightBottom);
  void fillPolygon(std::span<const Vec> points, Rgb colour);
  void fillPolygon(std::span<const Vec> points, const Gradient& gradient);
  /// A closed line through the points, half of its width on either side.
  void outlinePolygon(std::span<const Vec> points, Rgb colour, double width);
  void fillEllipse(const Rect& bounds, Rgb colour);
  void line(Vec from, Vec to, Rgb colour, double width);
  /// One line of UTF-8 text, its capitals in the middle of the box, aligned in it sideways; it is not
  /// clipped.
  void text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align);
  /// The advance of the text in pixels; it grows with the points alone, whatever the scale.
  double textWidth(std::string_view text, const Font& font);
  /// Draws the picture at its own size, its top left corner there.
  void picture(const PictureId& picture, Vec at);
  /// Draws the picture to fill the rectangle; on a ground that is told, as `quiet` tells.
  void picture(const PictureId& picture, const Rect& rect, std::optional<Rgb> quietOn = {});

  /// Makes the rectangle the present place, until the matching leave.
  void enter(const Rect& rect);
  /// The same for a control: its last lines begin where their pixels begin, so that what overlaps it by a
  /// pixel shares the line. Where a line of something else lies against it, it begins or ends at that line.
  void enterEdged(const Rect& rect, const Sides& lines = {});
  /// The same for what lies within one line along the inside of the rectangle.
  void enterInside(const Rect& rect);
  void leave();

  /// Draws the picture to fill the rectangle, and keeps nothing of it: for a drawing that is not made of
  /// pixels.
  void drawing(const PictureId& picture, const Rect& rect);

 private:
  friend class PictureCache;
  /// A stretch of the room along one axis, from the corner of the canvas, and the whole device pixels that it
  /// takes.
  struct Stretch {
    double scale;
    double first, length;
    double begin, end;
  };
  struct Place {
    Stretch x, y;
  };

  /// For a picture that fills a place; it drops nothing that is kept.
  Painter(Canvas& canvas, PictureCache& pictures, double scale, const Place& place, std::optional<Rgb> ground)
      : canvas_(canvas), pictures_(pictures), scale_(scale), ground_(ground), places_{place} {}
  static Place filledBy(const PictureId& picture, double x, double y, double width, double height);

  void push(const Place& place);
  /// How many device pixels the width of a line takes.
  double thickness(double width) const;
  /// Where a pixel of the stretch begins.
  static double edge(const Stretch& along, double at);
  static double point(const Stretch& along, double at);
  static Stretch part(const Stretch& along, double from, double length);
  Stretch edged(const Stretch& along, double from, double length, bool lineBefore, bool lineBehind) const;
  Stretch inside(const Stretch& along) const;
  Stretch filled(const Stretch& along, double from, double length) const;
  Place area(const Rect& rect) const;
  Vec device(Vec at) const;
  std::vector<Vec> device(std::span<const Vec> points) const;
  /// The colour, or a quiet one in a drawing that is quiet.
  Rgb ink(Rgb colour) const;

  Canvas& canvas_;
  PictureCache& pictures_;
  double scale_;
  std::optional<Rgb> ground_;  // of a quiet drawing
  std::vector<Place> places_;  // those that are entered, around each other
};

/// Draws the picture alone on the canvas.
void drawAlone(const PictureId& picture, Canvas& canvas, double scale);

}  // namespace tombolario
