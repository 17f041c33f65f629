#include "toolkit/edges.hpp"

namespace tombolario {

namespace {

constexpr Rgb kShadow = classicPalette(SystemColour::ButtonShadow);
constexpr Rgb kLight = classicPalette(SystemColour::Light3d);

}  // namespace

void drawEdge(Painter& painter, const Rect& rect, Edge edge) {
  switch (edge) {
    case Edge::Raised:
      painter.bevel(rect, 0, kShadow, kBlack);
      painter.bevel(rect, 1, kWhite, kShadow);
      break;
    case Edge::Pressed:
      painter.bevel(rect, 0, kBlack, kShadow);
      painter.bevel(rect, 1, kShadow, kLight);
      break;
    case Edge::Flat: painter.bevel(rect, 0, kShadow, kShadow); break;
    case Edge::Sunken: painter.bevel(rect, 0, kShadow, kLight); break;
    case Edge::Etched:
      painter.bevel(rect, 0, kShadow, kShadow);
      painter.bevel(rect, 1, kWhite, kLight);
      break;
  }
}

}  // namespace tombolario
