#include "poker/classification.hpp"

#include <utility>

#include "pieces/cards.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::poker {

namespace {

/// The ace stands above the king wherever groups and odd cards are compared.
constexpr std::int16_t kAceRank = 13;

std::int16_t rankOf(std::int16_t value) { return value == 0 ? kAceRank : value; }

const char* letterOf(std::int16_t rank) { return kValueNames[rank % kAceRank]; }

/// The class of a hand by the pairs of positions that are alike in value: one for a pair, three among three
/// cards, six among four.
HandClass classOfGroups(int pairs) {
  switch (pairs) {
    case 1: return kPair;
    case 2: return kTwoPairs;
    case 3: return kThree;
    case 4: return kFull;
    case 6: return kFour;
    default: return kNothing;
  }
}

/// The ranks of the groups: the three of a full house before its pair, else the higher one first.
std::array<std::int16_t, 2> ranksOfGroups(const Hand& hand) {
  std::array<std::pair<int, std::int16_t>, 2> groups{};
  for (std::int16_t value = 0; value < kValues; ++value) {
    const std::pair group{times(hand, value), rankOf(value)};
    if (group.first < 2) continue;
    if (group > groups[0]) {
      groups = {group, groups[0]};
    } else {
      groups[1] = group;
    }
  }
  return {groups[0].second, groups[1].second};
}

std::int16_t rankOfOddCard(const Hand& hand) {
  for (const std::int16_t value : hand.value) {
    if (times(hand, value) == 1) return rankOf(value);
  }
  return 0;
}

}  // namespace

Classification classify(const Cards& cards) {
  const Hand hand = handOf(cards);
  const LikePairs pairs = countLikePairs(hand);
  Classification found;
  found.kind = classOfGroups(pairs.inValue);
  if (pairs.inValue > 0) {
    const auto [first, second] = ranksOfGroups(hand);
    found.confrontopok = {first, second, found.kind == kTwoPairs ? rankOfOddCard(hand) : std::int16_t{0}};
    return found;
  }

  const bool oneSuit = pairs.inSuit == 10;
  if (oneSuit) found.kind = kFlush;
  const auto values = sortedValues(hand);
  const bool upFromLow = values[4] - values[0] == 4;
  const bool upToTheAce = values[0] == 0 && values[4] == 12 && values[4] - values[1] == 3;
  if (upFromLow || upToTheAce) {
    found.kind = oneSuit ? kStraightFlush : kStraight;
    found.cimapok = upFromLow ? values[4] : values[0];
  }
  return found;
}

std::string Classification::text() const {
  std::string name = kCombinations[kind].name;
  const std::string first = letterOf(confrontopok[0]);
  switch (kind) {
    case kPair:
    case kThree:
    case kFour: return name + "   " + first;
    case kTwoPairs:
    case kFull: return name + "   " + first + '/' + letterOf(confrontopok[1]);
    default: return name;
  }
}

Role Classification::roleOf(int card) const {
  const auto value = static_cast<std::int16_t>(cardValue(card));
  if (isStraight()) return value == cimapok ? Role::Top : Role::None;
  if (rankOf(value) == confrontopok[0]) return Role::FirstGroup;
  return rankOf(value) == confrontopok[1] ? Role::SecondGroup : Role::None;
}

}  // namespace tombolario::poker
