#include "poker/rules.hpp"

#include <algorithm>

#include "pieces/number.hpp"
#include "poker/draw.hpp"

namespace tombolario::poker {

namespace {

constexpr int kSlotsDealt = 51;

}  // namespace

void Poker::newMatch(UniformSource& uniform) {
  clearScore();
  avvioPOKER(uniform);
}

void Poker::newHand(UniformSource& uniform) {
  if (!mayDeal_) return;
  mayDeal_ = false;
  avvioPOKER(uniform);
}

void Poker::leave(UniformSource& uniform) {
  if (phase_ == Phase::NoMatch) return;
  mayDeal_ = false;
  clearScore();
  avvioPOKER(uniform);
  phase_ = Phase::NoMatch;
}

void Poker::toggleMark(int position) {
  if (phase_ == Phase::Dealt) marked_[position] = !marked_[position];
}

void Poker::showDown(Level level, Counting counting) {
  if (phase_ != Phase::Dealt) return;
  changePlayer();
  changeComputer();
  award(level, counting);
  mayDeal_ = std::max(playerScore_, computerScore_) <= limit(counting);
  phase_ = mayDeal_ ? Phase::Scored : Phase::MatchOver;
}

/// Shuffles and deals both hands; what the last hand was is forgotten.
void Poker::avvioPOKER(UniformSource& uniform) {
  marked_ = {};
  classehum = classecom = {};
  handWinner_ = Side::Nobody;
  deal(uniform, mazzopok, 0, kSlotsDealt - 1, kPack);
  phase_ = Phase::Dealt;
}

void Poker::changePlayer() {
  changeMarked(mazzopok, marked_);
  marked_ = {};
  classehum = classify(cardsAt(mazzopok, 0));
}

void Poker::changeComputer() {
  const auto changed = chooseDraw(cardsAt(mazzopok, kComputerSlot), card(kNextCardSlot));
  if (changed) mazzopok[kComputerSlot + *changed] = mazzopok[kNextCardSlot];
  classecom = classify(cardsAt(mazzopok, kComputerSlot));
}

void Poker::award(Level level, Counting counting) {
  handWinner_ = winner(classehum, classecom, level);
  if (handWinner_ == Side::Player) add(playerScore_, points(classehum.kind, counting));
  if (handWinner_ == Side::Computer) add(computerScore_, points(classecom.kind, counting));
}

}  // namespace tombolario::poker
