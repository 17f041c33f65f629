#include "shell/caption.hpp"

#include <algorithm>

namespace tombolario {

namespace {

/// Pixels kept free at either side of a text too wide for its box.
constexpr double kTextMargin = 4;

}  // namespace

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
    painter.text(line, text, fitting, dimmed ? classicPalette(SystemColour::ButtonShadow) : colour, align);
    start = end + 1;
  }
}

}  // namespace tombolario
