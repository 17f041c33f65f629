#include <cstdio>
#include <stdexcept>

#include "desktop/window.hpp"

int main(int, char**) {
  tombolario::DesktopHost host;
  tombolario::Room room(host);
  room.Form_Load();
  try {
    tombolario::Window(room).run();
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "Tombolario: la finestra non si apre: %s\n", error.what());
    return 1;
  }
  return 0;
}
