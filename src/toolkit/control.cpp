#include "toolkit/control.hpp"

#include <cmath>
#include <stdexcept>
#include <utility>

#include "toolkit/contrast.hpp"
#include "toolkit/form.hpp"

namespace tombolario {

namespace {

/// The pixels that a box of twips takes, whole ones.
Rect pixels(Point at, int width, int height) {
  const auto pixel = [](int twips) { return std::round(twips / double{kTwipsPerPixel}); };
  const double x = pixel(at.x);
  const double y = pixel(at.y);
  return {x, y, pixel(at.x + width) - x, pixel(at.y + height) - y};
}

}  // namespace

std::string Name::text() const {
  std::string text(base);
  return inArray ? text + '(' + std::to_string(index) + ')' : text;
}

Control::Control(Control& parent, Name name, Box box, std::string caption, const Look& look)
    : Visible(*this, look.visible),
      BackColor(*this, look.back),
      ForeColor(*this, look.fore),
      Caption(*this, std::move(caption)),
      Picture(*this, look.picture),
      Left(*this, box.left),
      Top(*this, box.top),
      Width(*this, box.width),
      Height(*this, box.height),
      form_(made(parent, name).form_),
      parent_(&parent),
      name_(name),
      about_(look.about),
      backAtRest_(look.back),
      font_(look.font),
      align_(look.align),
      border_(look.border) {
  parent.children_.push_back(this);
  form_.enrol(*this);
}

/// A member that is declared below its child is still raw memory.
Control& Control::made(Control& parent, const Name& child) {
  if (parent.self_ != &parent) throw std::logic_error(child.text() + " is made before its parent");
  return parent;
}

Control::Control(Form& self, Name name, Box box, Colour back)
    : Visible(*this, true),
      BackColor(*this, back),
      ForeColor(*this, kBlack),
      Caption(*this, ""),
      Picture(*this, {}),
      Left(*this, box.left),
      Top(*this, box.top),
      Width(*this, box.width),
      Height(*this, box.height),
      form_(self),
      parent_(nullptr),
      name_(name),
      backAtRest_(back) {}

bool Control::onView() const { return Visible && (parent_ == nullptr || parent_->onView()); }

bool Control::operable() const { return Enabled && (parent_ == nullptr || parent_->operable()); }

Point Control::origin() const {
  if (parent_ == nullptr) return {};
  return parent_->origin() + Point{parent_->inset() + Left, parent_->inset() + Top};
}

bool Control::contains(Point point) const {
  return point.x >= 0 && point.x < Width && point.y >= 0 && point.y < Height;
}

Control* Control::at(Point point) {
  if (!Visible || !takesMouse() || !contains(point)) return nullptr;
  const Point inside = point - Point{inset(), inset()};
  for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
    if (Control* hit = (*child)->at(inside - Point{(*child)->Left, (*child)->Top})) return hit;
  }
  return this;
}

/// Where something else lies against a child without lines of its own, or a pixel of the ground, which is a
/// line, lies between the two. What lies on a picture lies between the picture's lines.
Sides Control::linesAgainst(const Control& child, const Rect& box) const {
  if (Picture.get()) return {true, true, true, true};
  const auto within = [](double from, double length, double otherFrom, double otherLength) {
    return from < otherFrom + otherLength && otherFrom < from + length;
  };
  Sides lines;
  for (const Control* other : children_) {
    if (other == &child || !other->Visible) continue;
    const Rect near = pixels({other->Left, other->Top}, other->Width, other->Height);
    if (within(box.y, box.h, near.y, near.h)) {
      lines.left |= near.x + near.w == box.x - 1;
      lines.right |= near.x == box.x + box.w || near.x == box.x + box.w + 1;
    }
    if (within(box.x, box.w, near.x, near.w)) {
      lines.top |= near.y + near.h == box.y - 1;
      lines.bottom |= near.y == box.y + box.h || near.y == box.y + box.h + 1;
    }
  }
  return lines;
}

void Control::paint(Painter& painter, const Rect& bounds) const {
  draw(painter, bounds);
  if (children_.empty()) return;
  if (inset() != 0) painter.enterInside(bounds);
  for (const Control* child : children_) {
    if (!child->Visible) continue;
    const Rect box = pixels({child->Left, child->Top}, child->Width, child->Height);
    painter.enterEdged(box, child->edged() ? Sides{} : linesAgainst(*child, box));
    child->paint(painter, {0, 0, box.w, box.h});
    painter.leave();
  }
  if (inset() != 0) painter.leave();
}

Rgb Control::ink() const {
  const Rgb ink = ForeColor.get().rgb();
  return Enabled ? ink : quiet(ink, BackColor.get().rgb());
}

std::optional<Rgb> Control::quietOn() const {
  return Enabled ? std::nullopt : std::optional(BackColor.get().rgb());
}

void Control::changed() { form_.redraw(); }

}  // namespace tombolario
