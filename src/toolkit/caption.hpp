#pragma once

#include <string_view>

#include "toolkit/painter.hpp"

namespace tombolario {

/// Draws a caption in the box, its lines (parted by '\n') as one block in the middle. A single line too wide
/// for the box is broken at its blanks if the box is tall enough; if a line is still too wide, all are set
/// smaller.
void drawCaption(Painter& painter, const Rect& box, std::string_view caption, const Font& font, Rgb colour,
                 Align align);

/// The font, or the smaller cut of it in which `drawCaption` sets the caption.
Font captionFont(Painter& painter, const Rect& box, std::string_view caption, const Font& font);

/// The font, or a smaller cut of it in which the text is no wider than that many pixels.
Font fittingFont(Painter& painter, std::string_view text, Font font, double width);

/// The distance between two lines of text, in pixels.
double lineHeight(const Font& font);

}  // namespace tombolario
