#include "poker/rules.hpp"

namespace tombolario::poker {

namespace {

constexpr int kDealt = 51;  // slots of the pack that a deal fills

}  // namespace

void Poker::begin() {
  fillCardTables(valorepok, semepok);
  playerScore_ = computerScore_ = 0;
}

void Poker::avvioPOKER(UniformSource& uniform) {
  classehum = classecom = {};
  deal(uniform, mazzopok, 0, kDealt - 1, kPack);
  for (int slot = 0; slot < kPack; ++slot) {
    cartavalpok[slot] = valorepok[card(slot)];
    cartasemepok[slot] = semepok[card(slot)];
  }
}

OfHand<int> Poker::changePlayer(const Marks& marked) {
  const auto from = slotsAfterChange(marked);
  for (int i = 0; i < kHandSize; ++i) copyCard(from[i], i);
  classehum = classify(playerHand());
  return from;
}

Draw Poker::changeComputer() {
  const Draw draw = chooseDraw(computerHand(), cartavalpok[kNextCardSlot], cartasemepok[kNextCardSlot]);
  if (draw.changed) copyCard(kNextCardSlot, kComputerSlot + *draw.changed);
  classecom = draw.hand;
  return draw;
}

Side Poker::award(Level level, Counting counting) {
  const Side side = winner(classehum, classecom, level);
  if (side == Side::Player)
    playerScore_ = static_cast<std::int16_t>(playerScore_ + points(classehum, counting));
  if (side == Side::Computer) {
    computerScore_ = static_cast<std::int16_t>(computerScore_ + points(classecom, counting));
  }
  return side;
}

Side Poker::matchWinner(Counting counting) const {
  if (playerScore_ > limit(counting)) return Side::Player;
  return computerScore_ > limit(counting) ? Side::Computer : Side::Nobody;
}

Hand Poker::handAt(int slot) const {
  Hand hand;
  for (int i = 0; i < kHandSize; ++i) {
    hand.value[i] = cartavalpok[slot + i];
    hand.suit[i] = cartasemepok[slot + i];
  }
  return hand;
}

void Poker::copyCard(int from, int to) {
  cartavalpok[to] = cartavalpok[from];
  cartasemepok[to] = cartasemepok[from];
}

}  // namespace tombolario::poker
