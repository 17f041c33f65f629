#pragma once

#include <SDL.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>

#include "desktop/cairo_canvas.hpp"
#include "host/clock_source.hpp"
#include "host/data_directory.hpp"
#include "room/room.hpp"
#include "toolkit/view.hpp"

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

/// Why there is no window, in a sentence for the player.
struct CannotOpen : std::runtime_error {
  using std::runtime_error::runtime_error;
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
  /// Opens the window at its own size. Throws CannotOpen.
  explicit Window(Room& room);

  /// Handles events until the window is closed.
  void run();
  /// Brings one event to the room; nothing is drawn yet.
  void handle(const SDL_Event& event);
  /// Draws what has changed, if anything has, and gives the mouse its cursor. Throws CannotOpen where the
  /// window cannot be drawn on.
  void show();

 private:
  void button(const SDL_MouseButtonEvent& event);
  void lookForLostReleases();
  void fit();
  void draw();
  void showIcon();
  void showCursor();
  void paintOn(SDL_Surface& surface);

  Form& form_;
  SDL_Window* window_ = nullptr;  // left to the end of the process
  CairoFonts fonts_;
  std::map<const PictureStore*, Sdl<SDL_Cursor>> cursors_;  // at the present scale
  View view_;
  double density_ = 1;  // device pixels to a unit of the mouse
  bool open_ = true;
  // Buttons, a bit for each. With the focus the window may lose a release to another window; SDL takes the
  // button to be down still, and then tells of the release of its next press alone.
  Uint32 awaited_ = 0;  // down when the focus went
  Uint32 lost_ = 0;     // found up since, without a word
};

}  // namespace tombolario
