#include "toolkit/painter.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "toolkit/contrast.hpp"
#include "toolkit/picture.hpp"

namespace tombolario {

namespace {

/// From one drawing to the next no more is kept than this many bytes of drawn pictures.
constexpr std::size_t kMostPictureBytes = std::size_t{32} << 20;

/// In pixels of the room: an edged place that is no thicker is nothing but a line.
constexpr double kThickestLine = 4;

/// The place of a drawing as a whole ends nowhere.
constexpr double kEndless = std::numeric_limits<double>::infinity();

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

Canvas& PictureCache::drawn(const PictureId& picture, Size size, double scale, std::optional<Rgb> quietOn,
                            Canvas& device) {
  const Key key(&picture.store(), picture.index(), size.width, size.height, quietOn);
  if (const auto kept = kept_.find(key); kept != kept_.end()) return *kept->second;
  std::unique_ptr<Canvas> canvas = device.make(size);
  Painter painter(*canvas, *this, scale, Painter::filledBy(picture, 0, 0, size.width, size.height), quietOn);
  picture.draw(painter);  // which may draw other pictures, and so change what is kept
  bytes_ += std::size_t{4} * static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
  return *(kept_[key] = std::move(canvas));
}

Painter::Painter(Canvas& canvas, double scale, PictureCache& pictures)
    : canvas_(canvas),
      pictures_(pictures),
      scale_(scale),
      places_{{{scale, 0, kEndless, 0, kEndless}, {scale, 0, kEndless, 0, kEndless}}} {
  pictures.begin(scale);
}

Painter::Place Painter::filledBy(const PictureId& picture, double x, double y, double width, double height) {
  const auto stretch = [](double begin, double device, int length) {
    const double scale = device / length;
    return Stretch{scale, begin / scale, static_cast<double>(length), begin, begin + device};
  };
  return {stretch(x, width, picture.size().width), stretch(y, height, picture.size().height)};
}

double Painter::thickness(double width) const { return std::max(1.0, std::round(width * scale_)); }

double Painter::edge(const Stretch& along, double at) {
  if (at == 0) return along.begin;
  if (at == along.length) return along.end;
  return std::round((along.first + at) * along.scale);
}

double Painter::point(const Stretch& along, double at) {
  return at == along.length ? along.end : along.begin + at * along.scale;
}

Painter::Stretch Painter::part(const Stretch& along, double from, double length) {
  const double begin = edge(along, from);
  return {along.scale, along.first + from, length, begin, std::max(begin, edge(along, from + length))};
}

Painter::Stretch Painter::edged(const Stretch& along, double from, double length, bool lineBefore,
                                bool lineBehind) const {
  Stretch part = Painter::part(along, from, length);
  if (lineBefore && from != 0) part.begin = edge(along, from - 1) + thickness(1);
  if (length <= kThickestLine) {
    part.end = part.begin + thickness(length);
  } else if (!lineBehind && from + length != along.length) {
    part.end = edge(along, from + length - 1) + thickness(1);
  }
  return part;
}

Painter::Stretch Painter::inside(const Stretch& along) const {
  const double line = thickness(1);
  const double begin = along.begin + line;
  return {along.scale, along.first + 1, along.length - 2, begin, std::max(begin, along.end - line)};
}

Painter::Stretch Painter::filled(const Stretch& along, double from, double length) const {
  Stretch part = Painter::part(along, from, length);
  if (length > 1) {
    part.end = std::max(part.end, part.begin + 1);
  } else if (length > 0) {
    if (from + length == along.length) {
      part.begin = part.end - thickness(length);
    } else {
      part.end = part.begin + thickness(length);
    }
  }
  return part;
}

Painter::Place Painter::area(const Rect& rect) const {
  const auto& [x, y] = places_.back();
  return {part(x, rect.x, rect.w), part(y, rect.y, rect.h)};
}

Vec Painter::device(Vec at) const {
  const auto& [x, y] = places_.back();
  return {x.begin + at.x * x.scale, y.begin + at.y * y.scale};
}

std::vector<Vec> Painter::device(std::span<const Vec> points) const {
  std::vector<Vec> path;
  path.reserve(points.size());
  for (const Vec& point : points) path.push_back(device(point));
  return path;
}

Rgb Painter::ink(Rgb colour) const { return ground_ ? quiet(colour, *ground_) : colour; }

void Painter::fillRect(const Rect& rect, Rgb colour) {
  const auto& [allX, allY] = places_.back();
  const Stretch x = filled(allX, rect.x, rect.w);
  const Stretch y = filled(allY, rect.y, rect.h);
  // What covers all of a quiet drawing is its ground.
  const bool covers = rect.x <= 0 && rect.y <= 0 && rect.w >= allX.length && rect.h >= allY.length;
  if (ground_ && places_.size() == 1 && covers) ground_ = colour;
  canvas_.fillRect({x.begin, y.begin, x.end - x.begin, y.end - y.begin},
                   ground_ == colour ? colour : ink(colour));
}

void Painter::bar(const Rect& rect, Rgb colour) {
  const auto [x, y] = area(rect);
  const bool upright = rect.w < rect.h;
  canvas_.fillRect({x.begin, y.begin, upright ? thickness(rect.w) : x.end - x.begin,
                    upright ? y.end - y.begin : thickness(rect.h)},
                   ink(colour));
}

void Painter::outlineRect(const Rect& rect, Rgb colour, double width) {
  const auto [x, y] = area(rect);
  const double w = thickness(width);
  const Rgb seen = ink(colour);
  canvas_.fillRect({x.begin, y.begin, x.end - x.begin, w}, seen);
  canvas_.fillRect({x.begin, y.end - w, x.end - x.begin, w}, seen);
  canvas_.fillRect({x.begin, y.begin + w, w, y.end - y.begin - 2 * w}, seen);
  canvas_.fillRect({x.end - w, y.begin + w, w, y.end - y.begin - 2 * w}, seen);
}

void Painter::bevel(const Rect& rect, int layer, Rgb leftTop, Rgb rightBottom) {
  const auto [x, y] = area(rect);
  const double w = thickness(1);
  const double left = x.begin + layer * w;
  const double top = y.begin + layer * w;
  const double right = x.end - layer * w;
  const double bottom = y.end - layer * w;
  canvas_.fillRect({left, top, right - left - w, w}, leftTop);
  canvas_.fillRect({left, top, w, bottom - top - w}, leftTop);
  canvas_.fillRect({left, bottom - w, right - left, w}, rightBottom);
  canvas_.fillRect({right - w, top, w, bottom - top}, rightBottom);
}

void Painter::fillPolygon(std::span<const Vec> points, Rgb colour) {
  canvas_.fillPolygon(device(points), ink(colour));
}

void Painter::fillPolygon(std::span<const Vec> points, const Gradient& gradient) {
  std::vector<Rgb> colours;
  for (const Rgb colour : gradient.colours) colours.push_back(ink(colour));
  canvas_.fillPolygon(device(points), {gradient.shape, device(gradient.from), device(gradient.to), colours});
}

void Painter::outlinePolygon(std::span<const Vec> points, Rgb colour, double width) {
  canvas_.strokePolygon(device(points), ink(colour), width * scale_);
}

void Painter::fillEllipse(const Rect& bounds, Rgb colour) {
  const auto& [x, y] = places_.back();
  canvas_.fillEllipse(device(Vec{bounds.x + bounds.w / 2, bounds.y + bounds.h / 2}),
                      {bounds.w / 2 * x.scale, bounds.h / 2 * y.scale}, ink(colour));
}

void Painter::line(Vec from, Vec to, Rgb colour, double width) {
  canvas_.line(device(from), device(to), ink(colour), width * scale_);
}

void Painter::text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) {
  const auto& [x, y] = places_.back();
  Typeface face = typefaceOf(font, scale_);
  const double capitals = canvas_.capHeight(face);
  if (capitals <= 0) return;
  // Capitals stand on whole pixels and reach up to whole pixels, which keeps their bars sharp.
  const double height = std::max(1.0, std::round(capitals));
  face.stretch = height / capitals;
  const double left = point(x, box.x);
  const double free = point(x, box.x + box.w) - left - canvas_.textWidth(text, face);
  const double above = (point(y, box.y) + point(y, box.y + box.h) - height) / 2;
  canvas_.text(text, face, {left + free * shareOf(align), std::ceil(above - 0.5) + height}, ink(colour));
}

double Painter::textWidth(std::string_view text, const Font& font) {
  return canvas_.textWidth(text, typefaceOf(font, scale_)) / scale_;
}

void Painter::picture(const PictureId& picture, Vec at) {
  const Size size = picture.size();
  this->picture(picture, {at.x, at.y, static_cast<double>(size.width), static_cast<double>(size.height)});
}

void Painter::picture(const PictureId& picture, const Rect& rect, std::optional<Rgb> quietOn) {
  if (!picture) return;
  const auto [x, y] = area(rect);
  const Size size{std::max(1, static_cast<int>(x.end - x.begin)),
                  std::max(1, static_cast<int>(y.end - y.begin))};
  const double scale = scale_ * rect.w / picture.size().width;
  canvas_.copy(pictures_.drawn(picture, size, scale, quietOn ? quietOn : ground_, canvas_),
               {x.begin, y.begin});
}

void Painter::drawing(const PictureId& picture, const Rect& rect) {
  const auto [x, y] = area(rect);
  canvas_.clip({x.begin, y.begin, x.end - x.begin, y.end - y.begin});
  Painter painter(canvas_, pictures_, scale_ * rect.w / picture.size().width,
                  filledBy(picture, x.begin, y.begin, x.end - x.begin, y.end - y.begin), ground_);
  picture.draw(painter);
  canvas_.unclip();
}

void Painter::push(const Place& place) {
  places_.push_back(place);
  canvas_.clip({place.x.begin, place.y.begin, place.x.end - place.x.begin, place.y.end - place.y.begin});
}

void Painter::enter(const Rect& rect) { push(area(rect)); }

void Painter::enterEdged(const Rect& rect, const Sides& lines) {
  const auto& [x, y] = places_.back();
  push(
      {edged(x, rect.x, rect.w, lines.left, lines.right), edged(y, rect.y, rect.h, lines.top, lines.bottom)});
}

void Painter::enterInside(const Rect& rect) {
  const auto [x, y] = area(rect);
  push({inside(x), inside(y)});
}

void Painter::leave() {
  canvas_.unclip();
  places_.pop_back();
}

void drawAlone(const PictureId& picture, Canvas& canvas, double scale) {
  PictureCache pictures;
  Painter painter(canvas, scale, pictures);
  const Size size = picture.size();
  painter.drawing(picture, {0, 0, static_cast<double>(size.width), static_cast<double>(size.height)});
}

}  // namespace tombolario
