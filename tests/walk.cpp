#include "walk.hpp"

#include <algorithm>
#include <cmath>

#include "null_canvas.hpp"

namespace tombolario {

Walk::Walk(std::span<const std::uint8_t> choices, const std::filesystem::path& directory)
    : choices_(choices), files_(directory) {
  files_.watch(form_);
  for (const char* name :
       {"Command5", "Command15", "Command55", "FINEDOM", "ramesc", "ALTRORAM", "FINECA", "MENUVP", "menupok",
        "MENUDOM", "MENURAM", "menucat", "Command17", "ALTRAPARTITAMAH"})
    leaves_.push_back(form_.find(name));
  for (const Control* control : form_.controls()) {
    const bool leaves = std::find(leaves_.begin(), leaves_.end(), control) != leaves_.end();
    if (control->sinks() && !leaves) buttons_.push_back(control);
  }
  host_.uniform().seed(pick(1 << 16));
  for (const int file : {14, 15}) files_.harm(file, 1 + pick(127));  // somebody has played here before
  room_.Form_Load();
  done();
}

void Walk::enter(int game) {
  entry_ = form_.find("commpr(" + std::to_string(game) + ")");
  require(entry_ != nullptr, "a game has a name, and no entry in the main menu");
  click(placeIn(*entry_));
  const auto other = [](const Control* button) { return button->name().base == "commpr"; };
  std::copy_if(buttons_.begin(), buttons_.end(), std::back_inserter(leaves_), other);
  std::erase_if(buttons_, other);
}

void Walk::play() {
  while (!choices_.empty()) step();
}

Reached Walk::reached() const {
  Reached all = invariants_.reached();
  all.merge(Reached(files_.reached()));
  return all;
}

int Walk::pick(int n) {
  int value = 0;
  for (int range = 1; range < n && !choices_.empty(); range *= 256) {
    value = value * 256 + choices_.front();
    choices_ = choices_.subspan(1);
  }
  return value % n;
}

void Walk::step() {
  if (pick(256) == 0 && pick(4) == 0) sense_ = 8 * pick(3);
  if (pick(16) < sense_) return playOn();
  switch (pick(16)) {
    case 0: move(anyPlace()); break;
    case 1: move(middleOfSomething()); break;
    case 2: press(anyButton()); break;
    case 3: release(anyButton()); break;
    case 4: useScrollBar(); break;
    case 5:
      if (pick(16) == 0) resize();
      break;
    case 6:
      if (pick(32) == 0) files_.harm(pick(16), pick(256));
      break;
    default: click(middleOfSomething()); break;
  }
}

/// With no other button down, which would hold the mouse.
void Walk::playOn() {
  form_.mouseLost();
  const bool astray = entry_ != nullptr && entry_->onView();
  click(middleOfOne(astray ? Row{entry_} : player_.moves()));
}

Point Walk::middleOfSomething() {
  const Row& choice = pick(1024) == 0 ? leaves_ : buttons_;
  Row onView;
  std::copy_if(choice.begin(), choice.end(), std::back_inserter(onView),
               [](const Control* control) { return control->onView(); });
  return middleOfOne(onView);
}

Point Walk::middleOfOne(const Row& controls) {
  if (controls.empty()) return anyPlace();
  const Control& control = *controls[static_cast<std::size_t>(pick(static_cast<int>(controls.size())))];
  return control.origin() + Point{control.Width / 2, control.Height / 2};
}

Point Walk::placeIn(const Control& control) {
  return control.origin() + Point{pick(control.Width), pick(control.Height)};
}

void Walk::useScrollBar() {
  for (const Control* bar : bars_) {
    if (!bar->onView()) continue;
    move(placeIn(*bar));
    press(MouseButton::Left);
    move(placeIn(*bar));
    release(MouseButton::Left);
  }
}

/// The window has another size, and is drawn.
void Walk::resize() {
  view_.fit(300 + pick(3000), 200 + pick(2000));
  NullCanvas canvas;
  view_.paint(canvas);
  require(!form_.needsDrawing(), "drawing changes what is drawn");
}

/// Through the pixels of the window, as the mouse comes.
void Walk::move(Point point) {
  const auto pixel = [this](int twips) { return std::round(twips * view_.scale() / kTwipsPerPixel); };
  view_.mouseAt(pixel(point.x) + view_.marginX(), pixel(point.y) + view_.marginY());
  done();
}

void Walk::press(MouseButton button) {
  form_.mouseDown(button);
  done();
}

void Walk::release(MouseButton button) {
  form_.mouseUp(button);
  done();
}

/// Now and then the left button stays down.
void Walk::click(Point point) {
  move(point);
  press(MouseButton::Left);
  release(anyButton() == MouseButton::Middle ? MouseButton::Middle : MouseButton::Left);
}

void Walk::done() {
  ++events_;
  invariants_.check();
}

}  // namespace tombolario
