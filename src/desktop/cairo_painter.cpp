#include "desktop/cairo_painter.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tombolario {

namespace {

constexpr std::size_t kMostBytes = std::size_t{32} << 20;
/// Height of the capitals in a sans serif; text is centred by them, since most of it is capitals.
constexpr double kCapsOfEm = 0.715;

double pixelsOf(const Font& font) { return font.points * 96 / 72; }

Owned<PangoFontDescription> describe(const Font& font, double scale) {
  Owned<PangoFontDescription> description(pango_font_description_new());
  const bool heavy = font.face == Face::Heavy;
  pango_font_description_set_family_static(
      description.get(),
      heavy ? "Roboto,Arial Black,Liberation Sans,sans-serif" : "Liberation Sans,Arial,sans-serif");
  const PangoWeight weight = font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL;
  pango_font_description_set_weight(description.get(), heavy ? PANGO_WEIGHT_HEAVY : weight);
  pango_font_description_set_absolute_size(description.get(), pixelsOf(font) * scale * PANGO_SCALE);
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

void PainterCache::begin(double scale) {
  if (inner_ > 0 || (scale == scale_ && bytes_ <= kMostBytes)) return;
  pictures_.clear();
  bytes_ = 0;
  scale_ = scale;
}

cairo_surface_t* PainterCache::picture(const PictureId& picture, double scale) {
  const Key key(picture, scale);
  if (const auto kept = pictures_.find(key); kept != pictures_.end()) return kept->second.get();
  const Size size = picture.size();
  const int width = std::max(1, static_cast<int>(std::lround(size.width * scale)));
  const int height = std::max(1, static_cast<int>(std::lround(size.height * scale)));
  Owned<cairo_surface_t> drawn(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  ++inner_;
  CairoPainter painter(drawn.get(), scale, *this);
  picture.draw(painter);  // which may draw other pictures, and so change what is kept
  --inner_;
  bytes_ += std::size_t{4} * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return (pictures_[key] = std::move(drawn)).get();
}

PangoLayout* PainterCache::layout(std::string_view text, const Font& font, double scale) {
  pango_layout_set_font_description(layout_.get(), describe(font, scale).get());
  pango_layout_set_text(layout_.get(), text.data(), static_cast<int>(text.size()));
  return layout_.get();
}

CairoPainter::CairoPainter(cairo_surface_t* target, double scale, PainterCache& cache)
    : cairo_(cairo_create(target)), cache_(cache), places_{{{0, 0}, scale}} {
  cache_.begin(scale);
  cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
}

Vec CairoPainter::device(Vec point) const {
  const auto& [origin, scale] = places_.back();
  return {origin.x + point.x * scale, origin.y + point.y * scale};
}

CairoPainter::Area CairoPainter::area(const Rect& rect) const {
  const Vec from = device({rect.x, rect.y});
  const Vec to = device({rect.x + rect.w, rect.y + rect.h});
  Area area{std::round(from.x), std::round(from.y), std::round(to.x), std::round(to.y)};
  // Nothing that has a size vanishes at a small scale.
  if (rect.w > 0) area.right = std::max(area.right, area.left + 1);
  if (rect.h > 0) area.bottom = std::max(area.bottom, area.top + 1);
  return area;
}

void CairoPainter::fill(const Area& a) {
  cairo_rectangle(cairo_.get(), a.left, a.top, a.right - a.left, a.bottom - a.top);
  cairo_fill(cairo_.get());
}

void CairoPainter::ink(Rgb colour) {
  cairo_set_source_rgb(cairo_.get(), (colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0,
                       (colour & 0xFF) / 255.0);
}

void CairoPainter::trace(std::span<const Vec> points) {
  cairo_new_path(cairo_.get());
  for (const Vec& point : points) {
    const Vec at = device(point);
    cairo_line_to(cairo_.get(), at.x, at.y);
  }
  cairo_close_path(cairo_.get());
}

void CairoPainter::fillRect(const Rect& rect, Rgb colour) {
  ink(colour);
  fill(area(rect));
}

void CairoPainter::outlineRect(const Rect& rect, Rgb colour, double width) {
  const Area a = area(rect);
  const double w = std::max(1.0, std::round(width * scale()));
  ink(colour);
  fill({a.left, a.top, a.right, a.top + w});
  fill({a.left, a.bottom - w, a.right, a.bottom});
  fill({a.left, a.top + w, a.left + w, a.bottom - w});
  fill({a.right - w, a.top + w, a.right, a.bottom - w});
}

void CairoPainter::fillPolygon(std::span<const Vec> points, Rgb colour) {
  ink(colour);
  trace(points);
  cairo_fill(cairo_.get());
}

void CairoPainter::outlinePolygon(std::span<const Vec> points, Rgb colour, double width) {
  ink(colour);
  trace(points);
  cairo_set_line_width(cairo_.get(), width * scale());
  cairo_stroke(cairo_.get());
}

void CairoPainter::fillEllipse(const Rect& bounds, Rgb colour) {
  const Vec centre = device({bounds.x + bounds.w / 2, bounds.y + bounds.h / 2});
  cairo_t* cairo = cairo_.get();
  ink(colour);
  cairo_save(cairo);
  cairo_translate(cairo, centre.x, centre.y);
  cairo_scale(cairo, bounds.w / 2 * scale(), bounds.h / 2 * scale());
  cairo_new_path(cairo);
  cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(cairo);
  cairo_fill(cairo);
}

void CairoPainter::line(Vec from, Vec to, Rgb colour, double width) {
  const Vec start = device(from);
  const Vec end = device(to);
  ink(colour);
  cairo_new_path(cairo_.get());
  cairo_move_to(cairo_.get(), start.x, start.y);
  cairo_line_to(cairo_.get(), end.x, end.y);
  cairo_set_line_width(cairo_.get(), width * scale());
  cairo_stroke(cairo_.get());
}

void CairoPainter::text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) {
  PangoLayout* layout = cache_.layout(text, font, scale());
  int width = 0;
  pango_layout_get_size(layout, &width, nullptr);
  const Vec left = device({box.x, box.y + box.h / 2});
  const double room = box.w * scale() - width / static_cast<double>(PANGO_SCALE);
  const double share = align == Align::Left ? 0 : align == Align::Centre ? 0.5 : 1;
  const double baseline = std::round(left.y + pixelsOf(font) * scale() * kCapsOfEm / 2);
  ink(colour);
  cairo_move_to(cairo_.get(), left.x + room * share, baseline);
  pango_cairo_show_layout_line(cairo_.get(), pango_layout_get_line_readonly(layout, 0));
}

double CairoPainter::textWidth(std::string_view text, const Font& font) {
  int width = 0;
  pango_layout_get_size(cache_.layout(text, font, scale()), &width, nullptr);
  return width / static_cast<double>(PANGO_SCALE) / scale();
}

void CairoPainter::picture(const PictureId& picture, Vec at, bool dimmed) {
  if (!picture) return;
  const Vec corner = device(at);
  const double x = std::round(corner.x);
  const double y = std::round(corner.y);
  cairo_surface_t* drawn = cache_.picture(picture, scale());
  cairo_set_source_surface(cairo_.get(), drawn, x, y);
  cairo_paint(cairo_.get());
  if (!dimmed) return;
  const double grey = (kVeil & 0xFF) / 255.0;
  cairo_set_source_rgba(cairo_.get(), grey, grey, grey, 0.5);
  cairo_mask_surface(cairo_.get(), drawn, x, y);
}

void CairoPainter::enter(const Rect& rect, double zoom) {
  const Area a = area(rect);
  cairo_save(cairo_.get());
  cairo_rectangle(cairo_.get(), a.left, a.top, a.right - a.left, a.bottom - a.top);
  cairo_clip(cairo_.get());
  places_.push_back({{a.left, a.top}, scale() * zoom});
}

void CairoPainter::leave() {
  cairo_restore(cairo_.get());
  places_.pop_back();
}

}  // namespace tombolario
