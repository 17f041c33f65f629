#include "pieces/chance.hpp"

#include <algorithm>
#include <stdexcept>

namespace tombolario {

void mescola(UniformSource& uniform, std::span<std::int16_t> slots, int first, int last, int n) {
  if (first < 0 || first > last || last >= static_cast<int>(slots.size()))
    throw std::out_of_range("a deal beyond its slots");
  if (last - first + 1 > n) throw std::invalid_argument("a deal of more slots than numbers");
  const auto begin = slots.begin() + first;
  for (auto slot = begin; slot <= slots.begin() + last; ++slot) {
    do {
      *slot = static_cast<std::int16_t>(uniform.next() * n);
    } while (std::find(begin, slot, *slot) != slot);
  }
}

void deal(UniformSource& uniform, std::span<std::int16_t> slots, int first, int last, int n) {
  uniform.seedFromClock();
  mescola(uniform, slots, first, last, n);
}

}  // namespace tombolario
