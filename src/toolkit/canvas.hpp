#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "toolkit/colour.hpp"
#include "toolkit/geometry.hpp"

namespace tombolario {

/// A font as a device takes it.
struct Typeface {
  const char* families;  ///< the best first, with commas between
  int weight;            ///< 400 is plain, 700 bold, 900 the heaviest
  double em;             ///< in device pixels
  double stretch = 1;    ///< of the height alone
  constexpr bool operator==(const Typeface&) const = default;
};

/// Colours that pass into each other at even steps, the first at `from`, the last at `to`, in the coordinates
/// of what is filled: along the line between the two, or all round `from`. Beyond them the end colours go on.
struct Gradient {
  enum class Shape : bool { Linear, Radial };
  Shape shape;
  Vec from;
  Vec to;
  std::span<const Rgb> colours;  ///< two or more
};

/// What a painter draws on: a device that draws where it is told, in its own pixels from its origin, and
/// knows nothing of the room. Rectangles, clips and copies come on whole pixels.
class Canvas {
 public:
  virtual ~Canvas() = default;

  /// A transparent canvas of that size for a picture, to be copied onto this one and others of its making.
  virtual std::unique_ptr<Canvas> make(Size size) = 0;
  /// From here on the origin lies there, seen from the corner of the canvas. Nothing is clipped yet.
  virtual void startAt(Vec origin) = 0;

  virtual void fillRect(const Rect& rect, Rgb colour) = 0;
  virtual void fillPolygon(std::span<const Vec> points, Rgb colour) = 0;
  virtual void fillPolygon(std::span<const Vec> points, const Gradient& gradient) = 0;
  /// Half of the closed line lies on either side of the points; its corners are round.
  virtual void strokePolygon(std::span<const Vec> points, Rgb colour, double width) = 0;
  virtual void fillEllipse(Vec centre, Vec radii, Rgb colour) = 0;
  virtual void line(Vec from, Vec to, Rgb colour, double width) = 0;
  /// One line of UTF-8 text from there on, which is a place on its baseline.
  virtual void text(std::string_view text, const Typeface& face, Vec start, Rgb colour) = 0;
  virtual double textWidth(std::string_view text, const Typeface& face) = 0;
  /// How high the capitals are, without any stretch.
  virtual double capHeight(const Typeface& face) = 0;
  /// Copies all of the other canvas, on which nothing more is drawn from then on.
  virtual void copy(Canvas& from, Vec at) = 0;
  /// Clips further, until the matching unclip.
  virtual void clip(const Rect& rect) = 0;
  virtual void unclip() = 0;
};

}  // namespace tombolario
