#include "videopoker/rules.hpp"

#include <gtest/gtest.h>

#include "driver/driver.hpp"

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

TEST(VideoPokerRules, MarkedCardsTakeTheReplacementsFromLeftToRight) {
  for (unsigned marks = 0; marks < 32; ++marks) {
    ScriptedSource source;
    std::vector<double> numbers;
    for (int slot = 0; slot < kSlots; ++slot) numbers.push_back((slot * 5 + 0.5) / kCards);
    source.queue(numbers);
    VideoPoker game;
    game.begin();
    game.avvioVIDEO(source);
    Marks marked{};
    for (int i = 0; i < kHandSize; ++i) marked[i] = (marks >> i & 1) != 0;
    const auto from = game.change(marked);
    int next = kHandSize;
    for (int i = 0; i < kHandSize; ++i) {
      const int slot = marked[i] ? next++ : i;
      EXPECT_EQ(from[i], slot);
      EXPECT_EQ(game.hand().value[i], slot * 5 % 13);
      EXPECT_EQ(game.hand().suit[i], slot * 5 / 13 + 1);
    }
  }
}

}  // namespace
}  // namespace tombolario::videopoker
