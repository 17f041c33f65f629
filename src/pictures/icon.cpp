#include "pictures/icon.hpp"

#include "pictures/catalogue.hpp"

namespace tombolario::pictures {

namespace {

/// Draws a picture that many times as large, in a black edge.
void place(Painter& painter, const PictureId& picture, Vec at, double zoom) {
  const Size size = picture.size();
  const Rect whole{at.x, at.y, size.width * zoom, size.height * zoom};
  painter.fillRect(whole.inset(-2), kBlack);
  painter.drawing(picture, whole);
}

}  // namespace

void drawIcon(Painter& painter) {
  painter.fillRect({0, 0, kIconSide, kIconSide}, kBlue);
  place(painter, Picture3, {10, 10}, 0.8);
  place(painter, {Picture1, 52}, {54, 30}, 0.95);
}

}  // namespace tombolario::pictures
