// The page on a room that the test scripts: the driver's commands beside the real pointer.

#include <emscripten.h>

#include "driver/driver.hpp"
#include "web/browser.hpp"
#include "web/page.hpp"

namespace tombolario {

namespace {

struct ScriptedRoom {
  ScriptedRoom() { driver.answer("start"); }

  BrowserFiles dataFiles;
  Driver driver{nullptr, dataFiles};
  Page page{driver.form()};
  std::string answer;
};

ScriptedRoom& scripted() {
  static ScriptedRoom room;
  return room;
}

}  // namespace

extern "C" {
EMSCRIPTEN_KEEPALIVE Page* page_open() { return &scripted().page; }

EMSCRIPTEN_KEEPALIVE const char* scripted_answer(const char* line) {
  return (scripted().answer = scripted().driver.answer(line)).c_str();
}

/// The middle of a control in twips of the window.
EMSCRIPTEN_KEEPALIVE const char* scripted_centre(const char* name) {
  const Control& control = *scripted().driver.form().find(name);
  const Point centre = control.origin() + Point{control.Width / 2, control.Height / 2};
  return (scripted().answer = std::to_string(centre.x) + ' ' + std::to_string(centre.y)).c_str();
}
}

}  // namespace tombolario
