#include "toolkit/form.hpp"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tombolario {

namespace {

unsigned bit(MouseButton button) { return 1U << static_cast<unsigned>(button); }

bool live(const Control* control) { return control != nullptr && control->onView() && control->operable(); }

}  // namespace

Form::Form(Name name, Box box, Colour back, std::string caption) : Control(*this, name, box, back) {
  Caption = std::move(caption);
}

Control* Form::underMouse() { return at(mouse_); }

Control* Form::target() { return held_ != 0 ? captured_ : underMouse(); }

void Form::updateSunken() {
  Control* sunken = armed_ != nullptr && underMouse() == armed_ ? armed_ : nullptr;
  const Control* before = std::exchange(sunken_, sunken);
  if (before == sunken) return;
  if ((before != nullptr && before->sinks()) || (sunken != nullptr && sunken->sinks())) redraw();
}

void Form::mouseMove(Point point) {
  mouse_ = point;
  updateSunken();
  Control* control = target();
  if (!live(control)) return;
  const Point local = mouse_ - control->origin();
  if (control == armed_) control->leftDrag(local);
  if (control->onMouseMove) control->onMouseMove(local);
}

void Form::mouseDown(MouseButton button) {
  if ((held_ & bit(button)) != 0) mouseLost();
  if (held_ == 0) captured_ = underMouse();
  held_ |= bit(button);
  if (!live(captured_)) return;
  if (button == MouseButton::Left && underMouse() == captured_) {
    armed_ = captured_;
    updateSunken();
    captured_->leftDown(mouse_ - captured_->origin());
  }
  if (captured_->onMouseDown) captured_->onMouseDown(button);
  if (!captured_->onView()) letGo();
}

void Form::mouseLost() {
  armed_ = nullptr;
  for (unsigned button = 0; held_ != 0; ++button) mouseUp(static_cast<MouseButton>(button));
}

void Form::letGo() {
  held_ = 0;
  armed_ = nullptr;
  updateSunken();
}

void Form::mouseUp(MouseButton button) {
  if ((held_ & bit(button)) == 0) return;
  held_ &= ~bit(button);
  Control* control = captured_;
  const bool clicked = button == MouseButton::Left && armed_ != nullptr && underMouse() == armed_;
  if (button == MouseButton::Left) {
    armed_ = nullptr;
    updateSunken();
  }
  if (!live(control)) return;
  if (control->onMouseUp) control->onMouseUp(button);
  if (clicked && live(control)) control->click();
}

PictureId Form::cursor() {
  const Control* control = target();
  return live(control) && control->MousePointer == kCustomPointer ? control->MouseIcon.get() : PictureId{};
}

void Form::paint(Painter& painter) const {
  const double unit = kTwipsPerPixel;
  const Rect bounds{0, 0, Width / unit, Height / unit};
  painter.enter(bounds);
  Control::paint(painter, bounds);
  painter.leave();
}

void Form::repaint(Painter& painter) {
  paint(painter);
  needsDrawing_ = false;
}

const Control& Form::inSight() const {
  const auto screen = std::find_if(children().rbegin(), children().rend(),
                                   [](const Control* child) { return child->Visible.get(); });
  return screen != children().rend() ? **screen : static_cast<const Control&>(*this);
}

void Form::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, BackColor.get().rgb());
}

Control* Form::find(std::string_view wanted) {
  if (wanted == name().text()) return this;
  const auto found = byName_.find(std::string(wanted));
  return found != byName_.end() ? found->second : nullptr;
}

void Form::enrol(Control& control) {
  const std::string name = control.name().text();
  if (!byName_.emplace(name, &control).second) throw std::logic_error("two controls are called " + name);
  controls_.push_back(&control);
}

}  // namespace tombolario
