#pragma once

#include <cstdint>
#include <random>

#include "pieces/chance.hpp"

namespace tombolario {

/// The number in [0,1) that 64 random bits stand for; the same on every platform.
inline double unitInterval(std::uint64_t bits) { return static_cast<double>(bits >> 11) * 0x1p-53; }

/// A source seeded from the system clock.
class ClockSource : public UniformSource {
 public:
  ClockSource() { seedFromClock(); }
  void seedFromClock() override;
  double next() override { return unitInterval(engine_()); }

 private:
  std::mt19937_64 engine_;
};

}  // namespace tombolario
