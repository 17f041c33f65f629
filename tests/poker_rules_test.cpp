#include "poker/rules.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "host/clock_source.hpp"

namespace tombolario::poker {
namespace {

TEST(PokerRules, RefuseInEachPhaseWhatItDoesNotAllow) {
  ClockSource uniform;
  Poker game;
  const auto newMatch = [&] { game.newMatch(uniform); };
  const auto newHand = [&] { game.newHand(uniform); };
  const auto leave = [&] { game.leave(uniform); };
  const auto mark = [&] { game.toggleMark(4); };
  const auto showDown = [&] { game.showDown(Level::High, Counting::ByHand); };
  const auto state = [&] {
    std::vector<int> all{static_cast<int>(game.phase()), game.mayDeal(), game.isMarked(4), game.playerScore(),
                         game.computerScore()};
    for (int slot = 0; slot <= kNextCardSlot; ++slot) all.push_back(game.card(slot));
    return all;
  };
  const auto expectRefused = [&](Phase phase, const std::vector<std::function<void()>>& operations) {
    EXPECT_EQ(game.phase(), phase);
    const auto before = state();
    for (const auto& operation : operations) operation();
    EXPECT_EQ(state(), before) << "in phase " << static_cast<int>(phase);
  };

  expectRefused(Phase::NoMatch, {newHand, leave, mark, showDown});
  newMatch();
  expectRefused(Phase::Dealt, {newHand});
  showDown();
  expectRefused(Phase::Scored, {mark, showDown});
  // The first hand of a match begun now may be dealt again, once.
  newMatch();
  const auto first = state();
  newHand();
  EXPECT_NE(state(), first);
  expectRefused(Phase::Dealt, {newHand});
  for (showDown(); game.phase() == Phase::Scored; showDown()) newHand();
  expectRefused(Phase::MatchOver, {newHand, mark, showDown});
  leave();
  expectRefused(Phase::NoMatch, {newHand, leave, mark, showDown});
}

}  // namespace
}  // namespace tombolario::poker
