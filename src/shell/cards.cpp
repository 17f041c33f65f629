#include "shell/cards.hpp"

#include <algorithm>

#include "shell/host.hpp"

namespace tombolario {

void fillCardTables(std::span<std::int16_t> values, std::span<std::int16_t> suits) {
  for (int card = 0; card < kPack; ++card) {
    values[static_cast<std::size_t>(card)] = static_cast<std::int16_t>(cardValue(card));
    suits[static_cast<std::size_t>(card)] = static_cast<std::int16_t>(cardSuit(card));
  }
}

void mescola(UniformSource& uniform, std::span<std::int16_t> slots, int first, int last, int n) {
  const auto begin = slots.begin() + first;
  for (auto slot = begin; slot <= slots.begin() + last; ++slot) {
    do {
      *slot = static_cast<std::int16_t>(uniform.next() * n);
    } while (std::find(begin, slot, *slot) != slot);
  }
}

}  // namespace tombolario
