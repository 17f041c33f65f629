#include "desktop/window.hpp"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include "pictures/icon.hpp"

namespace tombolario {

namespace {

constexpr Uint32 kCairoFormat = SDL_PIXELFORMAT_RGB888;  // what Cairo calls RGB24

constexpr int kLastButton = 31;

MouseButton buttonOf(const SDL_MouseButtonEvent& event) {
  switch (event.button) {
    case SDL_BUTTON_LEFT: return MouseButton::Left;
    case SDL_BUTTON_RIGHT: return MouseButton::Right;
    case SDL_BUTTON_MIDDLE: return MouseButton::Middle;
    default: return static_cast<MouseButton>(std::min(event.button - 1, kLastButton));
  }
}

/// A variable of the environment that the user has not set, for as long as this lives: what the room starts
/// later, as a browser, does not see it.
class Meanwhile {
#ifdef __unix__
 public:
  Meanwhile(const char* name, const char* value) : name_(name) {
    const char* present = std::getenv(name_);
    set_ = present != nullptr && *present != '\0';
    if (!set_) setenv(name_, value, 1);
  }
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;
  ~Meanwhile() {
    if (!set_) unsetenv(name_);
  }

 private:
  const char* name_;
  bool set_;
#else
 public:
  Meanwhile(const char*, const char*) {}
#endif
};

/// Whether SDL is to try the X server before anything else, which is what it would do, too.
bool startsWithX11() {
  const char* wanted = std::getenv("SDL_VIDEODRIVER");
  return wanted != nullptr ? wanted == std::string_view("x11") : std::getenv("DISPLAY") != nullptr;
}

bool initialize() {
  // The room has no use for a session bus: where there is none, SDL would start one that outlives the room.
  [[maybe_unused]] const Meanwhile noBus("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  if (startsWithX11()) {
    // Nor has it a keyboard: the X library's rules for composing letters take a third of the time of a start.
    [[maybe_unused]] const Meanwhile noRules("XCOMPOSEFILE", "/dev/null");
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "x11");
    if (SDL_Init(SDL_INIT_VIDEO) == 0) return true;
    SDL_ResetHint(SDL_HINT_VIDEODRIVER);
  }
  return SDL_Init(SDL_INIT_VIDEO) == 0;
}

bool runsOn(std::string_view driver) {
  const char* present = SDL_GetCurrentVideoDriver();
  return present != nullptr && present == driver;
}

CannotOpen noWindow() {
  const std::string reason = SDL_GetError();
  return CannotOpen("Tombolario non può aprire la sua finestra" +
                    (reason.empty() ? "." : " (" + reason + ")."));
}

/// What was drawn, to be read as long as that lives.
Sdl<SDL_Surface> surfaceOf(cairo_surface_t* drawn) {
  return Sdl<SDL_Surface>(SDL_CreateRGBSurfaceWithFormatFrom(
      cairo_image_surface_get_data(drawn), cairo_image_surface_get_width(drawn),
      cairo_image_surface_get_height(drawn), 32, cairo_image_surface_get_stride(drawn),
      SDL_PIXELFORMAT_ARGB8888));
}

/// A cursor drawn at that scale, its hot spot with it.
Sdl<SDL_Cursor> makeCursor(const PictureId& picture, double scale, CairoFonts& fonts) {
  CairoCanvas canvas(deviceSize(picture.size(), scale), fonts);
  drawAlone(picture, canvas, scale);
  const Sdl<SDL_Surface> surface = surfaceOf(canvas.surface());
  if (surface == nullptr) return nullptr;
  const Vec hot = picture.store().hotSpot;
  const auto pixel = [scale](double at, int end) {
    return std::clamp(static_cast<int>((at + 0.5) * scale), 0, end - 1);
  };
  return Sdl<SDL_Cursor>(
      SDL_CreateColorCursor(surface.get(), pixel(hot.x, surface->w), pixel(hot.y, surface->h)));
}

}  // namespace

Window::Window(Room& room) : form_(room.form()), view_(form_) {
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  // The last resort of SDL is a window that nobody sees and nobody can close.
  if (!initialize() || runsOn("offscreen")) {
    throw CannotOpen("Tombolario non può aprirsi: non c'è uno schermo che risponda.");
  }
  Uint32 flags = SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI;
  if (runsOn("x11")) {
    // The window's own surface: nothing is gained from a graphics card here, and starting one takes long.
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    // Nobody sees it empty. Elsewhere, a window is seen when it has been painted.
    flags |= SDL_WINDOW_HIDDEN;
  }
  window_ = SDL_CreateWindow(form_.Caption.get().c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                             form_.Width / kTwipsPerPixel, form_.Height / kTwipsPerPixel, flags);
  if (window_ == nullptr) throw noWindow();
  SDL_SetWindowMinimumSize(window_, form_.Width / kTwipsPerPixel / 3, form_.Height / kTwipsPerPixel / 3);
  fit();
}

void Window::run() {
  show();
  if ((SDL_GetWindowFlags(window_) & SDL_WINDOW_HIDDEN) != 0) {
    SDL_ShowWindow(window_);
    SDL_UpdateWindowSurface(window_);
  }
  showIcon();  // after the room, which is waited for
  for (SDL_Event event; open_ && SDL_WaitEvent(&event) != 0;) {
    do {
      handle(event);
    } while (open_ && SDL_PollEvent(&event) != 0);
    if (open_) show();
  }
}

void Window::show() {
  if (form_.needsDrawing()) draw();
  showCursor();
}

void Window::handle(const SDL_Event& event) {
  switch (event.type) {
    case SDL_QUIT: open_ = false; break;
    case SDL_MOUSEMOTION:
      lookForLostReleases();
      view_.mouseAt(event.motion.x * density_, event.motion.y * density_);
      break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: button(event.button); break;
    case SDL_WINDOWEVENT:
      if (event.window.event == SDL_WINDOWEVENT_SIZE_CHANGED) fit();
      if (event.window.event == SDL_WINDOWEVENT_EXPOSED) form_.redraw();
      if (event.window.event == SDL_WINDOWEVENT_FOCUS_LOST) {
        form_.mouseLost();
        awaited_ = SDL_GetMouseState(nullptr, nullptr);
      }
      break;
    default: break;
  }
}

void Window::button(const SDL_MouseButtonEvent& event) {
  const Uint32 bit = 1U << static_cast<unsigned>(std::min(event.button - 1, kLastButton));
  const bool pressed = event.type == SDL_MOUSEBUTTONDOWN;
  view_.mouseAt(event.x * density_, event.y * density_);
  if (pressed || (lost_ & bit) != 0) form_.mouseDown(buttonOf(event));
  if (!pressed) form_.mouseUp(buttonOf(event));
  awaited_ &= ~bit;
  lost_ &= ~bit;
}

void Window::lookForLostReleases() {
  if (awaited_ == 0) return;
  const Uint32 up = awaited_ & ~SDL_GetGlobalMouseState(nullptr, nullptr);
  // What is up now and has come here is on its way to be handled.
  SDL_PumpEvents();
  if (up == 0 || SDL_HasEvent(SDL_MOUSEBUTTONUP) == SDL_TRUE) return;
  lost_ |= up;
  awaited_ &= ~up;
}

void Window::fit() {
  int width = 0;
  int height = 0;
  SDL_GetWindowSizeInPixels(window_, &width, &height);
  int mouseWidth = 0;
  SDL_GetWindowSize(window_, &mouseWidth, nullptr);
  density_ = mouseWidth > 0 ? static_cast<double>(width) / mouseWidth : 1;
  view_.fit(width, height);
  cursors_.clear();
}

void Window::draw() {
  SDL_Surface* surface = SDL_GetWindowSurface(window_);
  if (surface == nullptr) throw noWindow();
  if (surface->format->format == kCairoFormat) {
    paintOn(*surface);
  } else {
    const Sdl<SDL_Surface> canvas(
        SDL_CreateRGBSurfaceWithFormat(0, surface->w, surface->h, 32, kCairoFormat));
    if (canvas == nullptr) throw noWindow();
    paintOn(*canvas);
    SDL_BlitSurface(canvas.get(), nullptr, surface, nullptr);
  }
  SDL_UpdateWindowSurface(window_);
}

void Window::paintOn(SDL_Surface& surface) {
  Owned<cairo_surface_t> pixels(cairo_image_surface_create_for_data(
      static_cast<unsigned char*>(surface.pixels), CAIRO_FORMAT_RGB24, surface.w, surface.h, surface.pitch));
  CairoCanvas canvas(std::move(pixels), fonts_);
  view_.paint(canvas);
}

void Window::showIcon() {
  CairoCanvas canvas({pictures::kIconSide, pictures::kIconSide}, fonts_);
  PictureCache pictures;
  Painter painter(canvas, 1, pictures);
  pictures::drawIcon(painter);
  if (const Sdl<SDL_Surface> icon = surfaceOf(canvas.surface())) SDL_SetWindowIcon(window_, icon.get());
}

void Window::showCursor() {
  const auto wanted = view_.newCursor();
  if (!wanted) return;
  SDL_Cursor* cursor = nullptr;
  if (*wanted) {
    Sdl<SDL_Cursor>& made = cursors_[&wanted->store()];
    if (made == nullptr) made = makeCursor(*wanted, view_.scale() / density_, fonts_);
    cursor = made.get();
  }
  SDL_SetCursor(cursor != nullptr ? cursor : SDL_GetDefaultCursor());
}

}  // namespace tombolario
