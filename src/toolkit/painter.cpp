#include "toolkit/painter.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "toolkit/picture.hpp"

namespace tombolario {

namespace {

/// From one drawing to the next no more is kept than this many bytes of drawn pictures.
constexpr std::size_t kMostPictureBytes = std::size_t{32} << 20;

Typeface typefaceOf(const Font& font, double scale) {
  const double em = font.points * 96 / 72 * scale;
  if (font.face == Face::Heavy) return {"Roboto,Arial Black,Liberation Sans,sans-serif", 900, em};
  return {"Liberation Sans,Arial,sans-serif", font.bold ? 700 : 400, em};
}

/// The share of the free room of a box that lies left of its text.
constexpr double shareOf(Align align) { return align == Align::Left ? 0 : align == Align::Centre ? 0.5 : 1; }

}  // namespace

Size deviceSize(Size size, double scale) {
  const auto pixels = [scale](int length) {
    return std::max(1, static_cast<int>(std::lround(length * scale)));
  };
  return {pixels(size.width), pixels(size.height)};
}

void PictureCache::begin(double scale) {
  if (scale == scale_ && bytes_ <= kMostPictureBytes) return;
  kept_.clear();
  bytes_ = 0;
  scale_ = scale;
}

Canvas& PictureCache::drawn(const PictureId& picture, double scale, bool dimmed, Canvas& device) {
  const Key key(&picture.store(), picture.index(), scale, dimmed);
  if (const auto kept = kept_.find(key); kept != kept_.end()) return *kept->second;
  const Size size = deviceSize(picture.size(), scale);
  std::unique_ptr<Canvas> canvas = device.make(size);
  Painter painter(*canvas, *this, scale);
  picture.draw(painter);  // which may draw other pictures, and so change what is kept
  if (dimmed) canvas->veil(kVeil);
  bytes_ += std::size_t{4} * static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
  return *(kept_[key] = std::move(canvas));
}

Vec Painter::device(Vec point) const {
  const auto& [origin, scale] = places_.back();
  return {origin.x + point.x * scale, origin.y + point.y * scale};
}

std::vector<Vec> Painter::device(std::span<const Vec> points) const {
  std::vector<Vec> path;
  path.reserve(points.size());
  for (const Vec& point : points) path.push_back(device(point));
  return path;
}

Vec Painter::wholeDevice(Vec point) const {
  const Vec at = device(point);
  return {std::round(at.x), std::round(at.y)};
}

Rect Painter::wholeDevice(const Rect& rect) const {
  const Vec from = wholeDevice(Vec{rect.x, rect.y});
  const Vec to = wholeDevice(Vec{rect.x + rect.w, rect.y + rect.h});
  // Nothing that has a size vanishes at a small scale.
  return {from.x, from.y, std::max(to.x - from.x, rect.w > 0 ? 1.0 : 0),
          std::max(to.y - from.y, rect.h > 0 ? 1.0 : 0)};
}

void Painter::fillRect(const Rect& rect, Rgb colour) { canvas_.fillRect(wholeDevice(rect), colour); }

void Painter::outlineRect(const Rect& rect, Rgb colour, double width) {
  const Rect r = wholeDevice(rect);
  const double w = std::max(1.0, std::round(width * scale()));
  canvas_.fillRect({r.x, r.y, r.w, w}, colour);
  canvas_.fillRect({r.x, r.y + r.h - w, r.w, w}, colour);
  canvas_.fillRect({r.x, r.y + w, w, r.h - 2 * w}, colour);
  canvas_.fillRect({r.x + r.w - w, r.y + w, w, r.h - 2 * w}, colour);
}

void Painter::fillPolygon(std::span<const Vec> points, Rgb colour) {
  canvas_.fillPolygon(device(points), colour);
}

void Painter::fillPolygon(std::span<const Vec> points, const Gradient& gradient) {
  canvas_.fillPolygon(device(points),
                      {gradient.shape, device(gradient.from), device(gradient.to), gradient.colours});
}

void Painter::outlinePolygon(std::span<const Vec> points, Rgb colour, double width) {
  canvas_.strokePolygon(device(points), colour, width * scale());
}

void Painter::fillEllipse(const Rect& bounds, Rgb colour) {
  canvas_.fillEllipse(device(Vec{bounds.x + bounds.w / 2, bounds.y + bounds.h / 2}),
                      {bounds.w / 2 * scale(), bounds.h / 2 * scale()}, colour);
}

void Painter::line(Vec from, Vec to, Rgb colour, double width) {
  canvas_.line(device(from), device(to), colour, width * scale());
}

void Painter::text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) {
  // Text is centred by its capitals, since most of it is capitals.
  constexpr double kCapsOfEm = 0.715;  // in a sans serif
  const Typeface face = typefaceOf(font, scale());
  const Vec middle = device(Vec{box.x, box.y + box.h / 2});
  const double room = box.w * scale() - canvas_.textWidth(text, face);
  canvas_.text(text, face, {middle.x + room * shareOf(align), std::round(middle.y + face.em * kCapsOfEm / 2)},
               colour);
}

double Painter::textWidth(std::string_view text, const Font& font) {
  return canvas_.textWidth(text, typefaceOf(font, scale())) / scale();
}

void Painter::picture(const PictureId& picture, Vec at, bool dimmed) {
  if (picture) canvas_.copy(pictures_.drawn(picture, scale(), dimmed, canvas_), wholeDevice(at));
}

void Painter::enter(const Rect& rect, double zoom) {
  const Rect clip = wholeDevice(rect);
  places_.push_back({{clip.x, clip.y}, scale() * zoom});
  canvas_.clip(clip);
}

void Painter::leave() {
  canvas_.unclip();
  places_.pop_back();
}

void drawAlone(const PictureId& picture, Canvas& canvas, double scale) {
  PictureCache pictures;
  Painter painter(canvas, scale, pictures);
  picture.draw(painter);
}

}  // namespace tombolario
