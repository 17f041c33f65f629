#include "desktop/cairo_canvas.hpp"

#include <cairo-ft.h>

#include <algorithm>
#include <numbers>
#include <string>
#include <utility>

namespace tombolario {

namespace {

/// In pixels: outlines are kept at this size, larger than they are ever seen.
constexpr double kOutlineEm = 256;

/// What the system has of these families and that weight, as Fontconfig chooses; null if it has no font at
/// all.
cairo_font_face_t* chosenFace(const char* families, int weight) {
  FcPattern* wanted = FcPatternCreate();
  for (std::string_view left = families; !left.empty();) {
    const std::string family(left.substr(0, left.find(',')));
    FcPatternAddString(wanted, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    left.remove_prefix(std::min(left.size(), family.size() + 1));
  }
  FcPatternAddInteger(wanted, FC_WEIGHT, FcWeightFromOpenType(weight));
  FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
  FcDefaultSubstitute(wanted);
  FcResult result{};
  FcPattern* chosen = FcFontMatch(nullptr, wanted, &result);
  FcPatternDestroy(wanted);
  if (chosen == nullptr) return nullptr;
  cairo_font_face_t* face = cairo_ft_font_face_create_for_pattern(chosen);
  FcPatternDestroy(chosen);
  return face;
}

}  // namespace

CairoFont::CairoFont(const char* families, int weight) {
  cairo_font_face_t* face = chosenFace(families, weight);
  if (face == nullptr)
    face = cairo_toy_font_face_create("", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_matrix_t toEm;
  cairo_matrix_t toDevice;
  cairo_matrix_init_scale(&toEm, kOutlineEm, kOutlineEm);
  cairo_matrix_init_identity(&toDevice);
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  font_.reset(cairo_scaled_font_create(face, &toEm, &toDevice, options));
  cairo_font_options_destroy(options);
  cairo_font_face_destroy(face);
}

std::vector<CairoFont::Letter> CairoFont::letters(std::string_view text) const {
  cairo_glyph_t* glyphs = nullptr;
  int count = 0;
  cairo_scaled_font_text_to_glyphs(font_.get(), 0, 0, text.data(), static_cast<int>(text.size()), &glyphs,
                                   &count, nullptr, nullptr, nullptr);
  std::vector<Letter> letters;
  for (const cairo_glyph_t& glyph : std::span(glyphs, static_cast<std::size_t>(count))) {
    letters.push_back({glyph.index, glyph.x / kOutlineEm});
  }
  cairo_glyph_free(glyphs);
  return letters;
}

double CairoFont::width(std::string_view text) const {
  cairo_text_extents_t extents{};
  cairo_scaled_font_text_extents(font_.get(), std::string(text).c_str(), &extents);
  return extents.x_advance / kOutlineEm;
}

double CairoFont::capHeight() const {
  cairo_text_extents_t extents{};
  cairo_scaled_font_text_extents(font_.get(), "H", &extents);
  return -extents.y_bearing / kOutlineEm;
}

void CairoFont::trace(cairo_t* context, unsigned long glyph) {
  Owned<cairo_path_t>& outline = outlines_[glyph];
  if (outline == nullptr) {
    const Owned<cairo_surface_t> nowhere(cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr));
    const Owned<cairo_t> pen(cairo_create(nowhere.get()));
    const cairo_glyph_t letter{glyph, 0, 0};
    cairo_set_scaled_font(pen.get(), font_.get());
    cairo_glyph_path(pen.get(), &letter, 1);
    outline.reset(cairo_copy_path(pen.get()));
  }
  cairo_append_path(context, outline.get());
}

CairoFont& CairoFonts::find(const Typeface& face) {
  const std::pair<std::string_view, int> key(face.families, face.weight);
  const auto found = fonts_.find(key);
  return found != fonts_.end() ? found->second
                               : fonts_.try_emplace(key, face.families, face.weight).first->second;
}

CairoCanvas::CairoCanvas(Owned<cairo_surface_t> surface, CairoFonts& fonts)
    : surface_(std::move(surface)), cairo_(cairo_create(surface_.get())), fonts_(fonts) {
  cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
}

CairoCanvas::CairoCanvas(Size size, CairoFonts& fonts)
    : CairoCanvas(
          Owned<cairo_surface_t>(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height)),
          fonts) {}

cairo_surface_t* CairoCanvas::surface() const {
  cairo_surface_flush(surface_.get());
  return surface_.get();
}

void CairoCanvas::ink(Rgb colour) {
  cairo_set_source_rgb(cairo_.get(), (colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0,
                       (colour & 0xFF) / 255.0);
}

void CairoCanvas::trace(std::span<const Vec> points) {
  for (const Vec& point : points) cairo_line_to(cairo_.get(), point.x, point.y);
  cairo_close_path(cairo_.get());
}

void CairoCanvas::startAt(Vec origin) {
  cairo_identity_matrix(cairo_.get());
  cairo_translate(cairo_.get(), origin.x, origin.y);
}

void CairoCanvas::fillRect(const Rect& rect, Rgb colour) {
  ink(colour);
  cairo_rectangle(cairo_.get(), rect.x, rect.y, rect.w, rect.h);
  cairo_fill(cairo_.get());
}

void CairoCanvas::fillPolygon(std::span<const Vec> points, Rgb colour) {
  ink(colour);
  trace(points);
  cairo_fill(cairo_.get());
}

void CairoCanvas::strokePolygon(std::span<const Vec> points, Rgb colour, double width) {
  ink(colour);
  trace(points);
  cairo_set_line_width(cairo_.get(), width);
  cairo_stroke(cairo_.get());
}

void CairoCanvas::fillEllipse(Vec centre, Vec radii, Rgb colour) {
  cairo_t* cairo = cairo_.get();
  ink(colour);
  cairo_save(cairo);
  cairo_translate(cairo, centre.x, centre.y);
  cairo_scale(cairo, radii.x, radii.y);
  cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(cairo);
  cairo_fill(cairo);
}

void CairoCanvas::line(Vec from, Vec to, Rgb colour, double width) {
  ink(colour);
  cairo_move_to(cairo_.get(), from.x, from.y);
  cairo_line_to(cairo_.get(), to.x, to.y);
  cairo_set_line_width(cairo_.get(), width);
  cairo_stroke(cairo_.get());
}

void CairoCanvas::text(std::string_view text, const Typeface& face, Vec start, Rgb colour) {
  cairo_t* cairo = cairo_.get();
  CairoFont& font = fonts_.find(face);
  ink(colour);
  for (const auto& [glyph, x] : font.letters(text)) {
    cairo_save(cairo);
    cairo_translate(cairo, start.x + x * face.em, start.y);
    cairo_scale(cairo, face.em / kOutlineEm, face.em / kOutlineEm * face.stretch);
    font.trace(cairo, glyph);
    cairo_restore(cairo);
  }
  cairo_fill(cairo);
}

void CairoCanvas::copy(Canvas& from, Vec at) {
  auto& drawn = static_cast<CairoCanvas&>(from);
  drawn.cairo_ = nullptr;  // a context takes as much memory as a small picture
  cairo_set_source_surface(cairo_.get(), drawn.surface_.get(), at.x, at.y);
  cairo_paint(cairo_.get());
}

void CairoCanvas::clip(const Rect& rect) {
  cairo_save(cairo_.get());
  cairo_rectangle(cairo_.get(), rect.x, rect.y, rect.w, rect.h);
  cairo_clip(cairo_.get());
}

}  // namespace tombolario
