// How long programs take from their start to the first painted window, and how much memory they take at
// most until a second later. They take turns, so that noise meets all alike. Run on a display of its own:
// start TIMES PROGRAM...

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kLongest = std::chrono::seconds(30);
constexpr auto kSettling = std::chrono::seconds(1);
constexpr int kColumns = 16;
constexpr std::size_t kPainted = 4;  // colours; a window that is only filled has fewer, with the bare screen

/// How many colours there are in some columns of the screen.
std::size_t coloursOn(Display* display) {
  std::set<unsigned long> colours;
  for (int i = 0; i < kColumns && colours.size() < kPainted; ++i) {
    XImage* column = XGetImage(display, DefaultRootWindow(display), DisplayWidth(display, 0) * i / kColumns,
                               0, 1, static_cast<unsigned>(DisplayHeight(display, 0)), AllPlanes, ZPixmap);
    if (column == nullptr) continue;
    for (int y = 0; y < column->height; ++y) colours.insert(XGetPixel(column, 0, y) & 0xFFFFFF);
    XDestroyImage(column);
  }
  return colours.size();
}

struct Start {
  double milliseconds;
  double mebibytes;
};

Start measure(Display* display, const char* program) {
  const auto before = Clock::now();
  const pid_t child = fork();
  if (child == 0) {
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execlp(program, program, nullptr);
    std::_Exit(127);
  }
  while (coloursOn(display) < kPainted) {
    if (Clock::now() - before > kLongest) {
      std::fprintf(stderr, "start: no window of %s\n", program);
      kill(child, SIGKILL);
      std::exit(1);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
  const std::chrono::duration<double, std::milli> taken = Clock::now() - before;
  std::this_thread::sleep_for(kSettling);
  kill(child, SIGKILL);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  while (coloursOn(display) > 1) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  return {taken.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

struct Program {
  const char* path;
  std::vector<double> milliseconds;
  double mebibytes = 0;

  const char* name() const {
    const char* slash = std::strrchr(path, '/');
    return slash != nullptr ? slash + 1 : path;
  }
};

}  // namespace

int main(int argc, char** argv) {
  const int times = argc > 2 ? std::atoi(argv[1]) : 0;
  Display* display = times > 0 ? XOpenDisplay(nullptr) : nullptr;
  if (display == nullptr) {
    std::fprintf(stderr, "start TIMES PROGRAM..., on a display\n");
    return 2;
  }
  std::vector<Program> programs;
  for (int i = 2; i < argc; ++i) programs.push_back({argv[i], {}});
  for (const Program& program : programs) measure(display, program.path);  // the disk is read once for all
  for (int i = 0; i < times; ++i) {
    for (Program& program : programs) {
      const Start start = measure(display, program.path);
      program.milliseconds.push_back(start.milliseconds);
      program.mebibytes = std::max(program.mebibytes, start.mebibytes);
    }
  }
  std::printf("%-20s %29s %12s\n", "", "first painted window, ms", "peak memory");
  std::printf("%-20s %9s %9s %9s %12s\n", "", "median", "best", "worst", "MiB");
  for (Program& program : programs) {
    auto& taken = program.milliseconds;
    std::sort(taken.begin(), taken.end());
    std::printf("%-20s %9.0f %9.0f %9.0f %12.1f\n", program.name(), taken[taken.size() / 2], taken.front(),
                taken.back(), program.mebibytes);
  }
  XCloseDisplay(display);
}
