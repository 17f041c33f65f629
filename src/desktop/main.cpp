#include <cstdio>
#include <exception>

#include "desktop/window.hpp"

int main(int, char**) {
  try {
    tombolario::DesktopHost host;
    tombolario::Room room(host);
    room.Form_Load();
    tombolario::Window(room).run();
  } catch (const tombolario::CannotOpen& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "Tombolario si è fermato per un errore (%s).\n", error.what());
    return 1;
  }
  return 0;
}
