#include "poker/award.hpp"

#include "pieces/pay_tables.hpp"

namespace tombolario::poker {

namespace {

template <class Number>
Side higher(const Number& player, const Number& computer) {
  if (player == computer) return Side::Nobody;
  return player > computer ? Side::Player : Side::Computer;
}

/// Two hands of one class. A straight that ends in the ace has the lowest top, and of two flushes none is
/// better.
Side tieBreak(const Classification& player, const Classification& computer) {
  return player.isStraight() ? higher(player.cimapok, computer.cimapok)
                             : higher(player.confrontopok, computer.confrontopok);
}

}  // namespace

Side winner(const Classification& player, const Classification& computer, Level level) {
  if (player.kind != computer.kind) return higher(player.kind, computer.kind);
  if (player.kind == kNothing) return Side::Nobody;
  return level == Level::High ? Side::Computer : tieBreak(player, computer);
}

std::int16_t points(HandClass kind, Counting counting) {
  return counting == Counting::ByHand ? std::int16_t{1} : kCombinations[kind].points;
}

std::int16_t limit(Counting counting) { return counting == Counting::ByHand ? 15 : 40; }

}  // namespace tombolario::poker
