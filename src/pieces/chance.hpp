#pragma once

#include <cstdint>
#include <span>

namespace tombolario {

/// The only chance in the room: uniform random numbers.
class UniformSource {
 public:
  virtual ~UniformSource() = default;
  /// Starts a new sequence from the system clock; two calls never start the same one.
  virtual void seedFromClock() = 0;
  /// The next number, in [0,1).
  virtual double next() = 0;
};

/// The shuffle of every game: fills slots first to last (both counted) with distinct numbers of 0 to
/// n - 1, drawing a slot again while an earlier one from first on holds the same number. Slots outside are
/// left alone. Throws std::out_of_range where there are no such slots, std::invalid_argument where they are
/// more than n.
void mescola(UniformSource& uniform, std::span<std::int16_t> slots, int first, int last, int n);

/// Every deal of the room: seeds anew, then shuffles.
void deal(UniformSource& uniform, std::span<std::int16_t> slots, int first, int last, int n);

}  // namespace tombolario
