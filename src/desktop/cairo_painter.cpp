#include "desktop/cairo_painter.hpp"

#include <numbers>

#include "toolkit/typeface.hpp"

namespace tombolario {

namespace {

Owned<PangoFontDescription> describe(const Font& font, double scale) {
  Owned<PangoFontDescription> description(pango_font_description_new());
  pango_font_description_set_family_static(description.get(), familiesOf(font.face));
  pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(weightOf(font)));
  pango_font_description_set_absolute_size(description.get(), emOf(font, scale) * PANGO_SCALE);
  return description;
}

}  // namespace

PainterCache::PainterCache() : context_(pango_font_map_create_context(pango_cairo_font_map_get_default())) {
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(context_.get(), options);
  cairo_font_options_destroy(options);
  // Text must grow evenly with the scale, or what fits its box at one would not at another.
  pango_context_set_round_glyph_positions(context_.get(), FALSE);
  layout_.reset(pango_layout_new(context_.get()));
}

PangoLayout* PainterCache::layout(std::string_view text, const Font& font, double scale) {
  pango_layout_set_font_description(layout_.get(), describe(font, scale).get());
  pango_layout_set_text(layout_.get(), text.data(), static_cast<int>(text.size()));
  return layout_.get();
}

CairoPainter::CairoPainter(cairo_surface_t* target, double scale, PainterCache& cache)
    : cairo_(cairo_create(target)), cache_(cache), grid_(scale) {
  cache_.pictures.begin(scale);
  cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
}

cairo_surface_t* CairoPainter::drawn(const PictureId& picture, double scale, PainterCache& cache) {
  const auto draw = [&](int width, int height) {
    Owned<cairo_surface_t> surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    CairoPainter painter(surface.get(), scale, cache);
    picture.draw(painter);
    return surface;
  };
  return cache.pictures.picture(picture, scale, draw).get();
}

void CairoPainter::fill(const PixelGrid::Area& area) {
  cairo_rectangle(cairo_.get(), area.left, area.top, area.width(), area.height());
  cairo_fill(cairo_.get());
}

void CairoPainter::ink(Rgb colour) {
  cairo_set_source_rgb(cairo_.get(), (colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0,
                       (colour & 0xFF) / 255.0);
}

void CairoPainter::trace(std::span<const Vec> points) {
  cairo_new_path(cairo_.get());
  for (const Vec& point : points) {
    const Vec at = grid_.device(point);
    cairo_line_to(cairo_.get(), at.x, at.y);
  }
  cairo_close_path(cairo_.get());
}

void CairoPainter::fillRect(const Rect& rect, Rgb colour) {
  ink(colour);
  fill(grid_.area(rect));
}

void CairoPainter::outlineRect(const Rect& rect, Rgb colour, double width) {
  ink(colour);
  for (const PixelGrid::Area& bar : grid_.frame(rect, width)) fill(bar);
}

void CairoPainter::fillPolygon(std::span<const Vec> points, Rgb colour) {
  ink(colour);
  trace(points);
  cairo_fill(cairo_.get());
}

void CairoPainter::outlinePolygon(std::span<const Vec> points, Rgb colour, double width) {
  ink(colour);
  trace(points);
  cairo_set_line_width(cairo_.get(), width * grid_.scale());
  cairo_stroke(cairo_.get());
}

void CairoPainter::fillEllipse(const Rect& bounds, Rgb colour) {
  const Vec centre = grid_.device({bounds.x + bounds.w / 2, bounds.y + bounds.h / 2});
  cairo_t* cairo = cairo_.get();
  ink(colour);
  cairo_save(cairo);
  cairo_translate(cairo, centre.x, centre.y);
  cairo_scale(cairo, bounds.w / 2 * grid_.scale(), bounds.h / 2 * grid_.scale());
  cairo_new_path(cairo);
  cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(cairo);
  cairo_fill(cairo);
}

void CairoPainter::line(Vec from, Vec to, Rgb colour, double width) {
  const Vec start = grid_.device(from);
  const Vec end = grid_.device(to);
  ink(colour);
  cairo_new_path(cairo_.get());
  cairo_move_to(cairo_.get(), start.x, start.y);
  cairo_line_to(cairo_.get(), end.x, end.y);
  cairo_set_line_width(cairo_.get(), width * grid_.scale());
  cairo_stroke(cairo_.get());
}

void CairoPainter::text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) {
  PangoLayout* layout = cache_.layout(text, font, grid_.scale());
  int width = 0;
  pango_layout_get_size(layout, &width, nullptr);
  const double room = box.w * grid_.scale() - width / static_cast<double>(PANGO_SCALE);
  const double left = grid_.device({box.x, box.y}).x + room * shareOf(align);
  ink(colour);
  cairo_move_to(cairo_.get(), left, baselineOf(font, box, grid_));
  pango_cairo_show_layout_line(cairo_.get(), pango_layout_get_line_readonly(layout, 0));
}

double CairoPainter::textWidth(std::string_view text, const Font& font) {
  int width = 0;
  pango_layout_get_size(cache_.layout(text, font, grid_.scale()), &width, nullptr);
  return width / static_cast<double>(PANGO_SCALE) / grid_.scale();
}

void CairoPainter::picture(const PictureId& picture, Vec at, bool dimmed) {
  if (!picture) return;
  const Vec corner = grid_.wholeDevice(at);
  cairo_surface_t* surface = drawn(picture, grid_.scale(), cache_);
  cairo_set_source_surface(cairo_.get(), surface, corner.x, corner.y);
  cairo_paint(cairo_.get());
  if (!dimmed) return;
  const double grey = (kVeil & 0xFF) / 255.0;
  cairo_set_source_rgba(cairo_.get(), grey, grey, grey, 0.5);
  cairo_mask_surface(cairo_.get(), surface, corner.x, corner.y);
}

void CairoPainter::enter(const Rect& rect, double zoom) {
  cairo_save(cairo_.get());
  const PixelGrid::Area clip = grid_.enter(rect, zoom);
  cairo_rectangle(cairo_.get(), clip.left, clip.top, clip.width(), clip.height());
  cairo_clip(cairo_.get());
}

void CairoPainter::leave() {
  cairo_restore(cairo_.get());
  grid_.leave();
}

}  // namespace tombolario
