#include "videopoker/rules.hpp"

#include <gtest/gtest.h>

namespace tombolario::videopoker {
namespace {

TEST(VideoPokerRules, GoingOnAndLoadingCostFiveAndNeedMore) {
  VideoPoker game;
  game.begin();
  EXPECT_EQ(game.balance(), 10);
  EXPECT_TRUE(game.goOn());
  EXPECT_EQ(game.balance(), 5);
  EXPECT_EQ(game.gain(), -5);
  EXPECT_FALSE(game.goOn());
  EXPECT_FALSE(game.worthSaving());
  EXPECT_EQ(game.balance(), 5);

  for (const int refused : {-32768, -1, 0, 5}) EXPECT_FALSE(game.load(static_cast<std::int16_t>(refused)));
  EXPECT_EQ(game.balance(), 5);
  EXPECT_TRUE(game.load(6));
  EXPECT_EQ(game.balance(), 1);
  EXPECT_EQ(game.gain(), -5);
  EXPECT_TRUE(game.load(32767));
  EXPECT_EQ(game.balance(), 32762);
}

TEST(VideoPokerRules, TheBalanceStaysInsideSixteenBits) {
  VideoPoker game;
  ASSERT_TRUE(game.load(32767));
  game.pay(kFour);
  EXPECT_EQ(game.balance(), 32767);
  game.pay(kNothing);
  EXPECT_EQ(game.balance(), 32766);
}

}  // namespace
}  // namespace tombolario::videopoker
