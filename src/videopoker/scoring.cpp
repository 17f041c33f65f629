#include "videopoker/scoring.hpp"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace tombolario::videopoker {

namespace {

/// A joker with four unrelated cards counts as a pair of this value, which no card has.
constexpr std::int16_t kNoCardValue = 15;

/// Finds the values of the groups of equal cards. Of two groups the one that counts more comes first: the
/// three of a full house, else the higher pair, and aces before all.
void findGroups(const Hand& hand, Scoring& s) {
  for (std::int16_t value = 0; value <= 12; ++value) {
    if (times(hand, value) < 2) continue;
    s.gruppoVP = value;
    s.gruppiVP = {value, s.gruppiVP[0]};
  }
  const auto [first, second] = s.gruppiVP;
  const bool wrongWayRound = s.coppieVP == 4 ? times(hand, second) == 3 : times(hand, 0) == 2;
  if (wrongWayRound) std::swap(s.gruppiVP[0], s.gruppiVP[1]);
}

}  // namespace

Row Scoring::row() const { return static_cast<Row>(std::find(lit.begin(), lit.end(), true) - lit.begin()); }

Scoring score(const Hand& hand) {
  Scoring s;
  const LikePairs pairs = countLikePairs(hand);
  s.coppieVP = pairs.inValue;
  s.colorePariVP = pairs.inSuit;
  findGroups(hand, s);
  const auto ordinatiVP = sortedValues(hand);
  bool jollyVP = ordinatiVP[4] == kJokerValue;  // held, and not yet used

  const auto on = [&](Row row) { s.lit[row] = true; };
  const auto off = [&](std::initializer_list<Row> rows) {
    for (const Row row : rows) s.lit[row] = false;
  };
  const int d03 = ordinatiVP[3] - ordinatiVP[0];
  const int d13 = ordinatiVP[3] - ordinatiVP[1];
  const int d04 = ordinatiVP[4] - ordinatiVP[0];
  const int d14 = ordinatiVP[4] - ordinatiVP[1];
  const bool ace = ordinatiVP[0] == 0;

  // The tests run in this order, and each works on what the ones before it left.
  if (s.coppieVP == 0) on(kNothing);

  // The joker completes a straight flush, low or ace high.
  const bool fourInSuit = jollyVP && s.coppieVP == 0 && s.colorePariVP == 6;
  if (fourInSuit && (d03 <= 4 || (ace && ordinatiVP[1] >= 9 && d13 <= 3))) {
    off({kNothing});
    on(kStraightFlush);
    jollyVP = false;
  }
  // It completes a flush; its row is lit below.
  if (s.colorePariVP == 6 && jollyVP) {
    s.colorePariVP = 10;
    jollyVP = false;
  }
  // It completes a straight: at an end, in a gap, or beside an ace. The last has no lower limit, so that
  // ace, 4, 5, 6 and the joker is a straight too.
  if (s.coppieVP == 0 && jollyVP && (d03 == 3 || d03 == 4 || (ace && d13 <= 3))) {
    off({kNothing});
    on(kStraight);
    jollyVP = false;
  }
  // It finds nothing better than a pair.
  if (s.coppieVP == 0 && jollyVP) {
    off({kNothing});
    s.gruppoVP = kNoCardValue;
    s.coppieVP = 1;
    jollyVP = false;
  }
  // It raises a group by one step.
  if (jollyVP) {
    switch (s.coppieVP) {
      case 1: s.coppieVP = 3; break;
      case 2: s.coppieVP = 4; break;
      case 3: s.coppieVP = 6; break;
      case 6: s.coppieVP = 12; break;
      default: break;
    }
  }

  if (s.coppieVP == 1) on(kPair);
  if (s.coppieVP == 2) on(kTwoPairs);
  if (s.coppieVP == 3) on(kThree);
  const bool straight = s.coppieVP == 0 && (d04 == 4 || (ace && ordinatiVP[4] == 12 && d14 == 3));
  if (straight) {
    off({kNothing});
    on(kStraight);
  }
  if (s.coppieVP == 4) on(kFull);
  if (s.colorePariVP == 10) {
    off({kNothing});
    on(kFlush);
  }
  // Only the second card is asked for its suit.
  if (s.colorePariVP == 10 && hand.suit[1] == 1) {
    off({kFlush});
    on(kRedFlush);
  }
  if (s.coppieVP == 6) on(kFour);
  if (s.coppieVP == 12) on(kFive);
  if (straight && s.colorePariVP == 10) {
    off({kStraight, kFlush, kRedFlush});
    on(kStraightFlush);
  }
  return s;
}

Group groupOf(const Scoring& s, std::int16_t value) {
  switch (s.coppieVP) {
    case 1:
    case 3:
    case 6: return value == s.gruppoVP ? Group::First : Group::None;
    case 2:
    case 4:
      if (value == s.gruppiVP[0]) return Group::First;
      return value == s.gruppiVP[1] ? Group::Second : Group::None;
    default: return Group::None;
  }
}

}  // namespace tombolario::videopoker
