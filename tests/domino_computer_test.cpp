#include "domino/computer.hpp"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "domino_reckoning.hpp"
#include "sanitized.hpp"

namespace tombolario::domino {
namespace {

using reckoning::Pair;

TEST(DominoSet, HasEveryTileBothWaysRound) {
  for (int face = 0; face < 28; ++face) {
    const auto [a, b] = reckoning::set().at(static_cast<std::size_t>(face));
    EXPECT_EQ(kFaceNumbers[face].first, a);
    EXPECT_EQ(kFaceNumbers[face].second, b);
    EXPECT_EQ(kFaceNumbers[face + 28].first, b);
    EXPECT_EQ(kFaceNumbers[face + 28].second, a);
  }
}

/// A position as the computer sees it, with all its slots filled and some of them laid.
View viewOf(const std::map<int, Pair>& hand, int sx, int dx, const std::array<int, 7>& held) {
  View view{};
  for (int slot = kFirstOfComputer; slot <= kLastOfComputer; ++slot) {
    const auto tile = hand.find(slot);
    view.laid[slot] = tile == hand.end();
    if (tile != hand.end()) {
      view.hand[slot] = {static_cast<std::int16_t>(tile->second.first),
                         static_cast<std::int16_t>(tile->second.second)};
    } else {
      view.hand[slot] = {static_cast<std::int16_t>(sx), static_cast<std::int16_t>(dx)};
    }
  }
  view.open = {static_cast<std::int16_t>(sx), static_cast<std::int16_t>(dx)};
  for (int n = 0; n < 7; ++n) {
    view.held[n] = static_cast<std::int16_t>(held.at(static_cast<std::size_t>(n)));
  }
  return view;
}

void expectChoice(const std::map<int, Pair>& hand, int sx, int dx, const std::array<int, 7>& held,
                  bool expert) {
  const Choice found = choose(viewOf(hand, sx, dx, held), expert ? Level::Expert : Level::Beginner);
  const auto plain = reckoning::choice(hand, sx, dx, held, expert);
  ASSERT_EQ(found.mossadom != Placement::None, plain.has_value());
  if (!plain) return;
  ASSERT_EQ(found.sceltadom, plain->slot);
  ASSERT_EQ(isLeft(found.mossadom), plain->left);
  ASSERT_EQ(isReversed(found.mossadom), plain->reversed);
}

TEST(DominoComputer, AgreesWithThePlainDescription) {
  constexpr int kCases = kSanitized ? 5'000 : 100'000;
  std::mt19937 engine(5);
  std::vector<int> tiles(28);
  std::iota(tiles.begin(), tiles.end(), 0);
  for (int i = 0; i < kCases; ++i) {
    std::shuffle(tiles.begin(), tiles.end(), engine);
    const std::size_t own = 1 + engine() % 13;
    const std::size_t players = 1 + engine() % 14;
    std::map<int, Pair> hand;
    std::map<int, Pair> player;
    for (std::size_t k = 0; k < own; ++k) {
      hand[kLastOfComputer - static_cast<int>(k)] = reckoning::set().at(static_cast<std::size_t>(tiles[k]));
    }
    for (std::size_t k = 0; k < players; ++k) {
      player[static_cast<int>(k) + 1] = reckoning::set().at(static_cast<std::size_t>(tiles[27 - k]));
    }
    const auto sx = static_cast<int>(engine() % 7);
    const auto dx = static_cast<int>(engine() % 7);
    for (const bool expert : {false, true}) {
      expectChoice(hand, sx, dx, reckoning::countsOf(player), expert);
      if (testing::Test::HasFatalFailure()) FAIL() << "case " << i;
    }
  }
}

TEST(DominoComputer, ChoosesByItsLevel) {
  const std::map<int, Pair> hand{{15, {2, 3}}, {16, {3, 4}}, {17, {1, 5}}};
  const View view = viewOf(hand, 3, 5, {2, 0, 3, 1, 0, 4, 2});
  const Choice beginner = choose(view, Level::Beginner);
  EXPECT_EQ(beginner.sceltadom, 15);
  EXPECT_EQ(beginner.mossadom, Placement::Left);
  const Choice expert = choose(view, Level::Expert);
  EXPECT_EQ(expert.sceltadom, 17);
  EXPECT_EQ(expert.mossadom, Placement::RightReversed);
  // The number that is open already, by a double; seven in the player's hand.
  EXPECT_EQ(choose(viewOf({{20, {4, 4}}}, 4, 4, {7, 0, 0, 0, 6, 0, 0}), Level::Expert).mossadom,
            Placement::Right);
  EXPECT_EQ(choose(viewOf({{20, {4, 4}}}, 1, 2, {}), Level::Expert).mossadom, Placement::None);
}

}  // namespace
}  // namespace tombolario::domino
