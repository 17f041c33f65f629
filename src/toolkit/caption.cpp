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
  const double height = lineHeight(font);
  const double width = box.w - 2 * kTextMargin;
  const auto tall = [&](const auto& lines) { return static_cast<double>(lines.size()) * height; };
  auto lines = linesOf(caption);
  if (lines.size() == 1) {
    auto parts = broken(painter, caption, font, width);
    if (tall(parts) <= box.h) lines = std::move(parts);
  }
  Rect line{box.x, box.y + (box.h - tall(lines)) / 2, box.w, height};
  for (const std::string_view text : lines) {
    const Font fitting = fittingFont(painter, text, font, width);
    if (dimmed) painter.text(line.movedBy(1, 1), text, fitting, kWhite, align);
    painter.text(line, text, fitting, dimmed ? classicPalette(SystemColour::ButtonShadow) : colour, align);
    line.y += height;
  }
}

}  // namespace tombolario
