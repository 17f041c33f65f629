// How long the room takes from its start to the first picture in its window, and how much memory it
// takes at most. Run on a display of its own: start PROGRAM [TIMES]

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kLongest = std::chrono::seconds(20);
constexpr unsigned long kBanner = 0xFF8000;

/// Whether some pixel of the middle column of the screen shows the banner of the main menu.
bool bannerShows(Display* display) {
  const Window root = DefaultRootWindow(display);
  const int middle = DisplayWidth(display, 0) / 2 - 300;
  XImage* column = XGetImage(display, root, middle, 0, 1, static_cast<unsigned>(DisplayHeight(display, 0)),
                             AllPlanes, ZPixmap);
  if (column == nullptr) return false;
  bool shows = false;
  for (int y = 0; y < column->height && !shows; ++y) shows = (XGetPixel(column, 0, y) & 0xFFFFFF) == kBanner;
  XDestroyImage(column);
  return shows;
}

struct Start {
  double milliseconds;
  long kibibytes;
};

Start measure(Display* display, const char* program) {
  const auto before = Clock::now();
  const pid_t child = fork();
  if (child == 0) {
    execl(program, program, nullptr);
    std::_Exit(127);
  }
  while (!bannerShows(display)) {
    if (Clock::now() - before > kLongest) {
      std::fprintf(stderr, "start: no window\n");
      kill(child, SIGKILL);
      std::exit(1);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
  const std::chrono::duration<double, std::milli> taken = Clock::now() - before;
  kill(child, SIGTERM);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  while (bannerShows(display)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  return {taken.count(), usage.ru_maxrss};
}

}  // namespace

int main(int argc, char** argv) {
  Display* display = argc > 1 ? XOpenDisplay(nullptr) : nullptr;
  if (display == nullptr) {
    std::fprintf(stderr, "start PROGRAM [TIMES], on a display\n");
    return 2;
  }
  const int times = argc > 2 ? std::max(1, std::atoi(argv[2])) : 10;
  std::vector<double> milliseconds;
  long most = 0;
  for (int i = 0; i < times; ++i) {
    const Start start = measure(display, argv[1]);
    milliseconds.push_back(start.milliseconds);
    most = std::max(most, start.kibibytes);
  }
  std::sort(milliseconds.begin(), milliseconds.end());
  std::printf("first window: median %.0f ms, best %.0f ms, worst %.0f ms of %d starts\n",
              milliseconds[milliseconds.size() / 2], milliseconds.front(), milliseconds.back(), times);
  std::printf("peak memory: %.1f MiB\n", static_cast<double>(most) / 1024);
  XCloseDisplay(display);
}
