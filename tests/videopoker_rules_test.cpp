#include "videopoker/rules.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "driver/driver.hpp"

namespace tombolario::videopoker {
namespace {

using Cards = std::vector<int>;
const Cards kWorthless{0, 14, 29, 44, 22};
const Cards kOnePair{0, 13, 29, 44, 22};  // wins nothing, costs nothing

/// A game that is told its hands, and what it answered.
struct Play : VideoPoker {
  void next(const Cards& cards) {
    for (const int card : cards) chance.queue({(card + 0.5) / kCards});
  }
  /// By the name of an operation; "run" plays pairs until the run is over, "ruin" loses all.
  void play(const std::string& operation) {
    if (operation == "begin") next(kWorthless), begin(chance);
    if (operation == "load") next(kOnePair), load(std::exchange(stored, 11), chance);
    if (operation == "goOn") goOn();
    if (operation == "save") saved = save();
    if (operation == "end") end();
    if (operation == "leave") leave();
    if (operation == "newHand") next(kOnePair), newHand(chance);
    if (operation == "mark") toggleMark(2);
    if (operation == "change") change();
    if (operation == "ruin") next(kWorthless), load(6, chance), change();
    while (operation == "run" && place() == Place::Table) play("change"), play("newHand");
  }
  /// What an operation may change; a deal draws the replacements by chance.
  auto look() const {
    return std::tuple(place(), phase(), balance(), gain(), runOver(), isOpen(), mayLoad(), litRow(),
                      isMarked(2), card(kHandSize), saved);
  }

  ScriptedSource chance;
  std::int16_t stored = 11;
  bool saved = false;
};

struct State {
  std::int16_t stored;
  std::vector<std::string> reachedBy;
  std::set<std::string> allowed;
};

TEST(VideoPokerRules, WhatIsNotAllowedChangesNothing) {
  const std::vector<State> states{
      {11, {}, {"begin", "load"}},
      {11, {"begin"}, {"mark", "change", "end"}},
      {11, {"begin", "change"}, {"newHand", "end"}},
      {11, {"begin", "end"}, {"begin", "load"}},
      {11, {"begin", "change", "end"}, {"begin", "load"}},
      {11, {"load", "run"}, {"begin", "load", "goOn", "save", "leave"}},
      {11, {"load", "run", "leave"}, {"begin", "load"}},
      {11, {"load", "run", "goOn"}, {"mark", "change", "end"}},
      {10, {"load", "run"}, {"begin", "load", "goOn", "save", "leave"}},  // too little, and not yet told so
      {10, {"load", "run", "goOn"}, {"begin", "load", "leave"}},
      {10, {"load", "run", "save"}, {"begin", "load", "leave"}},
      {11, {"ruin"}, {"begin", "load", "leave"}},
      {5, {"load"}, {"begin"}},
      {5, {"begin", "run", "load"}, {"begin", "goOn", "save", "leave"}},
  };
  for (const auto& [stored, reachedBy, allowed] : states) {
    for (const char* operation :
         {"begin", "load", "goOn", "save", "end", "leave", "newHand", "mark", "change"}) {
      Play game;
      game.stored = stored;
      for (const auto& step : reachedBy) game.play(step);
      const auto before = game.look();
      game.play(operation);
      EXPECT_EQ(game.look() != before, allowed.contains(operation))
          << operation << " after " << testing::PrintToString(reachedBy) << " with " << stored;
    }
  }
}

TEST(VideoPokerRules, TheBalanceStaysInsideSixteenBits) {
  Play game;
  game.next({7, 20, 33, 46, 52});
  game.load(32767, game.chance);
  EXPECT_EQ(game.balance(), 32762);
  game.change();
  EXPECT_EQ(game.balance(), 32767);
  game.next(kWorthless);
  game.newHand(game.chance);
  game.change();
  EXPECT_EQ(game.balance(), 32766);
}

}  // namespace
}  // namespace tombolario::videopoker
