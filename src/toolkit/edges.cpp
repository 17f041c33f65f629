#include "toolkit/edges.hpp"

namespace tombolario {

namespace {

constexpr Rgb kShadow = classicPalette(SystemColour::ButtonShadow);
constexpr Rgb kLight = classicPalette(SystemColour::Light3d);

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

}  // namespace tombolario
