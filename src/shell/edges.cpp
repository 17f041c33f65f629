#include "shell/edges.hpp"

#include <algorithm>

namespace tombolario {

namespace {

constexpr Rgb kShadow = classicPalette(SystemColour::ButtonShadow);
constexpr Rgb kLight = classicPalette(SystemColour::Light3d);

/// Pixels kept free at either side of a text too wide for its box.
constexpr double kTextMargin = 4;

/// One pixel along the inside of the rectangle: left and top in one colour, right and bottom in another.
void bevel(Painter& painter, const Rect& r, Rgb leftTop, Rgb rightBottom) {
  painter.fillRect({r.x, r.y, r.w - 1, 1}, leftTop);
  painter.fillRect({r.x, r.y, 1, r.h - 1}, leftTop);
  painter.fillRect({r.x, r.y + r.h - 1, r.w, 1}, rightBottom);
  painter.fillRect({r.x + r.w - 1, r.y, 1, r.h}, rightBottom);
}

}  // namespace

void drawEdge(Painter& painter, const Rect& rect, Edge edge) {
  switch (edge) {
    case Edge::Raised:
      bevel(painter, rect, kWhite, kBlack);
      bevel(painter, rect.inset(1), kLight, kShadow);
      break;
    case Edge::Pressed:
      bevel(painter, rect, kBlack, kWhite);
      bevel(painter, rect.inset(1), kShadow, kLight);
      break;
    case Edge::Sunken: bevel(painter, rect, kShadow, kWhite); break;
    case Edge::Etched:
      bevel(painter, rect, kShadow, kWhite);
      bevel(painter, rect.inset(1), kWhite, kShadow);
      break;
  }
}

Font fittingFont(Painter& painter, std::string_view text, Font font, double width) {
  const double wanted = painter.textWidth(text, font);
  if (wanted > width) font.points *= width / wanted;
  return font;
}

double lineHeight(const Font& font) { return font.points * 96 / 72 * 1.25; }

void drawCaption(Painter& painter, const Rect& box, std::string_view caption, const Font& font, Rgb colour,
                 Align align, bool dimmed) {
  if (caption.empty()) return;
  const auto lines = 1 + std::count(caption.begin(), caption.end(), '\n');
  const double height = lineHeight(font);
  Rect line{box.x, box.y + (box.h - static_cast<double>(lines) * height) / 2, box.w, height};
  for (std::size_t start = 0; start <= caption.size(); line.y += height) {
    const std::size_t end = std::min(caption.find('\n', start), caption.size());
    const std::string_view text = caption.substr(start, end - start);
    const Font fitting = fittingFont(painter, text, font, box.w - 2 * kTextMargin);
    if (dimmed) painter.text(line.movedBy(1, 1), text, fitting, kWhite, align);
    painter.text(line, text, fitting, dimmed ? kShadow : colour, align);
    start = end + 1;
  }
}

}  // namespace tombolario
