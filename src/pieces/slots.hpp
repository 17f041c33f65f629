#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tombolario {

/// A fixed row of values, numbered First to Last. A number outside is a fault, and throws.
template <class T, int First, int Last>
struct Slots {
  std::array<T, Last - First + 1> items;

  constexpr T& operator[](int slot) { return items.at(static_cast<std::size_t>(slot - First)); }
  constexpr const T& operator[](int slot) const { return items.at(static_cast<std::size_t>(slot - First)); }
  constexpr auto begin() { return items.begin(); }
  constexpr auto begin() const { return items.begin(); }
  constexpr auto end() { return items.end(); }
  constexpr auto end() const { return items.end(); }
  constexpr operator std::span<T>() { return items; }
};

/// A row of just these values, so that a table with one too few does not compile:
/// `constexpr Slots<int, 1, 3> kTable = slots<1, int>({4, 5, 6})`.
template <int First, class T, std::size_t N>
constexpr Slots<T, First, First + static_cast<int>(N) - 1> slots(const T (&values)[N]) {
  return {std::to_array(values)};
}

/// The numbers of the games have 16 bits.
template <int First, int Last>
using Numbers = Slots<std::int16_t, First, Last>;

}  // namespace tombolario
