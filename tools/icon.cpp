// Draws the room's icon, out of two of its pictures, as an SVG file: icon FILE

#include <cairo-svg.h>

#include <cstdio>

#include "desktop/cairo_painter.hpp"
#include "pictures/catalogue.hpp"

namespace {

using namespace tombolario;

constexpr double kSide = 128;  // pixels

/// Draws a picture that many times as large, in a black edge. Not as the painter would: it keeps pictures in
/// pixels, and an icon is to be sharp at any size.
void place(Painter& painter, const PictureId& picture, Vec at, double zoom) {
  const Size size = picture.size();
  const Rect whole{at.x, at.y, size.width * zoom, size.height * zoom};
  painter.fillRect(whole.inset(-2), kBlack);
  painter.enter(whole, zoom);
  picture.draw(painter);
  painter.leave();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: icon FILE\n", stderr);
    return 2;
  }
  const Owned<cairo_surface_t> surface(cairo_svg_surface_create(argv[1], kSide, kSide));
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  PainterCache cache;
  {
    CairoPainter painter(surface.get(), 1, cache);
    painter.fillRect({0, 0, kSide, kSide}, kBlue);
    place(painter, pictures::Picture3, {10, 10}, 0.8);
    place(painter, {pictures::Picture1, 52}, {54, 30}, 0.95);
  }
  cairo_surface_finish(surface.get());
  return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS ? 0 : 1;
}
