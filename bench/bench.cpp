// How long a full repaint takes, and how many mouse events a second the room can handle.

#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "bench_host.hpp"
#include "desktop/cairo_canvas.hpp"
#include "room/room.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

/// A started room, played to one of its screens.
struct Played {
  Played() { room.Form_Load(); }
  void click(const char* name) {
    const Control* control = form.find(name);
    form.mouseMove(control->origin() + Point{control->Width / 2, control->Height / 2});
    form.mouseDown(MouseButton::Left);
    form.mouseUp(MouseButton::Left);
  }

  BenchHost host;
  Room room{host};
  Form& form = room.form();
};

void repaint(benchmark::State& state, std::initializer_list<const char*> way) {
  Played played;
  for (const char* name : way) played.click(name);
  const int width = 792 * static_cast<int>(state.range(0));
  const int height = 573 * static_cast<int>(state.range(0));
  CairoFonts fonts;
  CairoCanvas canvas(Owned<cairo_surface_t>(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
                     fonts);
  View view(played.form);
  view.fit(width, height);
  for ([[maybe_unused]] auto frame : state) {
    view.paint(canvas);
    cairo_surface_flush(canvas.surface());
  }
}

struct Screen {
  const char* name;
  std::initializer_list<const char*> way;  ///< the buttons that lead to it
};

/// The screens, each as full as it gets.
const Screen kScreens[] = {
    {"MainMenu", {}},
    {"PokerOptions", {"commpr(1)"}},
    {"PokerTable", {"commpr(1)", "Command44", "Command33"}},
    {"VideoPokerMenu", {"commpr(2)"}},
    {"VideoPokerTable", {"commpr(2)", "Command8", "Command3"}},
    {"DominoOptions", {"commpr(3)"}},
    {"DominoTable", {"commpr(3)", "giocodom"}},
    {"ChainMenu", {"commpr(4)"}},
    {"ChainTable", {"commpr(4)", "INICAT"}},
    {"RaminoSetup", {"commpr(5)"}},
    {"RaminoTable", {"commpr(5)", "GIOCORAM", "mazzoram"}},
    {"MahjonggBoard", {"commpr(6)"}},
};

void registerRepaints() {
  for (const Screen& screen : kScreens) {
    const auto run = [&screen](benchmark::State& state) { repaint(state, screen.way); };
    benchmark::RegisterBenchmark((std::string("repaint/") + screen.name).c_str(), run)
        ->Arg(1)
        ->Arg(2)
        ->Arg(4)
        ->Unit(benchmark::kMillisecond);
  }
}

/// Moves, presses and releases all over the room, which play on by themselves.
void mouseEvents(benchmark::State& state) {
  Played played;
  std::mt19937 engine(1);
  for ([[maybe_unused]] auto event : state) {
    const auto x = static_cast<int>(engine() % 11880);
    const auto y = static_cast<int>(engine() % 8595);
    played.form.mouseMove({x, y});
    played.form.mouseDown(MouseButton::Left);
    played.form.mouseUp(MouseButton::Left);
  }
  state.SetItemsProcessed(3 * state.iterations());
}
BENCHMARK(mouseEvents);

}  // namespace
}  // namespace tombolario

int main(int argc, char** argv) {
  tombolario::registerRepaints();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
