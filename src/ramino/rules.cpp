#include "ramino/rules.hpp"

#include <algorithm>
#include <utility>

#include "ramino/tris.hpp"

namespace tombolario::ramino {

namespace {

constexpr int kDealt = 51;  // positions of the pack that a deal fills
constexpr int kTriple = 3;

constexpr int firstOfTriple(int card) { return card - card % kTriple; }

}  // namespace

void Ramino::begin() { s_.vintiUmanoRam = s_.vintiCompRam = 0; }

void Ramino::avvioRAM(UniformSource& uniform) {
  s_.phase = Phase::ToDraw;
  s_.result = Result::None;
  s_.nScartiRam = 0;
  s_.selRam = 0;
  s_.cimaRam = kStockFirst;
  s_.marking = {};
  deal(uniform, s_.mazzoRam, 0, kDealt - 1, kPack);
}

void Ramino::freeFrames() {
  s_.selRam = 0;
  std::fill(s_.frames.begin(), s_.frames.end(), FrameState::Free);
}

void Ramino::drawFromStock() {
  list(s_.mazzoRam[kTable]);
  s_.mazzoRam[kInPlay] = s_.mazzoRam[s_.cimaRam];
  ++s_.cimaRam;
  takeInHand();
  if (s_.cimaRam == kStockEnd) end(Result::Drawn);
}

void Ramino::takeFromTable() {
  s_.mazzoRam[kInPlay] = s_.mazzoRam[kTable];
  takeInHand();
}

/// A card is in play: it goes to a place by one press, so nothing stays selected.
void Ramino::takeInHand() {
  s_.phase = Phase::InPlay;
  s_.selRam = 0;
  for (FrameState& frame : s_.frames) {
    if (frame == FrameState::Selected) frame = FrameState::Free;
  }
}

void Ramino::leave() {
  s_.mazzoRam[kTable] = s_.mazzoRam[kInPlay];
  s_.phase = Phase::Placed;
}

void Ramino::press(int card) {
  FrameState& frame = s_.frames[card];
  if (frame == FrameState::Selected) {
    frame = FrameState::Free;
    --s_.selRam;
  } else if (s_.selRam < kTriple) {
    // A `tris` is unlocked whole.
    if (frame == FrameState::Locked) {
      const int first = firstOfTriple(card);
      for (int k = first; k < first + kTriple; ++k) s_.frames[k] = FrameState::Free;
    }
    frame = FrameState::Selected;
    ++s_.selRam;
  }
  if (s_.phase == Phase::InPlay) exchange(card);
  if (s_.selRam == kTriple && selectedAreTris()) lockTris();
}

/// The card in play takes the place of the pressed one, which goes to the table.
void Ramino::exchange(int card) {
  s_.mazzoRam[kTable] = s_.mazzoRam[card];
  s_.mazzoRam[card] = s_.mazzoRam[kInPlay];
  s_.frames[card] = FrameState::Free;
  s_.selRam = 0;
  s_.phase = Phase::Placed;
}

bool Ramino::selectedAreTris() const {
  Numbers<0, kTriple - 1> chosen{};
  int count = 0;
  for (int k = 0; k < kPlayerCards; ++k) {
    if (s_.frames[k] == FrameState::Selected) chosen[count++] = s_.mazzoRam[k];
  }
  const auto [a, b, c] = chosen.items;
  return isSet(a, b, c) || isRun(a, b, c) || isHighRun(a, b, c);
}

/// The selected cards move into the first triple that is not locked; what stood there takes their places.
void Ramino::lockTris() {
  s_.selRam = 0;
  int posTrisRam = 0;
  while (posTrisRam < 2 * kTriple && s_.frames[posTrisRam] == FrameState::Locked) posTrisRam += kTriple;
  for (int k = 0; k < kPlayerCards; ++k) {
    if (s_.frames[k] != FrameState::Selected) continue;
    std::swap(s_.mazzoRam[posTrisRam], s_.mazzoRam[k]);
    s_.frames[posTrisRam++] = FrameState::Locked;
    if (s_.frames[k] != FrameState::Locked) s_.frames[k] = FrameState::Free;
  }
  const auto gialliRam = std::count(s_.frames.begin(), s_.frames.end(), FrameState::Locked);
  if (gialliRam == kPlayerCards) end(Result::Won);
}

void Ramino::swapSelected() {
  const auto first = std::find(s_.frames.begin(), s_.frames.end(), FrameState::Selected);
  const auto second = std::find(first + 1, s_.frames.end(), FrameState::Selected);
  std::swap(s_.mazzoRam[static_cast<int>(first - s_.frames.begin())],
            s_.mazzoRam[static_cast<int>(second - s_.frames.begin())]);
  *first = *second = FrameState::Free;
  s_.selRam = 0;
}

bool Ramino::computerTurn(Level level) {
  s_.phase = Phase::ToDraw;
  if (level == Level::Expert) {
    clearPairs(s_.marking);
    consider(kTable);
    analyse();
    const bool takes = s_.marking.segnoRam[kConsidered] == Mark::Tris;
    if (takes) fitIn();
    if (countInTris(s_.marking) == 3 * kTriple) end(Result::Lost);
    if (takes || s_.result == Result::Lost) return takes;
  }
  clearPairs(s_.marking);
  consider(s_.cimaRam);
  analyse();
  const std::int16_t covered = s_.mazzoRam[kTable];
  if (place()) {
    ++s_.cimaRam;
    list(covered);
  }
  const int inTris = countInTris(s_.marking);
  if (inTris == 3 * kTriple) {
    end(Result::Lost);
  } else if (inTris < 3 * kTriple && s_.cimaRam == kStockEnd) {
    end(Result::Drawn);
  }
  return false;
}

/// A table card is covered by one from the stock.
void Ramino::list(std::int16_t card) { s_.scarti[s_.nScartiRam++] = card; }

/// Looks at the card of a position, which inherits the mark of the one that was looked at before.
void Ramino::consider(int position) { s_.mazzoRam[kConsidered] = s_.mazzoRam[position]; }

void Ramino::analyse() {
  ComputerCards cards{};
  for (int position = kComputerFirst; position <= kConsidered; ++position) {
    cards[position] = s_.mazzoRam[position];
  }
  ramino::analyse(cards, s_.marking);
}

/// Throws the card from the stock, or keeps it and throws another. False if it can do neither: four `tris`
/// leave no card to throw.
bool Ramino::place() {
  const Mark mark = s_.marking.segnoRam[kConsidered];
  const bool thrown = mark == Mark::Free || (mark == Mark::Pair && allMarked(s_.marking));
  if (thrown) s_.mazzoRam[kTable] = s_.mazzoRam[kConsidered];
  const bool kept = mark != Mark::Free && fitIn();
  return thrown || kept;
}

/// The considered card takes the lowest free place in the hand, or, to complete a `tris` in a hand without
/// one, that of the lowest paired card, and throws what is there. False if there is no such place.
bool Ramino::fitIn() {
  auto& marks = s_.marking.segnoRam;
  const bool breaksPairs = allMarked(s_.marking) && marks[kConsidered] == Mark::Tris;
  for (int position = kComputerFirst; position <= kComputerLast; ++position) {
    const bool gives = marks[position] == Mark::Free || (marks[position] == Mark::Pair && breaksPairs);
    if (!gives) continue;
    s_.mazzoRam[kTable] = s_.mazzoRam[position];
    s_.mazzoRam[position] = s_.mazzoRam[kConsidered];
    marks[position] = marks[kConsidered];
    s_.marking.grupRam[position] = s_.marking.grupRam[kConsidered];
    marks[kConsidered] = Mark::Free;
    return true;
  }
  return false;
}

void Ramino::end(Result result) {
  s_.phase = Phase::Over;
  s_.result = result;
  if (result == Result::Won) ++s_.vintiUmanoRam;
  if (result == Result::Lost) ++s_.vintiCompRam;
}

}  // namespace tombolario::ramino
