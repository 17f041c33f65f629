#include "pictures/lettering.hpp"

#include <algorithm>

#include "toolkit/caption.hpp"

namespace tombolario::pictures {

Font lettering(double capHeight) {
  const double capsOfEm = 0.711;
  return {.face = Face::Heavy, .points = capHeight / capsOfEm * 72 / 96};
}

void fittedText(Painter& painter, const Rect& box, std::string_view text, const Font& font, Rgb ink,
                Align align) {
  painter.text(box, text, fittingFont(painter, text, font, box.w), ink, align);
}

void plate(Painter& painter, Size size, double room, std::string_view text, Rgb ink, Rgb ground) {
  const Rect all{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  painter.fillRect(all, ground);
  double capHeight = std::min(11.0, all.h - 5);
  double lift = 0;
  // What hangs below the line reaches down by about a third of the capitals' height.
  if (text.find_first_of("gjpqy()") != std::string_view::npos) {
    lift = 1;
    capHeight = std::min(capHeight, all.h / 1.85);
  }
  fittedText(painter, {(all.w - room) / 2, 0, room, all.h - lift}, text, lettering(capHeight), ink);
}

}  // namespace tombolario::pictures
