#include <emscripten.h>

#include "room/room.hpp"
#include "web/browser.hpp"
#include "web/page.hpp"

namespace tombolario {

namespace {

struct OpenRoom {
  OpenRoom() { room.Form_Load(); }

  BrowserHost host;
  Room room{host};
  Page page{room.form()};
};

}  // namespace

/// Starts a room, which lives as long as the page of the browser.
extern "C" EMSCRIPTEN_KEEPALIVE Page* page_open() { return &(new OpenRoom)->page; }

}  // namespace tombolario
