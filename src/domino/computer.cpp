#include "domino/computer.hpp"

#include <array>
#include <cstdint>
#include <vector>

namespace tombolario::domino {

namespace {

/// The numbers from the one that the player holds least. One that the player holds on all its seven tiles
/// is left out: the computer has no tile to leave it open.
std::vector<std::int16_t> byCount(const Numbers<0, kNumbers - 1>& held) {
  std::vector<std::int16_t> ordinedom;
  for (std::int16_t count = 0; count < kNumbers; ++count) {
    for (std::int16_t number = 0; number < kNumbers; ++number) {
      if (held[number] == count) ordinedom.push_back(number);
    }
  }
  return ordinedom;
}

}  // namespace

std::optional<Choice> choose(const Position& position, Level level) {
  constexpr std::array kTried{Placement{End::Right, false}, Placement{End::Left, false},
                              Placement{End::Right, true}, Placement{End::Left, true}};
  for (const std::int16_t wanted : byCount(position.held)) {
    for (int slot = kFirstOfComputer; slot <= kLastOfComputer; ++slot) {
      if (!position.hand[slot]) continue;
      for (const Placement& placement : kTried) {
        const auto left = placement.leavesOpen(*position.hand[slot], position.open);
        if (left && (level == Level::Beginner || left == wanted)) return Choice{placement, slot};
      }
    }
  }
  return std::nullopt;
}

}  // namespace tombolario::domino
