#include "videopoker/rules.hpp"

#include "pieces/number.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::videopoker {

namespace {

constexpr int kShuffled = 52;  // slots of the pack that a deal fills

}  // namespace

void VideoPoker::begin(UniformSource& uniform) {
  if (place_ == Place::Table) return;
  startRun(kFirstBalance, 0);
  avvioVIDEO(uniform);
}

void VideoPoker::load(std::int16_t stored, UniformSource& uniform) {
  if (place_ == Place::Table || !mayLoad_) return;
  mayLoad_ = stored > kFee;
  if (!mayLoad_) return;
  startRun(stored, kFee);
  avvioVIDEO(uniform);
}

void VideoPoker::goOn() {
  if (place_ != Place::Summary || !open_) return;
  maniVP = 0;
  open_ = saldoVP > kFee;
  if (open_) startRun(saldoVP, kFee);
}

bool VideoPoker::save() {
  if (place_ != Place::Summary) return false;
  open_ = saldoVP > kFee;
  return open_;
}

void VideoPoker::end() {
  if (place_ != Place::Table) return;
  place_ = Place::Menu;
  if (phase_ == Phase::Dealt) phase_ = Phase::NoHand;
  litRow_.reset();
}

void VideoPoker::leave() {
  if (place_ == Place::Summary) place_ = Place::Menu;
}

void VideoPoker::newHand(UniformSource& uniform) {
  if (place_ == Place::Table && phase_ == Phase::Scored) avvioVIDEO(uniform);
}

void VideoPoker::toggleMark(int position) {
  if (place_ == Place::Table && phase_ == Phase::Dealt) marked_[position] = !marked_[position];
}

void VideoPoker::change() {
  if (place_ != Place::Table || phase_ != Phase::Dealt) return;
  changeMarked(mazzoVP, marked_);
  const Scoring scoring = score(handOf(cardsAt(mazzoVP, 0)));
  marked_ = {};
  groups_ = scoring.groups;
  litRow_ = scoring.row;
  phase_ = Phase::Scored;
  add(saldoVP, kPayTable[scoring.row].amount);
  if (!spent()) return;
  place_ = Place::Summary;
  open_ = false;
}

/// To the table, with a balance that the fee is still to be taken from.
void VideoPoker::startRun(std::int16_t balance, int fee) {
  place_ = Place::Table;
  open_ = mayLoad_ = true;
  saldoVP = saldoInizioVP = balance;
  add(saldoVP, -fee);
  maniVP = 0;
}

void VideoPoker::avvioVIDEO(UniformSource& uniform) {
  deal(uniform, mazzoVP, 0, kShuffled - 1, kCards);
  phase_ = Phase::Dealt;
  marked_ = {};
  groups_ = {};
  litRow_.reset();
  add(maniVP, 1);
  if (runOver()) place_ = Place::Summary;
}

}  // namespace tombolario::videopoker
