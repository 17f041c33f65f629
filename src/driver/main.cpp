#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <csignal>
#include <iostream>

#include "driver/driver.hpp"
#include "host/data_directory.hpp"
#ifdef TOMBOLARIO_DRAWS
#include "driver/cairo_camera.hpp"
#endif

int main() {
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);  // a picture that may not grow cannot be written, that is all
#endif
#ifdef M_MMAP_THRESHOLD
  mallopt(M_MMAP_THRESHOLD, 1 << 17);  // bytes; the memory of a large picture goes back with the picture
#endif
  tombolario::DataDirectory dataFiles(".");
#ifdef TOMBOLARIO_DRAWS
  tombolario::CairoCamera camera;
  tombolario::Driver driver(&camera, dataFiles);
#else
  tombolario::Driver driver(nullptr, dataFiles);
#endif
  driver.run(std::cin, std::cout);
}
