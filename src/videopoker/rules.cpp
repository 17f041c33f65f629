#include "videopoker/rules.hpp"

#include <algorithm>
#include <limits>

#include "pieces/pay_tables.hpp"

namespace tombolario::videopoker {

namespace {

constexpr int kShuffled = 52;  // slots of the pack that a deal fills

}  // namespace

void VideoPoker::fillTables() {
  fillCardTables(valoreCartaVP, semeCartaVP);
  valoreCartaVP[kPack] = kJokerValue;
  semeCartaVP[kPack] = kJokerSuit;
}

void VideoPoker::begin() {
  fillTables();
  saldoVP = saldoInizioVP = kFirstBalance;
  maniVP = 0;
}

bool VideoPoker::load(std::int16_t stored) {
  saldoFileVP = stored;
  if (saldoFileVP <= kFee) return false;
  saldoInizioVP = saldoFileVP;
  saldoVP = static_cast<std::int16_t>(saldoFileVP - kFee);
  fillTables();
  maniVP = 0;
  return true;
}

bool VideoPoker::goOn() {
  maniVP = 0;
  if (saldoVP <= kFee) return false;
  saldoInizioVP = saldoVP;
  saldoVP = static_cast<std::int16_t>(saldoVP - kFee);
  return true;
}

bool VideoPoker::avvioVIDEO(UniformSource& uniform) {
  deal(uniform, mazzoVP, 0, kShuffled - 1, kCards);
  ++maniVP;
  for (int slot = 0; slot < kSlots; ++slot) {
    valoreVP[slot] = valoreCartaVP[card(slot)];
    semeVP[slot] = semeCartaVP[card(slot)];
  }
  return maniVP == kRunDeals;
}

OfHand<int> VideoPoker::change(const Marks& marked) {
  const auto from = slotsAfterChange(marked);
  for (int i = 0; i < kHandSize; ++i) {
    valoreVP[i] = valoreVP[from[i]];
    semeVP[i] = semeVP[from[i]];
  }
  return from;
}

Hand VideoPoker::hand() const {
  Hand hand;
  std::copy_n(valoreVP.begin(), kHandSize, hand.value.begin());
  std::copy_n(semeVP.begin(), kHandSize, hand.suit.begin());
  return hand;
}

void VideoPoker::pay(Row row) {
  const int sum = saldoVP + kPayTable[row].amount;
  saldoVP = static_cast<std::int16_t>(std::min<int>(sum, std::numeric_limits<std::int16_t>::max()));
}

}  // namespace tombolario::videopoker
