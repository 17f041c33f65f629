#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>

namespace tombolario {

[[noreturn]] inline void throwNoSlot(int slot, int first, int last) {
  throw std::out_of_range("there is no slot " + std::to_string(slot) + " in " + std::to_string(first) +
                          " to " + std::to_string(last));
}

/// A fixed row of values, numbered First to Last. A number outside is a fault, and throws std::out_of_range.
template <class T, int First, int Last>
struct Slots {
  std::array<T, Last - First + 1> items;

  constexpr T& operator[](int slot) { return items[place(slot)]; }
  constexpr const T& operator[](int slot) const { return items[place(slot)]; }
  constexpr auto begin() { return items.begin(); }
  constexpr auto begin() const { return items.begin(); }
  constexpr auto end() { return items.end(); }
  constexpr auto end() const { return items.end(); }
  constexpr operator std::span<T>() { return items; }

  /// A table is no table of another length; this says so in a few words.
  template <int Other>
  constexpr operator Slots<T, First, Other>() const {
    static_assert(Other == Last, "a table has an entry for each of its numbers");
    return {};
  }

 private:
  static constexpr std::size_t place(int slot) {
    if (slot < First || slot > Last) throwNoSlot(slot, First, Last);
    return static_cast<std::size_t>(slot - First);
  }
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
