#include "desktop/cairo_fonts.hpp"

#include <cairo-ft.h>

#include <algorithm>
#include <span>
#include <string>

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

const cairo_path_t* CairoFont::outline(unsigned long glyph) {
  Owned<cairo_path_t>& outline = outlines_[glyph];
  if (outline == nullptr) {
    const Owned<cairo_surface_t> nowhere(cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr));
    const Owned<cairo_t> pen(cairo_create(nowhere.get()));
    const cairo_glyph_t letter{glyph, 0, 0};
    cairo_set_scaled_font(pen.get(), font_.get());
    cairo_glyph_path(pen.get(), &letter, 1);
    outline.reset(cairo_copy_path(pen.get()));
  }
  return outline.get();
}

void CairoFont::trace(cairo_t* context, std::string_view text, const Typeface& face, Vec start) {
  cairo_glyph_t* glyphs = nullptr;
  int count = 0;
  cairo_scaled_font_text_to_glyphs(font_.get(), 0, 0, text.data(), static_cast<int>(text.size()), &glyphs,
                                   &count, nullptr, nullptr, nullptr);
  const double scale = face.em / kOutlineEm;
  for (const cairo_glyph_t& glyph : std::span(glyphs, static_cast<std::size_t>(count))) {
    cairo_save(context);
    cairo_translate(context, start.x + glyph.x * scale, start.y);
    cairo_scale(context, scale, scale * face.stretch);
    cairo_append_path(context, outline(glyph.index));
    cairo_restore(context);
  }
  cairo_glyph_free(glyphs);
}

CairoFont& CairoFonts::find(const Typeface& face) {
  const std::pair<std::string_view, int> key(face.families, face.weight);
  const auto found = fonts_.find(key);
  return found != fonts_.end() ? found->second
                               : fonts_.try_emplace(key, face.families, face.weight).first->second;
}

}  // namespace tombolario
