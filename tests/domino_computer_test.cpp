#include "domino/rules.hpp"

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

/// A position as the computer sees it.
Position positionOf(const std::map<int, Pair>& hand, int sx, int dx, const std::array<int, 7>& held) {
  const auto number = [](int n) { return static_cast<std::int16_t>(n); };
  Position position{{}, {number(sx), number(dx)}, {}};
  for (const auto& [slot, tile] : hand) position.hand[slot] = Tile{number(tile.first), number(tile.second)};
  for (int n = 0; n < 7; ++n) position.held[n] = number(held.at(static_cast<std::size_t>(n)));
  return position;
}

void expectChoice(const std::map<int, Pair>& hand, int sx, int dx, const std::array<int, 7>& held,
                  bool expert) {
  const auto found = choose(positionOf(hand, sx, dx, held), expert ? Level::Expert : Level::Beginner);
  const auto plain = reckoning::choice(hand, sx, dx, held, expert);
  ASSERT_EQ(found.has_value(), plain.has_value());
  if (!plain) return;
  ASSERT_EQ(found->sceltadom, plain->slot);
  ASSERT_EQ(found->mossadom.end == End::Left, plain->left);
  ASSERT_EQ(found->mossadom.reversed, plain->reversed);
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
  const Position position = positionOf(hand, 3, 5, {2, 0, 3, 1, 0, 4, 2});
  const Choice beginner = choose(position, Level::Beginner).value();
  EXPECT_EQ(beginner.sceltadom, 15);
  EXPECT_TRUE(beginner.mossadom.end == End::Left && !beginner.mossadom.reversed);
  const Choice expert = choose(position, Level::Expert).value();
  EXPECT_EQ(expert.sceltadom, 17);
  EXPECT_TRUE(expert.mossadom.end == End::Right && expert.mossadom.reversed);
  // The number that is open already, by a double; seven in the player's hand.
  EXPECT_TRUE(choose(positionOf({{20, {4, 4}}}, 4, 4, {7, 0, 0, 0, 6, 0, 0}), Level::Expert).has_value());
  EXPECT_FALSE(choose(positionOf({{20, {4, 4}}}, 1, 2, {}), Level::Expert).has_value());
}

class AnyChance : public UniformSource {
 public:
  void seedFromClock() override {}
  double next() override { return std::uniform_real_distribution<>()(engine_); }

 private:
  std::mt19937 engine_{28};
};

/// All that operations change.
auto stateOf(const Domino& game) {
  std::vector<int> tiles;
  for (int slot = kFirstOfPlayer; slot <= kLastOfComputer; ++slot)
    tiles.push_back(game.inHand(slot) ? -1 : game.shown(slot));
  const auto [player, computer] = game.score(Counting::ByTile);
  return std::tuple(game.phase(), game.signal(), game.primodom(), game.ultimodom(), player, computer, tiles);
}

TEST(DominoRules, RefuseInEachPhaseWhatBelongsToOthers) {
  AnyChance chance;
  Domino game;
  std::map<Phase, int> seen;
  const auto layAll = [&](int first, int last) {
    for (int slot = first; slot <= last; ++slot) {
      for (const End end : {End::Left, End::Right}) game.lay(slot, end);
    }
  };
  for (int step = 0; step < 5000; ++step) {
    const Phase phase = game.phase();
    const auto before = stateOf(game);
    ++seen[phase];
    layAll(phase == Phase::PlayerToLay ? kFirstOfComputer : kFirstOfPlayer, kLastOfComputer);
    if (phase != Phase::PlayerStuck) game.pass();
    if (phase != Phase::ComputerToMove) game.computerTurn(Level::Expert);
    if (phase != Phase::GameOver) game.next(Counting::ByTile, chance);
    if (phase > Phase::PlayerStuck || game.primodom() != game.ultimodom()) game.begin();
    ASSERT_EQ(stateOf(game), before);
    switch (phase) {
      case Phase::PlayerToLay: layAll(kFirstOfPlayer, kLastOfPlayer); break;
      case Phase::PlayerStuck: game.pass(); break;
      case Phase::ComputerToMove: game.computerTurn(Level::Beginner); break;
      case Phase::GameOver: game.next(Counting::ByTile, chance); break;
      case Phase::MatchOver: game.inizioDOMINO(chance); game.begin();
    }
  }
  EXPECT_EQ(seen.size(), 5U);
}

}  // namespace
}  // namespace tombolario::domino
