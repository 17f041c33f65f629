#include "domino/rules.hpp"

#include <algorithm>
#include <utility>

#include "pieces/number.hpp"

namespace tombolario::domino {

namespace {

constexpr int kGamesToWin = 9;
constexpr int kTilesToWin = 30;

}  // namespace

void Domino::inizioDOMINO(UniformSource& uniform) {
  deal(uniform, mischiadom_, 0, kTiles - 1, kTiles);
  std::fill(inHand_.begin(), inHand_.end(), true);
  std::fill(reversed_.begin(), reversed_.end(), false);
  line_ = {0};
  primodom_ = kOpeningBox;
  playerPassed_ = false;
  signal_ = Signal::Nothing;
  phase_ = playerFits() ? Phase::PlayerToLay : Phase::PlayerStuck;
}

void Domino::begin() {
  if ((phase_ != Phase::PlayerToLay && phase_ != Phase::PlayerStuck) || line_.size() > 1) return;
  gamesWon_ = tilesWonBy_ = {};
}

void Domino::lay(int slot, End end) {
  if (phase_ != Phase::PlayerToLay || slot > kLastOfPlayer || !inHand(slot)) return;
  for (const bool reversed : {false, true}) {
    const Placement placement{end, reversed};
    if (!placement.leavesOpen(tile(slot), open())) continue;
    place(slot, placement);
    phase_ = Phase::ComputerToMove;
    if (tilesLeft(Side::Player) == 0) settle();
    return;
  }
}

void Domino::pass() {
  if (phase_ != Phase::PlayerStuck) return;
  playerPassed_ = true;
  phase_ = Phase::ComputerToMove;
}

void Domino::computerTurn(Level level) {
  if (phase_ != Phase::ComputerToMove) return;
  Position position{{}, open(), contadom(Side::Player)};
  for (const int slot : hand(Side::Computer)) position.hand[slot] = tile(slot);
  const auto choice = choose(position, level);
  const bool blocked = std::exchange(playerPassed_, false) && !choice;
  if (choice) {
    place(choice->sceltadom, choice->mossadom);
  } else {
    signal_ = Signal::ComputerPassed;
  }
  phase_ = Phase::PlayerToLay;
  if (!playerFits()) {
    signal_ = Signal::NoTileFits;
    phase_ = Phase::PlayerStuck;
  }
  if (blocked || tilesLeft(Side::Computer) == 0) settle();
}

void Domino::next(Counting counting, UniformSource& uniform) {
  if (phase_ != Phase::GameOver) return;
  const auto [player, computer] = score(counting);
  if (std::max(player, computer) < (counting == Counting::ByGame ? kGamesToWin : kTilesToWin)) {
    inizioDOMINO(uniform);
  } else {
    phase_ = Phase::MatchOver;
  }
}

int Domino::dealt(int slot) const {
  return slot < kTiles ? mischiadom_[slot] : mischiadom_[slot - kTiles] + kTiles;
}

Numbers<0, kNumbers - 1> Domino::contadom(Side side) const {
  Numbers<0, kNumbers - 1> counts{};
  for (const int slot : hand(side)) {
    for (int number = 0; number < kNumbers; ++number) {
      if (tile(slot).bears(number)) ++counts[number];
    }
  }
  return counts;
}

/// The slots of the tiles that a side still holds, in their order.
std::vector<int> Domino::hand(Side side) const {
  std::vector<int> held;
  for (int slot = kFirstOfPlayer; slot <= kLastOfComputer; ++slot) {
    const Side owner = slot <= kLastOfPlayer ? Side::Player : Side::Computer;
    if (inHand(slot) && owner == side) held.push_back(slot);
  }
  return held;
}

bool Domino::playerFits() const {
  const auto held = hand(Side::Player);
  return std::any_of(held.begin(), held.end(), [this](int slot) { return open().accept(tile(slot)); });
}

/// Puts a tile of either side on the line.
void Domino::place(int slot, const Placement& placement) {
  inHand_[slot] = false;
  reversed_[slot] = placement.reversed;
  if (placement.end == End::Left) {
    line_.push_front(slot);
    --primodom_;
    signal_ = Signal::LaidLeft;
  } else {
    line_.push_back(slot);
    signal_ = Signal::LaidRight;
  }
}

/// The game is over: who holds fewer tiles wins it by the difference, whether one has laid the last or nobody
/// can move.
void Domino::settle() {
  phase_ = Phase::GameOver;
  result_ = Result::Drawn;
  const int ahead = tilesLeft(Side::Computer) - tilesLeft(Side::Player);
  if (ahead > 0) {
    result_ = Result::Won;
    add(gamesWon_.player, 1);
    add(tilesWonBy_.player, ahead);
  }
  if (ahead < 0) {
    result_ = Result::Lost;
    add(gamesWon_.computer, 1);
    add(tilesWonBy_.computer, -ahead);
  }
}

}  // namespace tombolario::domino
