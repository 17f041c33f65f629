// Draws the room's icon into a directory: as SVG, and as PNG in the sizes that the page needs.

#include <cairo-svg.h>

#include <cstdio>
#include <string>

#include "desktop/cairo_canvas.hpp"
#include "pictures/icon.hpp"
#include "toolkit/painter.hpp"

namespace {

using namespace tombolario;

constexpr double kWhole = 1;
/// What of an icon is safe where a phone cuts its own shape out of it: a circle of 80% of the side.
constexpr double kWithAir = 0.62;

using Surface = Owned<cairo_surface_t>;

/// Draws the icon on a square of that many pixels, so large a share of it, in the middle.
Surface draw(Surface surface, int side, double share) {
  CairoFonts fonts;
  CairoCanvas canvas(std::move(surface), fonts);
  PictureCache pictures;
  Painter(canvas, 1, pictures).fillRect({0, 0, double(side), double(side)}, kBlue);
  const double start = side * (1 - share) / 2;
  canvas.startAt({start, start});
  PictureCache scaled;
  Painter painter(canvas, side * share / pictures::kIconSide, scaled);
  pictures::drawIcon(painter);
  return Surface(cairo_surface_reference(canvas.surface()));
}

bool drawPng(const std::string& file, int side, double share) {
  const Surface surface =
      draw(Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, side, side)), side, share);
  return cairo_surface_write_to_png(surface.get(), file.c_str()) == CAIRO_STATUS_SUCCESS;
}

bool drawSvg(const std::string& file) {
  Surface surface(cairo_svg_surface_create(file.c_str(), pictures::kIconSide, pictures::kIconSide));
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  surface = draw(std::move(surface), pictures::kIconSide, kWhole);
  cairo_surface_finish(surface.get());
  return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: icon DIRECTORY\n", stderr);
    return 2;
  }
  const std::string place = std::string(argv[1]) + '/';
  return drawSvg(place + "tombolario.svg") && drawPng(place + "icon-48.png", 48, kWhole) &&
                 drawPng(place + "icon-192.png", 192, kWhole) &&
                 drawPng(place + "icon-512.png", 512, kWhole) &&
                 drawPng(place + "icon-maskable.png", 512, kWithAir) &&
                 drawPng(place + "apple-touch-icon.png", 180, kWithAir)
             ? 0
             : 1;
}
