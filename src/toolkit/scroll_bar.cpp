#include "toolkit/scroll_bar.hpp"

#include <algorithm>
#include <array>

#include "toolkit/edges.hpp"
#include "toolkit/form.hpp"

namespace tombolario {

namespace {

Rect stretch(bool horizontal, const Rect& bounds, int from, int length) {
  const double unit = kTwipsPerPixel;
  if (horizontal) return {bounds.x + from / unit, bounds.y, length / unit, bounds.h};
  return {bounds.x, bounds.y + from / unit, bounds.w, length / unit};
}

/// A small triangle in the middle of an arrow button, towards (dx, dy).
void drawArrow(Painter& painter, const Rect& button, int dx, int dy, Rgb colour) {
  const double s = std::min(button.w, button.h) / 5;
  const Vec c{button.x + button.w / 2, button.y + button.h / 2};
  const std::array<Vec, 3> points{Vec{c.x + dx * s * 0.7, c.y + dy * s * 0.7},
                                  Vec{c.x - dx * s * 0.7 - dy * s, c.y - dy * s * 0.7 - dx * s},
                                  Vec{c.x - dx * s * 0.7 + dy * s, c.y - dy * s * 0.7 + dx * s}};
  painter.fillPolygon(points, colour);
}

}  // namespace

int ScrollBar::arrowLength() const {
  const int thickness = direction_ == Direction::Horizontal ? Height : Width;
  return std::min(thickness, length() / 3);
}

int ScrollBar::thumbLength() const {
  return std::clamp(trackLength() / (range() + 1), std::min(arrowLength(), trackLength()), trackLength());
}

int ScrollBar::thumbStart() const {
  const int room = trackLength() - thumbLength();
  return arrowLength() + static_cast<int>(1LL * room * (Value - Min) / range());
}

void ScrollBar::changed() {
  Control::changed();
  Value = std::max(Min.get(), std::min(Max.get(), Value.get()));
  if (announced_ == Value) return;
  announced_ = Value;
  if (onChange) onChange();
}

void ScrollBar::leftDown(Point point) {
  const int place = along(point);
  pressed_ = Part::None;
  if (place < arrowLength()) {
    pressed_ = Part::LowArrow;
    Value = Value - 1;
  } else if (place >= length() - arrowLength()) {
    pressed_ = Part::HighArrow;
    Value = Value + 1;
  } else if (range() == 0) {
    return;
  } else if (place < thumbStart()) {
    Value = Value - 1;
  } else if (place >= thumbStart() + thumbLength()) {
    Value = Value + 1;
  } else {
    pressed_ = Part::Thumb;
    grip_ = place - thumbStart();
  }
}

void ScrollBar::leftDrag(Point point) {
  const int room = trackLength() - thumbLength();
  if (pressed_ != Part::Thumb || room <= 0) return;
  const int start = std::clamp(along(point) - grip_ - arrowLength(), 0, room);
  Value = Min + static_cast<int>((1LL * start * range() + room / 2) / room);
}

void ScrollBar::draw(Painter& painter, const Rect& bounds) const {
  const bool horizontal = direction_ == Direction::Horizontal;
  const bool down = form().holdsDown(*this);
  const Rgb face = BackColor.get().rgb();
  const Rgb ink = Enabled && range() > 0 ? kBlack : classicPalette(SystemColour::ButtonShadow);
  const auto button = [&](int from, int length, bool sunken) {
    const Rect rect = stretch(horizontal, bounds, from, length);
    painter.fillRect(rect, face);
    drawEdge(painter, rect, sunken ? Edge::Pressed : Edge::Raised);
    return rect;
  };
  painter.fillRect(bounds, classicPalette(SystemColour::Light3d));
  const Rect low = button(0, arrowLength(), down && pressed_ == Part::LowArrow);
  const Rect high = button(length() - arrowLength(), arrowLength(), down && pressed_ == Part::HighArrow);
  drawArrow(painter, low, horizontal ? -1 : 0, horizontal ? 0 : -1, ink);
  drawArrow(painter, high, horizontal ? 1 : 0, horizontal ? 0 : 1, ink);
  if (range() > 0) button(thumbStart(), thumbLength(), false);
}

}  // namespace tombolario
