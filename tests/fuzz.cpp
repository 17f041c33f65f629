// The room under libFuzzer: each input plays a room of its own, and first the game of its first byte. Tells
// at the end how much was played.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "pictures/catalogue.hpp"
#include "walk.hpp"

namespace {

struct Played {
  ~Played() {
    std::printf("%ld events\n", events);
    for (const auto& [what, times] : reached) std::printf("%ld %s\n", times, what.c_str());
    std::filesystem::remove_all(directory);
  }
  std::filesystem::path directory =
      std::filesystem::temp_directory_path() / ("tombolario-fuzz-" + std::to_string(getpid()));
  long events = 0;
  tombolario::Reached reached;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Played played;
  if (size == 0) return 0;
  tombolario::Walk walk({data + 1, size - 1}, played.directory);
  walk.enter(1 + data[0] % tombolario::pictures::commpr.count);
  walk.play();
  played.events += walk.events();
  for (const auto& [what, times] : walk.reached()) played.reached[what] += times;
  return 0;
}
