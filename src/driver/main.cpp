#include <iostream>
#include <string>

#include "driver/driver.hpp"
#ifdef TOMBOLARIO_DRAWS
#include "driver/cairo_camera.hpp"
#endif

int main() {
#ifdef TOMBOLARIO_DRAWS
  tombolario::CairoCamera camera;
  tombolario::Driver driver(&camera);
#else
  tombolario::Driver driver(nullptr);
#endif
  for (std::string line; !driver.ended() && std::getline(std::cin, line);) {
    std::cout << driver.answer(line) << std::endl;
  }
}
