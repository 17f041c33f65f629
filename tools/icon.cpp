// Draws the room's icon as an SVG file: icon FILE

#include <cairo-svg.h>

#include <cstdio>

#include "desktop/cairo_canvas.hpp"
#include "pictures/icon.hpp"
#include "toolkit/painter.hpp"

int main(int argc, char** argv) {
  using namespace tombolario;
  if (argc != 2) {
    std::fputs("usage: icon FILE\n", stderr);
    return 2;
  }
  Owned<cairo_surface_t> surface(cairo_svg_surface_create(argv[1], pictures::kIconSide, pictures::kIconSide));
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  CairoFonts fonts;
  CairoCanvas canvas(std::move(surface), fonts);
  PictureCache pictures;
  Painter painter(canvas, 1, pictures);
  pictures::drawIcon(painter);
  cairo_surface_finish(canvas.surface());
  return cairo_surface_status(canvas.surface()) == CAIRO_STATUS_SUCCESS ? 0 : 1;
}
