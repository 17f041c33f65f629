#include "poker/rules.hpp"

namespace tombolario::poker {

namespace {

constexpr int kDealt = 51;  // slots of the pack that a deal fills

}  // namespace

void Poker::begin() { playerScore_ = computerScore_ = 0; }

void Poker::avvioPOKER(UniformSource& uniform) {
  classehum = classecom = {};
  deal(uniform, mazzopok, 0, kDealt - 1, kPack);
}

OfHand<int> Poker::changePlayer(const Marks& marked) {
  const auto from = slotsAfterChange(marked);
  for (int i = 0; i < kHandSize; ++i) mazzopok[i] = mazzopok[from[i]];
  classehum = classify(handAt(0));
  return from;
}

std::optional<int> Poker::changeComputer() {
  const auto changed = chooseDraw(handAt(kComputerSlot), card(kNextCardSlot));
  if (changed) mazzopok[kComputerSlot + *changed] = mazzopok[kNextCardSlot];
  classecom = classify(handAt(kComputerSlot));
  return changed;
}

Side Poker::award(Level level, Counting counting) {
  const Side side = winner(classehum, classecom, level);
  if (side == Side::Player)
    playerScore_ = static_cast<std::int16_t>(playerScore_ + points(classehum.kind, counting));
  if (side == Side::Computer) {
    computerScore_ = static_cast<std::int16_t>(computerScore_ + points(classecom.kind, counting));
  }
  return side;
}

Side Poker::matchWinner(Counting counting) const {
  if (playerScore_ > limit(counting)) return Side::Player;
  return computerScore_ > limit(counting) ? Side::Computer : Side::Nobody;
}

Cards Poker::handAt(int slot) const {
  Cards cards{};
  for (int i = 0; i < kHandSize; ++i) cards[i] = card(slot + i);
  return cards;
}

}  // namespace tombolario::poker
