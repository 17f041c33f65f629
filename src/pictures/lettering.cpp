#include "pictures/lettering.hpp"

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

void plate(Painter& painter, Size size, double room, double capHeight, std::string_view text, Rgb ink,
           Rgb ground) {
  const Rect all{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  painter.fillRect(all, ground);
  fittedText(painter, {(all.w - room) / 2, 0, room, all.h}, text, lettering(capHeight), ink);
}

}  // namespace tombolario::pictures
