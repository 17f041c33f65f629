// Draws the room's icon as an SVG file: icon FILE

#include <cairo-svg.h>

#include <cstdio>

#include "desktop/cairo_painter.hpp"
#include "pictures/icon.hpp"

int main(int argc, char** argv) {
  using namespace tombolario;
  if (argc != 2) {
    std::fputs("usage: icon FILE\n", stderr);
    return 2;
  }
  const Owned<cairo_surface_t> surface(
      cairo_svg_surface_create(argv[1], pictures::kIconSide, pictures::kIconSide));
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  PainterCache cache;
  {
    CairoPainter painter(surface.get(), 1, cache);
    pictures::drawIcon(painter);
  }
  cairo_surface_finish(surface.get());
  return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS ? 0 : 1;
}
