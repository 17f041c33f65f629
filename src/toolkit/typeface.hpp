#pragma once

#include <cmath>

#include "toolkit/painter.hpp"
#include "toolkit/pixel_grid.hpp"

namespace tombolario {

/// The families of a face, the best first, with commas between: Pango and CSS read them alike.
constexpr const char* familiesOf(Face face) {
  return face == Face::Heavy ? "Roboto,Arial Black,Liberation Sans,sans-serif"
                             : "Liberation Sans,Arial,sans-serif";
}

/// The weight of a font: 400 is plain, 700 bold, 900 the heaviest.
constexpr int weightOf(const Font& font) { return font.face == Face::Heavy ? 900 : font.bold ? 700 : 400; }

/// The size of the em in device pixels.
inline double emOf(const Font& font, double scale) { return font.points * 96 / 72 * scale; }

/// The device pixel that the baseline of a line of text in the box lies on. Text is centred by its capitals,
/// since most of it is capitals.
inline double baselineOf(const Font& font, const Rect& box, const PixelGrid& grid) {
  constexpr double kCapsOfEm = 0.715;  // in a sans serif
  const Vec middle = grid.device({box.x, box.y + box.h / 2});
  return std::round(middle.y + emOf(font, grid.scale()) * kCapsOfEm / 2);
}

/// The share of the free room of a box that lies left of its text.
constexpr double shareOf(Align align) { return align == Align::Left ? 0 : align == Align::Centre ? 0.5 : 1; }

}  // namespace tombolario
