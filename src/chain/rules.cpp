#include "chain/rules.hpp"

#include <algorithm>
#include <utility>

#include "pieces/number.hpp"

namespace tombolario::chain {

namespace {

constexpr int kHandsOfALevel = 10;
constexpr int kLevelPrice = 30;  // the score that opens the next level
constexpr int kMostToExchange = 2;

int mostToSubstitute(Mode mode) { return mode == Mode::OneExchange ? 2 : 1; }
int mostExchanges(Mode mode) { return mode == Mode::OneExchange ? 1 : 2; }

int countOf(const OfRow<bool>& marks) {
  return static_cast<int>(std::count(marks.begin(), marks.end(), true));
}

/// Marks a position where fewer are marked than may be, or takes its mark back.
void toggle(OfRow<bool>& marks, int position, int most) {
  marks[position] = !marks[position] && countOf(marks) < most;
}

}  // namespace

void Chain::avviocatena(UniformSource& uniform) {
  scambicat = 0;
  substituted_ = false;
  segnacat = exchanging_ = {};
  deal(uniform, pescatecat, 0, kDrawn - 1, kChainTiles);
  dealt_ = true;
}

void Chain::openLevel() {
  phase_ = Phase::InLevel;
  hasLevel_ = true;
  pleincat = 0;
}

void Chain::begin(UniformSource& uniform) {
  if (phase_ == Phase::InLevel) return;
  avviocatena(uniform);
  openLevel();
  puntcat = 0;
  livcat = 1;
}

/// Only a stored game can come here without a hand dealt.
void Chain::nextLevel(UniformSource& uniform) {
  if (phase_ != Phase::LevelPassed) return;
  if (!dealt_) avviocatena(uniform);
  openLevel();
  add(livcat, 1);
  add(puntcat, -kLevelPrice);
}

void Chain::endHand(UniformSource& uniform) {
  if (phase_ != Phase::InLevel) return;
  add(puntcat, links());
  add(links() == kFullChain ? pleincat : manicat, 1);
  if (handsLeft() == 0) {
    manicat = 0;
    mayStore_ = puntcat >= kLevelPrice;
    phase_ = mayStore_ ? Phase::LevelPassed : Phase::LevelFailed;
  }
  avviocatena(uniform);
}

void Chain::giveUp(UniformSource& uniform) {
  if (phase_ != Phase::InLevel) return;
  phase_ = Phase::Idle;
  mayStore_ = hasLevel_ = false;
  puntcat = livcat = manicat = 0;
  avviocatena(uniform);
}

void Chain::leave() {
  if (phase_ == Phase::InLevel) return;
  phase_ = Phase::Idle;
  mayStore_ = false;
}

void Chain::resume(std::int16_t score, std::int16_t level) {
  if (phase_ == Phase::InLevel || !mayResume_) return;
  mayResume_ = score != 0;
  if (score <= 0) return;
  phase_ = Phase::LevelPassed;
  puntcat = score;
  livcat = level;
}

void Chain::markSubstitution(int position, Mode mode) {
  if (phase_ == Phase::InLevel && !substituted_) toggle(segnacat, position, mostToSubstitute(mode));
}

void Chain::substitute() {
  if (nsostcat() == 0) return;
  int reserve = kRow + 1;
  for (int position = 1; position <= kRow; ++position) {
    if (segnacat[position]) pescatecat[position] = pescatecat[reserve++];
  }
  segnacat = {};
  substituted_ = true;
}

void Chain::markExchange(int position, Mode mode) {
  if (phase_ == Phase::InLevel && exchangesLeft(mode)) toggle(exchanging_, position, kMostToExchange);
}

void Chain::exchange() {
  if (!canExchange()) return;
  int first = 1;
  while (!exchanging_[first]) ++first;
  int second = first + 1;
  while (!exchanging_[second]) ++second;
  std::swap(pescatecat[first], pescatecat[second]);
  exchanging_ = {};
  add(scambicat, 1);
}

int Chain::handsLeft() const { return kHandsOfALevel - manicat; }

int Chain::links() const {
  int count = 0;
  for (int position = 1; position < kRow; ++position) {
    count += kChainSet[tile(position)].second == kChainSet[tile(position + 1)].first;
  }
  return count;
}

int Chain::nsostcat() const { return countOf(segnacat); }

bool Chain::canExchange() const { return countOf(exchanging_) == kMostToExchange; }

bool Chain::exchangesLeft(Mode mode) const { return scambicat < mostExchanges(mode); }

}  // namespace tombolario::chain
