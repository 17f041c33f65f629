#include "toolkit/caption.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace tombolario {

namespace {

/// Pixels kept free at either side of a text too wide for its box.
constexpr double kTextMargin = 4;

/// The lines of a caption as they were written.
std::vector<std::string_view> linesOf(std::string_view caption) {
  std::vector<std::string_view> lines;
  for (std::size_t start = 0; start <= caption.size();) {
    const std::size_t end = std::min(caption.find('\n', start), caption.size());
    lines.push_back(caption.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

/// The line, broken at its blanks into as few as are no wider than that.
std::vector<std::string_view> broken(Painter& painter, std::string_view line, const Font& font,
                                     double width) {
  std::vector<std::string_view> lines;
  while (painter.textWidth(line, font) > width) {
    std::size_t blank = line.rfind(' ');
    while (blank != std::string_view::npos && painter.textWidth(line.substr(0, blank), font) > width) {
      blank = blank == 0 ? std::string_view::npos : line.rfind(' ', blank - 1);
    }
    if (blank == std::string_view::npos) break;
    lines.push_back(line.substr(0, blank));
    line.remove_prefix(blank + 1);
  }
  lines.push_back(line);
  return lines;
}

/// The lines in which a caption is set, as wide as they are at that font.
std::vector<std::string_view> linesIn(Painter& painter, const Rect& box, std::string_view caption,
                                      const Font& font) {
  auto lines = linesOf(caption);
  if (lines.size() > 1) return lines;
  auto parts = broken(painter, caption, font, box.w - 2 * kTextMargin);
  return static_cast<double>(parts.size()) * lineHeight(font) <= box.h ? parts : lines;
}

}  // namespace

Font fittingFont(Painter& painter, std::string_view text, Font font, double width) {
  const double wanted = painter.textWidth(text, font);
  if (wanted > width) font.points *= width / wanted;
  return font;
}

double lineHeight(const Font& font) { return font.points * 96 / 72 * 1.25; }

Font captionFont(Painter& painter, const Rect& box, std::string_view caption, const Font& font) {
  Font fitting = font;
  for (const std::string_view text : linesIn(painter, box, caption, font)) {
    fitting = fittingFont(painter, text, fitting, box.w - 2 * kTextMargin);
  }
  return fitting;
}

void drawCaption(Painter& painter, const Rect& box, std::string_view caption, const Font& font, Rgb colour,
                 Align align) {
  if (caption.empty()) return;
  const Font fitting = captionFont(painter, box, caption, font);
  const auto lines = linesIn(painter, box, caption, font);
  const double height = lineHeight(font);
  Rect line{box.x, box.y + (box.h - static_cast<double>(lines.size()) * height) / 2, box.w, height};
  for (const std::string_view text : lines) {
    painter.text(line, text, fitting, colour, align);
    line.y += height;
  }
}

}  // namespace tombolario
