#include "web/page.hpp"

#include <emscripten.h>

#include <algorithm>
#include <utility>

#include "toolkit/reading.hpp"
#include "web/browser_canvas.hpp"

namespace tombolario {

namespace {

/// Browsers show no cursor that is larger, in units of the style sheets.
constexpr double kLargestCursor = 128;

extern "C" {
/// The cursor has that many pixels to a unit of the style sheets; its hot spot is in such units.
void cursor_show(int canvas, double density, double hotX, double hotY);
void cursor_reset();
/// What is to be heard: a line for the screen, then one for each control.
void reading_tell(const char* lines);
/// Where the room lies on the page, in units of the style sheets, and how large a pixel of it is there.
void reading_place(double x, double y, double scale);
}

const char* wordOf(Role role) {
  switch (role) {
    case Role::Ground: break;
    case Role::Group: return "radiogroup";
    case Role::Text: return "text";
    case Role::Picture: return "img";
    case Role::Button:
    case Role::Tile: return "button";
    case Role::Option: return "radio";
    case Role::Bar: return "scrollbar";
  }
  return "";
}

/// The parts of a line are parted by tabs, which no text of the room has.
std::string lineOf(const Reading& reading) {
  const Control& control = *reading.control;
  std::string line = control.name().text() + '\t' + wordOf(reading.role);
  const auto add = [&line](const std::string& part) { line += '\t' + part; };
  for (const int twips : {reading.box.left, reading.box.top, reading.box.width, reading.box.height})
    add(std::to_string(twips / kTwipsPerPixel));
  add(reading.group != nullptr ? reading.group->name().text() : "");
  for (const int number :
       {int{control.operable()}, control.Value.get(), control.Min.get(), control.Max.get()})
    add(std::to_string(number));
  add(reading.name);
  add(reading.news);
  return line + '\n';
}

}  // namespace

void Page::fit(int width, int height, int below, double density) {
  view_.fit(width, height, below);
  density_ = density;
  placed();
}

void Page::enlarge(double times, Vec from, Vec to) {
  view_.enlarge(times, from, to);
  placed();
}

void Page::placed() {
  reading_place(view_.marginX() / density_, view_.marginY() / density_, view_.scale() / density_);
  showCursor();
}

void Page::pointer(double x, double y, unsigned buttons) {
  view_.mouseAt(x, y);
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle,
                                   MouseButton::Back, MouseButton::Forward}) {
    const unsigned bit = 1U << static_cast<unsigned>(button);
    if ((buttons & ~buttons_ & bit) != 0) form_.mouseDown(button);
    if ((buttons_ & ~buttons & bit) != 0) form_.mouseUp(button);
  }
  buttons_ = buttons;
  showCursor();
}

Page::Press Page::pressAt(double x, double y) {
  const Control* control = form_.at(view_.placeInRoom(x, y));
  if (control == nullptr || !control->operable()) return Press::Nothing;
  if (control->onMouseDown) return control->onMouseUp ? Press::CanBeTakenBack : Press::ActsAtOnce;
  return control->sinks() ? Press::CanBeTakenBack : Press::Nothing;
}

void Page::lose() {
  form_.mouseLost();
  buttons_ = 0;
  showCursor();
}

void Page::draw() {
  BrowserCanvas canvas;
  view_.paint(canvas);
  tell();
}

/// What has not changed is not told again.
void Page::tell() {
  const Control& screen = form_.inSight();
  std::string lines = screen.name().text() + '\t' + screen.about() + '\n';
  for (const Reading& reading : readingOf(form_)) lines += lineOf(reading);
  if (lines == told_) return;
  told_ = std::move(lines);
  reading_tell(told_.c_str());
}

void Page::showCursor() {
  const auto wanted = view_.newCursor();
  if (!wanted) return;
  if (!*wanted) {
    cursor_reset();
    return;
  }
  const Size size = wanted->size();
  const double largest = kLargestCursor * density_ / std::max(size.width, size.height);
  const double scale = std::min(view_.scale(), largest);
  const Vec hot = wanted->store().hotSpot;
  BrowserCanvas canvas(deviceSize(size, scale));
  drawAlone(*wanted, canvas, scale);
  cursor_show(canvas.handle(), density_, (hot.x + 0.5) * scale / density_, (hot.y + 0.5) * scale / density_);
}

// What the script of the page calls.
extern "C" {
EMSCRIPTEN_KEEPALIVE void page_fit(Page* page, int width, int height, int below, double density) {
  page->fit(width, height, below, density);
}
EMSCRIPTEN_KEEPALIVE void page_enlarge(Page* page, double times, double fromX, double fromY, double toX,
                                       double toY) {
  page->enlarge(times, {fromX, fromY}, {toX, toY});
}
EMSCRIPTEN_KEEPALIVE bool page_enlarged(const Page* page) { return page->enlarged(); }
EMSCRIPTEN_KEEPALIVE Page::Press page_press_at(Page* page, double x, double y) { return page->pressAt(x, y); }
EMSCRIPTEN_KEEPALIVE void page_pointer(Page* page, double x, double y, unsigned buttons) {
  page->pointer(x, y, buttons);
}
EMSCRIPTEN_KEEPALIVE void page_pointer_in_room(Page* page, double x, double y, unsigned buttons) {
  page->pointerInRoom(x, y, buttons);
}
EMSCRIPTEN_KEEPALIVE void page_lose(Page* page) { page->lose(); }
EMSCRIPTEN_KEEPALIVE bool page_needs_drawing(const Page* page) { return page->needsDrawing(); }
EMSCRIPTEN_KEEPALIVE void page_draw(Page* page) { page->draw(); }
EMSCRIPTEN_KEEPALIVE void page_forget(Page* page) { page->forget(); }
}

}  // namespace tombolario
