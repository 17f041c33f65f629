#pragma once

#include <SDL.h>

#include <map>
#include <memory>

#include "desktop/cairo_painter.hpp"
#include "room/room.hpp"
#include "shell/clock_source.hpp"
#include "shell/data_directory.hpp"
#include "shell/view.hpp"

namespace tombolario {

/// The surroundings of the room on a desktop.
class DesktopHost : public Host {
 public:
  UniformSource& uniform() override { return uniform_; }
  void openAddress(const std::string& address) override { SDL_OpenURL(address.c_str()); }
  DataFiles& dataFiles() override { return dataFiles_; }

 private:
  ClockSource uniform_;
  DataDirectory dataFiles_{"."};
};

struct SdlDeleter {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
  void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
};
template <class Object>
using Sdl = std::unique_ptr<Object, SdlDeleter>;

/// The desktop window: shows the room as one piece, as large as fits, and brings the mouse to it. It
/// draws only when something has changed.
///
/// The window goes with the process, never before: SDL writes to its own window over a second connection,
/// and what is still on its way when the window is gone is an error of the X server that ends the process.
class Window {
 public:
  /// Opens the window at its own size. Throws std::runtime_error where there is no display.
  explicit Window(Room& room);

  /// Handles events until the window is closed.
  void run();
  /// Brings one event to the room; nothing is drawn yet.
  void handle(const SDL_Event& event);
  /// Draws what has changed, if anything has, and gives the mouse its cursor.
  void show();

 private:
  void fit();
  void draw();
  void showCursor();
  void paintOn(SDL_Surface& surface);

  Form& form_;
  SDL_Window* window_ = nullptr;  // left to the end of the process
  PainterCache cache_;
  std::map<const PictureStore*, Sdl<SDL_Cursor>> cursors_;  // at the present scale
  PictureId cursor_;
  View view_;
  double density_ = 1;  // device pixels to a unit of the mouse
  bool open_ = true;
};

}  // namespace tombolario
