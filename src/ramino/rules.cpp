#include "ramino/rules.hpp"

#include <algorithm>
#include <utility>

#include "pieces/number.hpp"
#include "ramino/tris.hpp"

namespace tombolario::ramino {

namespace {

constexpr int kHandsToWin = 9;
constexpr int kTriple = 3;
constexpr int kToWin = 3 * kTriple;  // cards in `tris`

}  // namespace

void Ramino::newMatch(UniformSource& uniform) {
  vintiUmanoRam = vintiCompRam = 0;
  avvioRAM(uniform);
}

void Ramino::nextHand(UniformSource& uniform) {
  if (goesOn()) avvioRAM(uniform);
}

void Ramino::avvioRAM(UniformSource& uniform) {
  phase_ = Phase::ToDraw;
  inPlayFrom_ = Pile::None;
  tableCardShown_ = false;
  nScartiRam = 0;
  cimaRam = kStockFirst;
  marking_ = {};
  frames_ = {};
  deal(uniform, mazzoRam, 0, kStockEnd - 1, kPack);
}

void Ramino::drawFromStock() {
  if (phase_ != Phase::ToDraw) return;
  list(mazzoRam[kTable]);
  mazzoRam[kInPlay] = mazzoRam[cimaRam];
  add(cimaRam, 1);
  takeInHand(Pile::Stock);
  if (cimaRam == kStockEnd) end(Phase::StockOut);
}

void Ramino::takeFromTable() {
  if (phase_ != Phase::ToDraw) return;
  mazzoRam[kInPlay] = mazzoRam[kTable];
  takeInHand(Pile::Table);
}

/// A card is in play: it goes to a place by one press, so nothing stays selected.
void Ramino::takeInHand(Pile from) {
  phase_ = Phase::InPlay;
  inPlayFrom_ = from;
  std::replace(frames_.begin(), frames_.end(), FrameState::Selected, FrameState::Free);
}

void Ramino::leave() {
  if (phase_ != Phase::InPlay) return;
  mazzoRam[kTable] = mazzoRam[kInPlay];
  phase_ = Phase::Placed;
  inPlayFrom_ = Pile::None;
}

void Ramino::press(int card) {
  if (phase_ == Phase::NoHand || isOver()) return;
  FrameState& frame = frames_[card];
  if (phase_ == Phase::InPlay) {
    unlock(card);
    std::swap(mazzoRam[card], mazzoRam[kInPlay]);
    leave();
  } else if (frame == FrameState::Selected) {
    frame = FrameState::Free;
  } else if (selRam() < kTriple) {
    unlock(card);
    frame = FrameState::Selected;
    if (selRam() == kTriple && selectedAreTris()) lockTris();
  }
}

/// A `tris` is unlocked whole.
void Ramino::unlock(int card) {
  if (frames_[card] != FrameState::Locked) return;
  const int first = card - card % kTriple;
  for (int k = first; k < first + kTriple; ++k) frames_[k] = FrameState::Free;
}

int Ramino::selRam() const {
  return static_cast<int>(std::count(frames_.begin(), frames_.end(), FrameState::Selected));
}

bool Ramino::selectedAreTris() const {
  Numbers<0, kTriple - 1> chosen{};
  int count = 0;
  for (int k = 0; k < kPlayerCards; ++k) {
    if (frames_[k] == FrameState::Selected) chosen[count++] = mazzoRam[k];
  }
  const auto [a, b, c] = chosen.items;
  return isSet(a, b, c) || isRun(a, b, c) || isHighRun(a, b, c);
}

/// The selected cards move into the first triple that is not locked; what stood there takes their places.
void Ramino::lockTris() {
  int posTrisRam = 0;
  while (posTrisRam < 2 * kTriple && frames_[posTrisRam] == FrameState::Locked) posTrisRam += kTriple;
  for (int k = 0; k < kPlayerCards; ++k) {
    if (frames_[k] != FrameState::Selected) continue;
    std::swap(mazzoRam[posTrisRam], mazzoRam[k]);
    frames_[posTrisRam++] = FrameState::Locked;
    if (frames_[k] != FrameState::Locked) frames_[k] = FrameState::Free;
  }
  const auto gialliRam = std::count(frames_.begin(), frames_.end(), FrameState::Locked);
  if (gialliRam == kToWin) end(Phase::Won);
}

void Ramino::swapSelected() {
  if (selRam() != 2) return;
  int first = 0;
  while (frames_[first] != FrameState::Selected) ++first;
  int second = first + 1;
  while (frames_[second] != FrameState::Selected) ++second;
  std::swap(mazzoRam[first], mazzoRam[second]);
  frames_[first] = frames_[second] = FrameState::Free;
}

void Ramino::computerTurn(Level level) {
  if (phase_ != Phase::Placed) return;
  phase_ = Phase::ToDraw;
  tableCardShown_ = level == Level::Expert && lookAtTable();
  if (!tableCardShown_ && countInTris(marking_) != kToWin) playFromStock();
  if (countInTris(marking_) == kToWin) {
    end(Phase::Lost);
  } else if (cimaRam == kStockEnd) {
    end(Phase::StockOut);
  }
}

/// The expert's first look. True if the table card completes a `tris`, and then that is the turn: the card
/// goes to the hand, unless four `tris` leave no place for it there.
bool Ramino::lookAtTable() {
  consider(kTable);
  if (marking_.segnoRam[kConsidered] != Mark::Tris) return false;
  fitIn();
  return true;
}

/// The next card of the stock is kept or thrown. Four `tris` leave no card to throw: it stays on the stock.
void Ramino::playFromStock() {
  const std::int16_t covered = mazzoRam[kTable];
  consider(cimaRam);
  if (!place()) return;
  add(cimaRam, 1);
  list(covered);
}

/// Looks at the hand with the card of a position, which inherits the mark of the one that was looked at
/// before.
void Ramino::consider(int position) {
  mazzoRam[kConsidered] = mazzoRam[position];
  ComputerCards cards{};
  for (int p = kComputerFirst; p <= kConsidered; ++p) cards[p] = mazzoRam[p];
  clearPairs(marking_);
  analyse(cards, marking_);
}

/// Throws the considered card, or keeps it and throws another. False if it can do neither.
bool Ramino::place() {
  const Mark mark = marking_.segnoRam[kConsidered];
  const bool thrown = mark == Mark::Free || (mark == Mark::Pair && allMarked(marking_));
  if (thrown) mazzoRam[kTable] = mazzoRam[kConsidered];
  return thrown || fitIn();
}

/// The considered card takes the lowest free place in the hand, or, to complete a `tris` in a hand without
/// one, that of the lowest paired card, and throws what is there. False if there is no such place.
bool Ramino::fitIn() {
  auto& marks = marking_.segnoRam;
  const bool breaksPairs = allMarked(marking_) && marks[kConsidered] == Mark::Tris;
  for (int position = kComputerFirst; position <= kComputerLast; ++position) {
    const bool gives = marks[position] == Mark::Free || (marks[position] == Mark::Pair && breaksPairs);
    if (!gives) continue;
    mazzoRam[kTable] = mazzoRam[position];
    mazzoRam[position] = mazzoRam[kConsidered];
    marks[position] = marks[kConsidered];
    marking_.grupRam[position] = marking_.grupRam[kConsidered];
    marks[kConsidered] = Mark::Free;
    return true;
  }
  return false;
}

/// A table card is covered by one from the stock.
void Ramino::list(std::int16_t card) {
  scarti_[nScartiRam] = card;
  add(nScartiRam, 1);
}

void Ramino::end(Phase how) {
  phase_ = how;
  if (how == Phase::StockOut) return;
  add(how == Phase::Won ? vintiUmanoRam : vintiCompRam, 1);
  tableCardShown_ = false;
}

bool Ramino::goesOn() const { return isOver() && vintiUmanoRam < kHandsToWin && vintiCompRam < kHandsToWin; }

}  // namespace tombolario::ramino
