#include "pieces/chance.hpp"

#include <algorithm>

namespace tombolario {

void mescola(UniformSource& uniform, std::span<std::int16_t> slots, int first, int last, int n) {
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
