// How long it takes from a click until its change is on the screen: a random session in the real window, at
// the room's own size times SCALE. Run on a display with room for that: click SCALE CLICKS

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "bench_host.hpp"
#include "desktop/window.hpp"

namespace tombolario {
namespace {

using Clock = std::chrono::steady_clock;

/// Clicks at random on what is operable, seldom on what leaves a screen for the one before.
class Player {
 public:
  Player(Room& room, double scale) : room_(room), window_(room), scale_(scale) {
    for (const char* name : {"Command5", "Command55", "FINEDOM", "ramesc", "FINECA", "MENUVP", "menupok",
                             "MENUDOM", "MENURAM", "menucat", "Command17"})
      leaves_.push_back(room.form().find(name));
    const auto pixels = [scale](int twips) {
      return static_cast<int>(std::lround(twips * scale / kTwipsPerPixel));
    };
    SDL_SetWindowSize(SDL_GetWindowFromID(1), pixels(room.form().Width), pixels(room.form().Height));
    SDL_Delay(500);
    handleWhatComes();
  }

  /// So many clicks, a part of them in each game.
  void play(int clicks) {
    std::vector<const Control*> entries;
    for (const Control* control : room_.form().controls())
      if (control->name().base == "commpr") entries.push_back(control);
    for (const Control* entry : entries) {
      while (const Control* way = anyControl(true)) click(*way);
      click(*entry);
      for (std::size_t i = 0; i < static_cast<std::size_t>(clicks) / entries.size(); ++i) {
        if (const Control* control = anyControl(engine_() % 100 == 0)) click(*control);
      }
    }
  }
  void print() {
    std::printf("%-16s %8s %12s %10s\n", "screen", "changes", "median, ms", "worst, ms");
    for (auto& [screen, taken] : taken_) {
      std::sort(taken.begin(), taken.end());
      std::printf("%-16s %8zu %12.2f %10.2f\n", screen.c_str(), taken.size(), taken[taken.size() / 2],
                  taken.back());
    }
  }

 private:
  /// One that leaves its screen, or one that does not; null if none is on view.
  const Control* anyControl(bool leaves) {
    std::vector<const Control*> choice;
    for (const Control* control : room_.form().controls()) {
      if (!control->sinks() || !control->onView() || !control->operable()) continue;
      const bool leaving = std::find(leaves_.begin(), leaves_.end(), control) != leaves_.end();
      if (leaving == leaves) choice.push_back(control);
    }
    return choice.empty() ? nullptr : choice[engine_() % choice.size()];
  }

  void handleWhatComes() {
    for (SDL_Event event; SDL_PollEvent(&event) != 0;) window_.handle(event);
    window_.show();
  }

  /// The press and the release each count, where they change what is seen.
  void click(const Control& control) {
    const std::string screen = room_.screen().name().text();
    const Point middle = control.origin() + Point{control.Width / 2, control.Height / 2};
    SDL_Event event{};
    event.button.button = SDL_BUTTON_LEFT;
    event.button.x = static_cast<int>(middle.x * scale_ / kTwipsPerPixel);
    event.button.y = static_cast<int>(middle.y * scale_ / kTwipsPerPixel);
    for (const Uint32 type : {SDL_MOUSEBUTTONDOWN, SDL_MOUSEBUTTONUP}) {
      event.type = type;
      const auto before = Clock::now();
      window_.handle(event);
      const bool changed = room_.form().needsDrawing();
      window_.show();
      const std::chrono::duration<double, std::milli> taken = Clock::now() - before;
      if (changed) taken_[screen].push_back(taken.count());
    }
    handleWhatComes();
  }

  Room& room_;
  Window window_;
  double scale_;
  std::vector<const Control*> leaves_;
  std::mt19937 engine_{1};
  std::map<std::string, std::vector<double>> taken_;  // by the screen that was clicked
};

}  // namespace
}  // namespace tombolario

int main(int argc, char** argv) {
  const double scale = argc == 3 ? std::atof(argv[1]) : 0;
  const int clicks = argc == 3 ? std::atoi(argv[2]) : 0;
  if (scale <= 0 || clicks <= 0) {
    std::fprintf(stderr, "click SCALE CLICKS, on a display\n");
    return 2;
  }
  tombolario::BenchHost host;
  tombolario::Room room(host);
  room.Form_Load();
  tombolario::Player player(room, scale);
  player.play(clicks);
  std::printf("from a click to its change on the screen, at %gx\n", scale);
  player.print();
}
