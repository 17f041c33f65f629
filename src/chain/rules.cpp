#include "chain/rules.hpp"

#include <algorithm>
#include <utility>

#include "pieces/number.hpp"

namespace tombolario::chain {

namespace {

constexpr int kLevelPrice = 30;  // the score that opens the next level
constexpr int kMostToExchange = 2;

int mostToSubstitute(Mode mode) { return mode == Mode::OneExchange ? 2 : 1; }
int mostExchanges(Mode mode) { return mode == Mode::OneExchange ? 1 : 2; }

int countOf(const OfRow<bool>& marks) {
  return static_cast<int>(std::count(marks.begin(), marks.end(), true));
}

}  // namespace

int State::nsostcat() const { return countOf(segnacat); }

int State::toExchange() const { return countOf(scambiocat); }

int State::links() const {
  int count = 0;
  for (int position = 1; position < kRow; ++position) {
    count += kChainSet[pescatecat[position]].second == kChainSet[pescatecat[position + 1]].first;
  }
  return count;
}

void Chain::avviocatena(UniformSource& uniform) {
  s_.scambicat = 0;
  s_.segnacat = s_.scambiocat = {};
  deal(uniform, s_.pescatecat, 0, kDrawn - 1, kChainTiles);
  s_.dealt = true;
}

void Chain::markSubstitution(int position, Mode mode) {
  if (s_.segnacat[position] || s_.nsostcat() < mostToSubstitute(mode)) {
    s_.segnacat[position] = !s_.segnacat[position];
  }
}

void Chain::markExchange(int position) {
  if (s_.scambiocat[position] || s_.toExchange() < kMostToExchange) {
    s_.scambiocat[position] = !s_.scambiocat[position];
  }
}

bool Chain::substitute() {
  if (s_.nsostcat() == 0) return false;
  int reserve = kRow + 1;
  for (int position = 1; position <= kRow; ++position) {
    if (s_.segnacat[position]) s_.pescatecat[position] = s_.pescatecat[reserve++];
  }
  s_.segnacat = {};
  return true;
}

bool Chain::exchange() {
  if (s_.toExchange() < kMostToExchange) return false;
  int first = 1;
  while (!s_.scambiocat[first]) ++first;
  int second = first + 1;
  while (!s_.scambiocat[second]) ++second;
  std::swap(s_.pescatecat[first], s_.pescatecat[second]);
  s_.scambiocat = {};
  ++s_.scambicat;
  return true;
}

bool Chain::exchangesLeft(Mode mode) const { return s_.scambicat < mostExchanges(mode); }

bool Chain::endHand() {
  const int links = s_.links();
  add(s_.puntcat, links);
  add(links == kFullChain ? s_.pleincat : s_.manicat, 1);
  if (s_.manicat < kHandsOfALevel) return false;
  s_.manicat = 0;
  return true;
}

void Chain::begin() {
  s_.puntcat = 0;
  s_.pleincat = 0;
  s_.livcat = 1;
}

void Chain::nextLevel() {
  s_.pleincat = 0;
  add(s_.livcat, 1);
  add(s_.puntcat, -kLevelPrice);
}

void Chain::giveUp() {
  s_.manicat = 0;
  s_.livcat = 0;
}

void Chain::resume(std::int16_t score, std::int16_t level) {
  s_.puntcat = score;
  s_.livcat = level;
}

bool Chain::levelPassed() const { return s_.puntcat >= kLevelPrice; }

}  // namespace tombolario::chain
