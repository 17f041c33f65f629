#include <iostream>

#include "driver/driver.hpp"
#include "host/data_directory.hpp"
#ifdef TOMBOLARIO_DRAWS
#include "driver/cairo_camera.hpp"
#endif

int main() {
  tombolario::DataDirectory dataFiles(".");
#ifdef TOMBOLARIO_DRAWS
  tombolario::CairoCamera camera;
  tombolario::Driver driver(&camera, dataFiles);
#else
  tombolario::Driver driver(nullptr, dataFiles);
#endif
  driver.run(std::cin, std::cout);
}
