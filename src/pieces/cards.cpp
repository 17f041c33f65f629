#include "pieces/cards.hpp"

namespace tombolario {

void fillCardTables(std::span<std::int16_t> values, std::span<std::int16_t> suits) {
  for (int card = 0; card < kPack; ++card) {
    values[static_cast<std::size_t>(card)] = static_cast<std::int16_t>(cardValue(card));
    suits[static_cast<std::size_t>(card)] = static_cast<std::int16_t>(cardSuit(card));
  }
}

}  // namespace tombolario
