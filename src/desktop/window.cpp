#include "desktop/window.hpp"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace tombolario {

namespace {

constexpr Uint32 kCairoFormat = SDL_PIXELFORMAT_RGB888;  // what Cairo calls RGB24

MouseButton buttonOf(const SDL_MouseButtonEvent& event) {
  constexpr int kLastButton = 31;
  switch (event.button) {
    case SDL_BUTTON_LEFT: return MouseButton::Left;
    case SDL_BUTTON_RIGHT: return MouseButton::Right;
    case SDL_BUTTON_MIDDLE: return MouseButton::Middle;
    default:
      return static_cast<MouseButton>(
          std::min(event.button - SDL_BUTTON_X1 + static_cast<int>(MouseButton::Back), kLastButton));
  }
}

/// Keeps the X library from reading its rules for composing letters, for as long as this lives: a room
/// without a keyboard has no use for them, and they take a third of the time of a start.
class NoComposing {
#ifdef __unix__
 public:
  NoComposing() { setenv(kRules, "/dev/null", 0); }
  NoComposing(const NoComposing&) = delete;
  NoComposing& operator=(const NoComposing&) = delete;
  ~NoComposing() {
    // What the room starts, as a browser, has its own keyboard.
    if (!set_) unsetenv(kRules);
  }

 private:
  static constexpr const char* kRules = "XCOMPOSEFILE";
  bool set_ = std::getenv(kRules) != nullptr;
#endif
};

void initialize() {
  [[maybe_unused]] const NoComposing whileItStarts;
  if (SDL_Init(SDL_INIT_VIDEO) != 0) throw std::runtime_error(SDL_GetError());
  // What SDL falls back to where there is no display: a window that nobody sees and nobody can close.
  if (SDL_GetCurrentVideoDriver() == std::string_view("offscreen"))
    throw std::runtime_error("non c'è uno schermo");
}

/// A cursor drawn at that scale, its hot spot with it.
Sdl<SDL_Cursor> makeCursor(const PictureId& picture, double scale, PainterCache& cache) {
  cairo_surface_t* drawn = CairoPainter::drawn(picture, scale, cache);
  cairo_surface_flush(drawn);
  const int width = cairo_image_surface_get_width(drawn);
  const int height = cairo_image_surface_get_height(drawn);
  const Sdl<SDL_Surface> surface(
      SDL_CreateRGBSurfaceWithFormatFrom(cairo_image_surface_get_data(drawn), width, height, 32,
                                         cairo_image_surface_get_stride(drawn), SDL_PIXELFORMAT_ARGB8888));
  const Vec hot = picture.store().hotSpot;
  const auto pixel = [scale](double at, int end) {
    return std::clamp(static_cast<int>((at + 0.5) * scale), 0, end - 1);
  };
  return Sdl<SDL_Cursor>(SDL_CreateColorCursor(surface.get(), pixel(hot.x, width), pixel(hot.y, height)));
}

}  // namespace

Window::Window(Room& room) : form_(room.form()), view_(form_) {
  // The window's own surface: nothing is gained from a graphics card here, and starting one takes long.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  initialize();
  window_ = SDL_CreateWindow(form_.Caption.get().c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                             form_.Width / kTwipsPerPixel, form_.Height / kTwipsPerPixel,
                             SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
  if (window_ == nullptr) throw std::runtime_error(SDL_GetError());
  SDL_SetWindowMinimumSize(window_, form_.Width / kTwipsPerPixel / 3, form_.Height / kTwipsPerPixel / 3);
  fit();
}

void Window::run() {
  show();
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
    case SDL_MOUSEMOTION: view_.mouseAt(event.motion.x * density_, event.motion.y * density_); break;
    case SDL_MOUSEBUTTONDOWN:
      view_.mouseAt(event.button.x * density_, event.button.y * density_);
      form_.mouseDown(buttonOf(event.button));
      break;
    case SDL_MOUSEBUTTONUP:
      view_.mouseAt(event.button.x * density_, event.button.y * density_);
      form_.mouseUp(buttonOf(event.button));
      break;
    case SDL_WINDOWEVENT:
      if (event.window.event == SDL_WINDOWEVENT_SIZE_CHANGED) fit();
      if (event.window.event == SDL_WINDOWEVENT_EXPOSED) form_.redraw();
      break;
    default: break;
  }
}

void Window::fit() {
  int width = 0;
  int height = 0;
  SDL_GetWindowSizeInPixels(window_, &width, &height);
  int mouseWidth = 0;
  SDL_GetWindowSize(window_, &mouseWidth, nullptr);
  density_ = mouseWidth > 0 ? static_cast<double>(width) / mouseWidth : 1;
  const double before = view_.scale();
  view_.fit(width, height);
  if (view_.scale() != before) {
    SDL_SetCursor(SDL_GetDefaultCursor());
    cursor_ = {};
    cursors_.clear();
  }
  form_.redraw();
}

void Window::draw() {
  SDL_Surface* surface = SDL_GetWindowSurface(window_);
  if (surface == nullptr) return;
  if (surface->format->format == kCairoFormat) {
    paintOn(*surface);
  } else {
    const Sdl<SDL_Surface> canvas(
        SDL_CreateRGBSurfaceWithFormat(0, surface->w, surface->h, 32, kCairoFormat));
    if (canvas == nullptr) return;
    paintOn(*canvas);
    SDL_BlitSurface(canvas.get(), nullptr, surface, nullptr);
  }
  SDL_UpdateWindowSurface(window_);
}

void Window::paintOn(SDL_Surface& surface) {
  const Owned<cairo_surface_t> canvas(cairo_image_surface_create_for_data(
      static_cast<unsigned char*>(surface.pixels), CAIRO_FORMAT_RGB24, surface.w, surface.h, surface.pitch));
  if (view_.marginX() > 0 || view_.marginY() > 0) SDL_FillRect(&surface, nullptr, form_.surroundings());
  cairo_surface_set_device_offset(canvas.get(), view_.marginX(), view_.marginY());
  CairoPainter painter(canvas.get(), view_.scale(), cache_);
  form_.repaint(painter);
  cairo_surface_flush(canvas.get());
}

void Window::showCursor() {
  const PictureId wanted = form_.cursor();
  if (wanted == std::exchange(cursor_, wanted)) return;
  if (!wanted) {
    SDL_SetCursor(SDL_GetDefaultCursor());
    return;
  }
  Sdl<SDL_Cursor>& cursor = cursors_[&wanted.store()];
  if (cursor == nullptr) cursor = makeCursor(wanted, view_.scale() / density_, cache_);
  SDL_SetCursor(cursor != nullptr ? cursor.get() : SDL_GetDefaultCursor());
}

}  // namespace tombolario
