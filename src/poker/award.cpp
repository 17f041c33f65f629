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
Side tieBreak(const Classification& classehum, const Classification& classecom) {
  if (classehum.kind == kStraight || classehum.kind == kStraightFlush) {
    return higher(classehum.cimapok, classecom.cimapok);
  }
  return higher(classehum.confrontopok, classecom.confrontopok);
}

}  // namespace

Side winner(const Classification& classehum, const Classification& classecom, Level level) {
  if (classehum.kind != classecom.kind) return higher(classehum.kind, classecom.kind);
  if (classehum.kind == kNothing) return Side::Nobody;
  return level == Level::High ? Side::Computer : tieBreak(classehum, classecom);
}

std::int16_t points(const Classification& hand, Counting counting) {
  return counting == Counting::ByHand ? std::int16_t{1} : kCombinations[hand.kind].points;
}

std::int16_t limit(Counting counting) { return counting == Counting::ByHand ? 15 : 40; }

}  // namespace tombolario::poker
