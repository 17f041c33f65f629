#include <numeric>
#include <random>
#include <set>

#include "poker_reckoning.hpp"
#include "sanitized.hpp"
#include "session.hpp"

namespace tombolario {
namespace {

using reckoning::Five;
using reckoning::PlainHand;

struct Cards {
  Five player{};
  Five replacements{};
  Five computer{};
  int next = 0;

  std::vector<int> inOrder() const {
    std::vector<int> cards;
    for (const Five& five : {player, replacements, computer}) {
      cards.insert(cards.end(), five.begin(), five.end());
    }
    cards.push_back(next);
    return cards;
  }
};

/// Two hands that stay as dealt: the cards that could change them are picked so that they do not.
Cards asDealt(const Five& player, const Five& computer) {
  std::vector<int> rest(52);
  std::iota(rest.begin(), rest.end(), 0);
  for (const Five& hand : {player, computer}) {
    for (const int card : hand) rest.erase(std::remove(rest.begin(), rest.end(), card), rest.end());
  }
  const auto useless = [&](int card) { return reckoning::draw(computer, card) == computer; };
  std::rotate(rest.begin(), std::find_if(rest.begin(), rest.end(), useless), rest.end());
  Cards cards{player, {}, computer, rest[0]};
  std::copy_n(rest.begin() + 1, 5, cards.replacements.begin());
  return cards;
}

std::string element(const char* array, int index) {
  return std::string(array) + '(' + std::to_string(index) + ')';
}

class PokerTable : public testing::Test {
 protected:
  /// Opens the table under the options; a hand is dealt.
  void open(bool high, bool byHand) {
    if (room("screen") == "Frame2BIS") room.play({"click Command55"});
    if (room("screen") == "Frameprincipale") room.play({"click commpr(1)"});
    room.play(
        {high ? "click Option4" : "click Option3", byHand ? "click Op1" : "click Op2", "click Command44"});
    high_ = high;
    byHand_ = byHand;
    startMatch();
  }
  void startMatch() { playerScore_ = computerScore_ = 0; }
  void deal(const char* button, const Cards& cards) {
    room.queueCards(52, cards.inOrder());
    EXPECT_EQ(room(std::string("click ") + button), "ok");
    if (button == std::string("Command15")) startMatch();
    dealt_ = cards;
    marked_.clear();
  }
  void mark(int i) {
    EXPECT_EQ(room("click " + element("Command22", i)), "ok");
    if (marked_.erase(i) == 0) marked_.insert(i);
    for (int k = 0; k < 5; ++k) {
      EXPECT_EQ(room.get(element("Frame11", k), "BackColor"),
                marked_.contains(k) ? "button-shadow" : "3d-light");
    }
  }
  /// Plays the hand out and holds all that is seen against the reckoning. Gives who wins.
  char showDown() {
    auto player = dealt_.player;
    std::size_t taken = 0;
    for (const int i : marked_) {
      player.at(static_cast<std::size_t>(i)) = dealt_.replacements.at(taken++);
    }
    const Five computer = reckoning::draw(dealt_.computer, dealt_.next);
    room.play({"click Command33"});
    const PlainHand human = reckoning::reckon(player);
    const PlainHand machine = reckoning::reckon(computer);
    expectHand(player, human, 0, 0, "humres");
    expectHand(computer, machine, 5, 10, "comres");

    const char winner = reckoning::winner(human, machine, high_);
    const std::array points{0, 1, 2, 4, 5, 7, 8, 10, 12};
    const auto worth = [&](const PlainHand& hand) {
      return byHand_ ? 1 : points.at(static_cast<std::size_t>(hand.kind));
    };
    if (winner == 'P') playerScore_ += worth(human);
    if (winner == 'C') computerScore_ += worth(machine);
    EXPECT_EQ(room.get("hum1", "Caption"), std::to_string(playerScore_));
    EXPECT_EQ(room.get("comp1", "Caption"), std::to_string(computerScore_));
    EXPECT_EQ(room.get("hum1", "BackColor"), winner == 'P' ? "0xFFFF00" : "0xFFFFFF");
    EXPECT_EQ(room.get("comp1", "BackColor"), winner == 'C' ? "0xFFFF00" : "0xFFFFFF");
    const int limit = byHand_ ? 15 : 40;
    const bool over = playerScore_ > limit || computerScore_ > limit;
    EXPECT_EQ(room.get("result", "Visible"), over ? "1" : "0");
    if (over) {
      EXPECT_EQ(room.get("result", "Caption"), playerScore_ > limit ? "HAI VINTO" : "HAI PERSO");
    }
    EXPECT_EQ(room.get("Command11", "Enabled"), over ? "0" : "1");
    room.expect({"Command33 Enabled=0", "Command55 Visible=1", "Command55 Enabled=1", "Command15 Enabled=1"});
    for (int i = 0; i < 5; ++i) EXPECT_EQ(room.get(element("Command22", i), "Visible"), "0");
    return winner;
  }
  void expectHand(const Five& cards, const PlainHand& hand, int firstFrame, int firstSlot,
                  const char* label) {
    EXPECT_EQ(room.get(label, "Caption"), hand.text);
    for (int i = 0; i < 5; ++i) {
      const auto at = static_cast<std::size_t>(i);
      EXPECT_EQ(room.get(element("Frame11", firstFrame + i), "BackColor"), hand.frames.at(at));
      EXPECT_EQ(room.get(element("Pictt", firstSlot + i), "Picture"), element("Picture11", cards.at(at)));
    }
  }
  void expectDealt() {
    const auto cards = dealt_.inOrder();
    for (int slot = 0; slot < 16; ++slot) {
      const bool back = slot >= 10 && slot < 15;
      EXPECT_EQ(room.get(element("Pictt", slot), "Picture"),
                back ? "ufo" : element("Picture11", cards.at(static_cast<std::size_t>(slot))));
      EXPECT_EQ(room.get(element("Pictt", slot), "Visible"), slot < 5 || back ? "1" : "0");
    }
    for (int frame = 0; frame < 10; ++frame) {
      EXPECT_EQ(room.get(element("Frame11", frame), "BackColor"), "3d-light");
    }
    for (int i = 0; i < 5; ++i) EXPECT_EQ(room.get(element("Command22", i), "Visible"), "1");
    room.expect({"humres Caption= ", "comres Caption= ", "hum1 BackColor=0xFFFFFF",
                 "comp1 BackColor=0xFFFFFF", "Command33 Enabled=1", "Command22(4) MousePointer=99",
                 "Command22(4) MouseIcon=Label13"});
  }

  Session room;
  bool high_ = true;
  bool byHand_ = false;
  int playerScore_ = 0;
  int computerScore_ = 0;
  Cards dealt_;
  std::set<int> marked_;
};

// One hand of each class for either side, no card in both.
constexpr std::array<Five, 9> kPlayers{{{1, 16, 5, 20, 8},
                                        {1, 14, 5, 20, 8},
                                        {1, 14, 5, 18, 8},
                                        {1, 14, 27, 5, 21},
                                        {1, 15, 3, 17, 5},
                                        {1, 14, 27, 5, 18},
                                        {1, 3, 5, 7, 8},
                                        {1, 14, 27, 40, 8},
                                        {1, 2, 3, 4, 5}}};
constexpr std::array<Five, 9> kComputers{{{28, 45, 35, 49, 38},
                                          {28, 41, 32, 49, 38},
                                          {28, 41, 32, 45, 38},
                                          {35, 48, 22, 28, 45},
                                          {34, 48, 36, 50, 38},
                                          {35, 48, 22, 32, 45},
                                          {28, 32, 35, 36, 38},
                                          {35, 48, 22, 9, 32},
                                          {34, 35, 36, 37, 38}}};

TEST_F(PokerTable, AwardsEveryPairOfClassesUnderEveryOption) {
  for (const bool high : {false, true}) {
    for (const bool byHand : {false, true}) {
      open(high, byHand);
      for (std::size_t player = 0; player < 9; ++player) {
        for (std::size_t computer = 0; computer < 9; ++computer) {
          SCOPED_TRACE(std::to_string(player) + " against " + std::to_string(computer));
          deal("Command15", asDealt(kPlayers.at(player), kComputers.at(computer)));
          const char winner = showDown();
          if (player != computer) {
            EXPECT_EQ(winner, player > computer ? 'P' : 'C');
          }
        }
      }
    }
  }
}

struct Tie {
  Five player;
  Five computer;
  char winner;
};

TEST_F(PokerTable, BreaksTiesByRankAtTheNormalLevelAlone) {
  const std::array<Tie, 20> ties{{
      {{0, 13, 2, 17, 6}, {12, 25, 28, 43, 32}, 'P'},    // a pair of aces, one of kings
      {{1, 14, 3, 18, 6}, {28, 41, 29, 44, 32}, 'C'},    //
      {{12, 25, 10, 22, 7}, {38, 51, 28, 42, 32}, '-'},  // kings each: no other card counts
      {{0, 13, 1, 14, 5}, {38, 51, 37, 50, 31}, 'P'},    // the higher pairs
      {{12, 25, 11, 24, 5}, {26, 39, 27, 40, 31}, 'C'},  //
      {{12, 25, 10, 23, 5}, {38, 51, 37, 50, 31}, 'C'},  // the lower pairs
      {{12, 25, 11, 24, 5}, {38, 51, 37, 50, 28}, 'P'},  // the odd cards
      {{12, 25, 11, 24, 5}, {38, 51, 37, 50, 26}, 'C'},  //
      {{12, 25, 11, 24, 5}, {38, 51, 37, 50, 31}, '-'},  //
      {{0, 13, 26, 5, 20}, {12, 25, 38, 30, 45}, 'P'},   // threes
      {{9, 23, 11, 25, 13}, {27, 41, 29, 43, 31}, 'C'},  // 10 to the ace against 2 to 6
      {{9, 23, 11, 25, 13}, {26, 40, 28, 42, 30}, 'C'},  // against the ace to 5
      {{2, 16, 4, 18, 6}, {27, 41, 29, 43, 31}, 'P'},    //
      {{1, 15, 3, 17, 5}, {27, 41, 29, 43, 31}, '-'},    //
      {{1, 14, 27, 0, 13}, {2, 15, 28, 12, 25}, 'C'},    // the three of a full house, not its pair
      {{0, 2, 4, 6, 8}, {14, 16, 18, 20, 23}, '-'},      // flushes, whatever their cards
      {{0, 13, 26, 39, 5}, {12, 25, 38, 51, 30}, 'P'},   // fours
      {{9, 10, 11, 12, 0}, {27, 28, 29, 30, 31}, 'C'},   // straight flushes
      {{8, 9, 10, 11, 12}, {33, 34, 35, 36, 37}, 'P'},   //
      {{1, 2, 3, 4, 5}, {27, 28, 29, 30, 31}, '-'},      //
  }};
  for (const bool high : {false, true}) {
    for (const bool byHand : {false, true}) {
      open(high, byHand);
      for (const auto& [player, computer, winner] : ties) {
        SCOPED_TRACE(std::to_string(player[0]) + " against " + std::to_string(computer[0]));
        deal("Command15", asDealt(player, computer));
        EXPECT_EQ(showDown(), high ? 'C' : winner);
      }
    }
  }
}

TEST_F(PokerTable, AMatchEndsWithTheFirstScoreAboveItsLimit) {
  const auto& pair = kPlayers[1];
  const auto& straight = kPlayers[4];
  const auto& full = kPlayers[5];
  const auto& best = kPlayers[8];
  for (const bool player : {true, false}) {
    const auto win = [&](const char* button, const Five& hand) {
      const Five& nothing = kComputers[0];
      deal(button, player ? asDealt(hand, nothing) : asDealt(nothing, hand));
      EXPECT_EQ(showDown(), player ? 'P' : 'C');
    };
    const std::string score = player ? "hum1" : "comp1";
    const auto expectEnd = [&](const std::string& number) {
      EXPECT_EQ(room.get(score, "Caption"), number);
      EXPECT_EQ(room.get("result", "Caption"), player ? "HAI VINTO" : "HAI PERSO");
      room.expect({"result Visible=1", "Command11 Enabled=0", "Command33 Enabled=0"});
    };
    open(false, true);
    win("Command15", best);
    for (int hand = 2; hand <= 15; ++hand) win("Command11", pair);
    room.expect({"result Visible=0", "Command11 Enabled=1"});
    win("Command11", pair);
    expectEnd("16");

    open(true, false);
    room.expect({"result Visible=0", "hum1 Caption=0", "comp1 Caption=0"});
    win("Command15", full);
    for (int hand = 2; hand <= 5; ++hand) win("Command11", full);
    win("Command11", straight);
    EXPECT_EQ(room.get(score, "Caption"), "40");
    room.expect({"result Visible=0", "Command11 Enabled=1"});
    win("Command11", best);
    expectEnd("52");

    // A new match after the end: no hand can follow the one that is dealt until it is played.
    deal("Command15", asDealt(kPlayers[0], kComputers[1]));
    expectDealt();
    room.expect({"result Visible=0", "Command11 Enabled=0", "hum1 Caption=0", "comp1 Caption=0"});
    showDown();
  }
}

TEST_F(PokerTable, EachButtonDoesItsPartAndAHandMayBeLeftAtAnyMoment) {
  room.expect({"hum1 Caption=0", "comp1 Caption=0", "Command11 Enabled=0", "result Visible=0",
               "Option3 Value=0", "Option4 Value=1", "Op1 Value=0", "Op2 Value=1", "Op1 MouseIcon=Label9",
               "Command15 MouseIcon=Label13"});
  room.play({"click commpr(1)"});
  const Cards won = asDealt(kPlayers[6], kComputers[5]);
  deal("Command44", won);
  expectDealt();
  room.expect({"Command11 Enabled=0"});
  showDown();
  // The next hand of the match keeps the score.
  deal("Command11", won);
  expectDealt();
  room.expect({"Command11 Enabled=0", "hum1 Caption=8"});
  showDown();

  // A new match after a hand leaves the button for the next one, which deals once more.
  deal("Command15", won);
  expectDealt();
  room.expect({"Command11 Enabled=1", "hum1 Caption=0"});
  deal("Command11", asDealt(kPlayers[1], kComputers[0]));
  expectDealt();
  room.expect({"Command11 Enabled=0", "hum1 Caption=0"});
  showDown();

  deal("Command11", won);
  mark(0);
  room.queueCards(52, won.inOrder());
  room.play({"click Command55"});
  EXPECT_EQ(room("screen"), "Frame2");
  room.expect({"Command55 Visible=0", "Command11 Enabled=0", "hum1 Caption=0", "comp1 Caption=0"});
  EXPECT_EQ(room("queued"), "0") << "it deals out of sight";
  expectDealt();
  room.play({"click menupok"});
  EXPECT_EQ(room("screen"), "Frameprincipale");
  room.play({"click commpr(1)"});
  deal("Command44", won);
  room.expect({"Command55 Visible=1", "Command11 Enabled=0"});
  expectDealt();
}

TEST_F(PokerTable, WholeMatchesGoByTheReckoning) {
  constexpr int kMatches = kSanitized ? 3 : 12;
  std::mt19937 engine(4);
  std::vector<int> pack(52);
  std::iota(pack.begin(), pack.end(), 0);
  const auto randomCards = [&] {
    std::shuffle(pack.begin(), pack.end(), engine);
    Cards cards;
    std::copy_n(pack.begin(), 5, cards.player.begin());
    std::copy_n(pack.begin() + 5, 5, cards.replacements.begin());
    std::copy_n(pack.begin() + 10, 5, cards.computer.begin());
    cards.next = pack[15];
    return cards;
  };
  for (const bool high : {false, true}) {
    for (const bool byHand : {false, true}) {
      open(high, byHand);
      for (int match = 0; match < kMatches; ++match) {
        deal("Command15", randomCards());
        for (;;) {
          for (unsigned marks = engine() % 8; marks > 0; --marks) mark(static_cast<int>(engine() % 5));
          showDown();
          ASSERT_FALSE(HasFailure());
          if (room.get("result", "Visible") == "1") break;
          deal("Command11", randomCards());
          expectDealt();
        }
      }
    }
  }
}

}  // namespace
}  // namespace tombolario
