// The room under libFuzzer: each input plays a room of its own. Tells at the end how much was played.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "walk.hpp"

namespace {

struct Played {
  ~Played() {
    std::printf("%ld events, %ld saves\n", events, saves);
    std::filesystem::remove_all(directory);
  }
  std::filesystem::path directory =
      std::filesystem::temp_directory_path() / ("tombolario-fuzz-" + std::to_string(getpid()));
  long events = 0;
  long saves = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Played played;
  tombolario::Walk walk({data, size}, played.directory);
  walk.play();
  played.events += walk.events();
  played.saves += walk.files().saves();
  return 0;
}
