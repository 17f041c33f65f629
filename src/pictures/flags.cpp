#include <array>

#include "pictures/catalogue.hpp"
#include "toolkit/painter.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kFlagSize{32, 20};
constexpr Rect kFlag{0, 0, kFlagSize.width, kFlagSize.height};

/// A thin edge, so that a flag stands out on a tile of its own ground.
void edge(Painter& painter) { painter.outlineRect(kFlag, 0x404040, 1); }

void drawSpain(Painter& painter, int) {
  constexpr Rgb kGules = 0xC60B1E;
  painter.fillRect(kFlag, kGules);
  painter.fillRect({0, 5, 32, 10}, 0xFFC400);
  painter.fillRect({8, 7, 5, 6}, kGules);
  edge(painter);
}

void drawBrazil(Painter& painter, int) {
  painter.fillRect(kFlag, 0x009C3B);
  painter.fillPolygon(std::array<Vec, 4>{Vec{16, 2}, Vec{29, 10}, Vec{16, 18}, Vec{3, 10}}, 0xFFDF00);
  painter.fillEllipse({11.5, 5.5, 9, 9}, 0x002776);
  painter.line({11.8, 8.8}, {20.2, 10.8}, kWhite, 1.2);
  edge(painter);
}

void drawJapan(Painter& painter, int) {
  painter.fillRect(kFlag, kWhite);
  painter.fillEllipse({10, 4, 12, 12}, 0xD80030);
  edge(painter);
}

void drawUnitedStates(Painter& painter, int) {
  painter.fillRect(kFlag, kWhite);
  for (int y = 0; y < kFlagSize.height; y += 4)
    painter.fillRect({0, static_cast<double>(y), 32, 2}, 0xC8102E);
  painter.fillRect({0, 0, 15, 10}, 0x0A3161);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      painter.fillEllipse({2.2 + 3.2 * column, 1.7 + 2.6 * row, 1.6, 1.6}, kWhite);
    }
  }
  edge(painter);
}

/// A cross that stands nearer to the staff.
void cross(Painter& painter, Rgb ground, Rgb ink) {
  painter.fillRect(kFlag, ground);
  painter.fillRect({10, 0, 4, 20}, ink);
  painter.fillRect({0, 8, 32, 4}, ink);
  edge(painter);
}

void drawSweden(Painter& painter, int) { cross(painter, 0x005BAC, 0xFECC02); }

void drawPortugal(Painter& painter, int) {
  painter.fillRect(kFlag, 0xDA291C);
  painter.fillRect({0, 0, 13, 20}, 0x046A38);
  painter.fillEllipse({8, 5, 10, 10}, 0xFFE900);
  painter.fillEllipse({10, 7, 6, 6}, 0xDA291C);
  painter.fillRect({11.5, 8, 3, 4}, kWhite);
  edge(painter);
}

void drawDenmark(Painter& painter, int) { cross(painter, 0xC8102E, kWhite); }

}  // namespace

constinit const PictureStore spagnadom = singlePicture<kFlagSize>("spagnadom", drawSpain);
constinit const PictureStore brasiledom = singlePicture<kFlagSize>("brasiledom", drawBrazil);
constinit const PictureStore giapponedom = singlePicture<kFlagSize>("giapponedom", drawJapan);
constinit const PictureStore usadom = singlePicture<kFlagSize>("usadom", drawUnitedStates);
constinit const PictureStore sveziadom = singlePicture<kFlagSize>("sveziadom", drawSweden);
constinit const PictureStore portogallodom = singlePicture<kFlagSize>("portogallodom", drawPortugal);
constinit const PictureStore danimarcadom = singlePicture<kFlagSize>("danimarcadom", drawDenmark);

}  // namespace tombolario::pictures
