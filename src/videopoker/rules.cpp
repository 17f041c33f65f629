#include "videopoker/rules.hpp"

#include <algorithm>
#include <limits>

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
  uniform.seedFromClock();
  mescola(uniform, mazzoVP, 0, kShuffled - 1, kCards);
  ++maniVP;
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    valoreVP[slot] = valoreCartaVP.at(static_cast<std::size_t>(mazzoVP[slot]));
    semeVP[slot] = semeCartaVP.at(static_cast<std::size_t>(mazzoVP[slot]));
  }
  return maniVP == kRunDeals;
}

std::array<int, kHandSize> VideoPoker::change(const std::array<bool, kHandSize>& marked) {
  std::array<int, kHandSize> from{};
  std::size_t next = kHandSize;
  for (std::size_t i = 0; i < kHandSize; ++i) {
    const std::size_t slot = marked[i] ? next++ : i;
    valoreVP[i] = valoreVP[slot];
    semeVP[i] = semeVP[slot];
    from[i] = static_cast<int>(slot);
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
  const int sum = saldoVP + kPay[row];
  saldoVP = static_cast<std::int16_t>(std::min<int>(sum, std::numeric_limits<std::int16_t>::max()));
}

}  // namespace tombolario::videopoker
