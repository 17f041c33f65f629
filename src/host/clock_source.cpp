#include "host/clock_source.hpp"

#include <chrono>

namespace tombolario {

void ClockSource::seedFromClock() {
  const auto ticks = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  // What is left of the sequence before goes in too: two deals may fall into one tick of the clock.
  const std::uint64_t carried = engine_();
  const auto low = [](std::uint64_t word) { return static_cast<std::uint32_t>(word); };
  std::seed_seq seed{low(ticks), low(ticks >> 32), low(carried), low(carried >> 32)};
  engine_.seed(seed);
}

}  // namespace tombolario
