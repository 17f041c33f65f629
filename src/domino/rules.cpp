#include "domino/rules.hpp"

#include <algorithm>

namespace tombolario::domino {

namespace {

constexpr int kGamesToWin = 9;
constexpr int kTilesToWin = 30;

}  // namespace

void Domino::begin() { s_.partumdom = s_.partcomdom = s_.pedumdom = s_.pedcomdom = 0; }

void Domino::inizioDOMINO(UniformSource& uniform) {
  s_.lesx = s_.ledx = Signal::Nothing;
  s_.primodom = s_.ultimodom = kOpeningBox;
  std::fill(s_.inHand.begin(), s_.inHand.end(), true);
  std::fill(s_.usatacomdom.begin(), s_.usatacomdom.end(), false);
  s_.posateumdom = 0;
  s_.posatecomdom = 1;
  s_.computerToMove = false;
  s_.result = Result::None;
  deal(uniform, s_.mischiadom, 0, kTiles - 1, kTiles);
  for (int slot = 0; slot < kTiles; ++slot) {
    s_.numdom[slot] = kFaceNumbers[s_.mischiadom[slot]];
    s_.numdom[slot + kTiles] = kFaceNumbers[s_.mischiadom[slot] + kTiles];
  }
  s_.open = {s_.numdom[0].first, s_.numdom[0].second};
  s_.puodom = playerFits();
  s_.playerToLay = s_.puodom;
  s_.playerToPass = !s_.puodom;
}

std::optional<int> Domino::lay(int slot, Placement asItLies, Placement reversed) {
  if (s_.computerToMove || s_.result != Result::None || !s_.inHand[slot]) return std::nullopt;
  const Placement placement = leavesOpen(asItLies, s_.numdom[slot], s_.open) ? asItLies : reversed;
  if (!leavesOpen(placement, s_.numdom[slot], s_.open)) return std::nullopt;
  const int face = place(slot, placement);
  s_.inHand[slot] = false;
  s_.computerToMove = true;
  s_.playerToLay = false;
  if (++s_.posateumdom == kHand) end(Result::Won, kHand - s_.posatecomdom);
  calcoloDOMINO();
  return face;
}

void Domino::pass() {
  s_.computerToMove = true;
  s_.playerToPass = false;
}

std::optional<Domino::Laid> Domino::computerTurn(Level level) {
  s_.computerToMove = false;
  View view{{}, s_.usatacomdom, s_.open, {}};
  for (int slot = kFirstOfComputer; slot <= kLastOfComputer; ++slot) view.hand[slot] = s_.numdom[slot];
  for (int number = 0; number < kNumbers; ++number) view.held[number] = s_.contadom[number];
  const auto [mossadom, sceltadom] = choose(view, level);

  std::optional<Laid> laid;
  if (mossadom != Placement::None) {
    s_.usatacomdom[sceltadom] = true;
    ++s_.posatecomdom;
    laid = {place(sceltadom, mossadom), isLeft(mossadom)};
  } else {
    // Orange at the left tells that the player has just passed: then nobody can move.
    if (s_.lesx == Signal::PlayerStuck) settleBlock();
    s_.lesx = s_.ledx = Signal::ComputerPassed;
  }
  s_.playerToLay = true;
  if (s_.posatecomdom == kHand) {
    s_.playerToLay = false;
    end(Result::Lost, kHand - s_.posateumdom);
  }
  calcoloDOMINO();

  s_.puodom = playerFits();
  s_.playerToPass = !s_.puodom && s_.result == Result::None;
  if (!s_.puodom) {
    s_.playerToLay = false;
    s_.lesx = s_.ledx = Signal::PlayerStuck;
  }
  return laid;
}

void Domino::calcoloDOMINO() {
  for (int number = 0; number < kNumbers; ++number) {
    const auto bears = [&](int slot) { return s_.numdom[slot].bears(number); };
    std::int16_t& player = s_.contadom[number] = 0;
    std::int16_t& computer = s_.contadom[number + kNumbers] = 0;
    for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
      if (s_.inHand[slot] && bears(slot)) ++player;
    }
    for (int slot = kFirstOfComputer; slot <= kLastOfComputer; ++slot) {
      if (!s_.usatacomdom[slot] && bears(slot)) ++computer;
    }
  }
}

bool Domino::matchOver(Counting counting) const {
  if (counting == Counting::ByGame) return s_.partumdom == kGamesToWin || s_.partcomdom == kGamesToWin;
  return s_.pedumdom >= kTilesToWin || s_.pedcomdom >= kTilesToWin;
}

/// Puts a tile of either side on the line. Gives the slot of the face as it lies.
int Domino::place(int slot, Placement placement) {
  const std::int16_t open = *leavesOpen(placement, s_.numdom[slot], s_.open);
  if (isLeft(placement)) {
    s_.open.sxdom = open;
    --s_.primodom;
  } else {
    s_.open.dxdom = open;
    ++s_.ultimodom;
  }
  s_.lesx = isLeft(placement) ? Signal::LastMove : Signal::Nothing;
  s_.ledx = isLeft(placement) ? Signal::Nothing : Signal::LastMove;
  return isReversed(placement) ? slot + kTiles : slot;
}

/// Who has laid more tiles wins a game in which nobody can move.
void Domino::settleBlock() {
  const int ahead = s_.posateumdom - s_.posatecomdom;
  if (ahead > 0) {
    end(Result::Won, ahead);
  } else if (ahead < 0) {
    end(Result::Lost, -ahead);
  } else {
    end(Result::Drawn, 0);
  }
}

/// A game that is over, by so many tiles.
void Domino::end(Result result, int tiles) {
  s_.result = result;
  s_.computerToMove = s_.playerToPass = false;
  const auto add = [](std::int16_t& tally, int more) { tally = static_cast<std::int16_t>(tally + more); };
  if (result == Result::Won) {
    add(s_.partumdom, 1);
    add(s_.pedumdom, tiles);
  }
  if (result == Result::Lost) {
    add(s_.partcomdom, 1);
    add(s_.pedcomdom, tiles);
  }
}

bool Domino::playerFits() const {
  for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
    if (s_.inHand[slot] && fits(s_.numdom[slot], s_.open)) return true;
  }
  return false;
}

}  // namespace tombolario::domino
