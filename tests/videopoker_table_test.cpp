#include <array>
#include <map>
#include <optional>
#include <set>

#include "pictures/catalogue.hpp"
#include "sanitized.hpp"
#include "table_test.hpp"
#include "videopoker_reckoning.hpp"

namespace tombolario {
namespace {

namespace reckoning = videopoker::reckoning;

constexpr std::array kPays{-1, 0, 2, 4, 5, 7, 8, 10, 12, 15, 18};

// A hand of each row, and its replacements. Cards by number: 0 to 12 red, 13 to 25 yellow, 26 to 38 cyan, 39
// to 51 green, 52 the joker.
const std::array<std::vector<int>, 11> kHands{{
    {0, 14, 29, 44, 22, 8, 33, 50, 3, 24},
    {0, 13, 29, 44, 22, 8, 33, 50, 3, 24},
    {0, 13, 4, 17, 22, 1, 2, 3, 5, 6},
    {7, 20, 33, 1, 2, 8, 34, 50, 3, 24},
    {0, 22, 36, 11, 12, 8, 33, 50, 3, 24},
    {0, 13, 4, 17, 52, 8, 33, 50, 3, 24},
    {13, 16, 17, 18, 52, 8, 33, 50, 3, 24},
    {0, 2, 5, 9, 52, 8, 33, 50, 3, 24},
    {7, 20, 33, 52, 1, 8, 34, 50, 3, 24},
    {13, 23, 24, 25, 52, 8, 33, 50, 3, 5},
    {7, 20, 33, 46, 52, 1, 2, 3, 4, 5},
}};

/// A game kept by the plain description.
struct PlainGame {
  bool onTable = false, summary = false;
  bool canDeal = false, canChange = false, canLoad = true, refused = false;
  int balance = 0, start = 0, deals = 0;
  std::string credit, score, gain;  // as shown
  std::array<int, 10> cards{};
  std::set<std::size_t> marked;
  std::vector<Colour> groups;
  bool scored = false;
  int lit = -1;

  void deal(const std::array<int, 10>& dealt) {
    cards = dealt;
    marked.clear();
    scored = false;
    credit = std::to_string(balance);
    if (++deals < 10) return;
    canChange = false;
    showSummary();
  }
  void begin() {
    balance = start = 10;
    open();
  }
  void load(int stored) {
    canLoad = stored > 5;
    if (!canLoad) return;
    start = stored;
    balance = stored - 5;
    open();
  }
  void next() {
    canDeal = false;
    canChange = true;
    lit = -1;
  }
  void mark(std::size_t i) {
    if (!scored && marked.erase(i) == 0) marked.insert(i);
  }
  void change() {
    std::size_t replacement = 5;
    for (const std::size_t i : marked) cards.at(i) = cards.at(replacement++);
    marked.clear();
    OfHand<int> five{};
    std::copy_n(cards.begin(), 5, five.begin());
    const Hand hand = handOf(five);
    const auto row = reckoning::rowOf(hand);
    groups.clear();
    for (int i = 0; i < 5; ++i) {
      const auto group = reckoning::groupOf(hand, row, i);
      groups.push_back(group == videopoker::Group::First    ? Colour(0x0000C0)
                       : group == videopoker::Group::Second ? Colour(0x8080FF)
                                                            : Colour(SystemColour::Light3d));
    }
    lit = row;
    scored = canDeal = true;
    canChange = false;
    balance += kPays.at(row);
    if (balance > 0) return;
    canDeal = false;
    refused = true;
    credit = "0";
    showSummary();
  }
  void goOn() {
    deals = 0;
    canChange = true;
    refused = balance <= 5;
    if (refused) return;
    start = balance;
    balance -= 5;
    credit = std::to_string(balance);
    onTable = canLoad = true;
    summary = false;
  }
  void end() {
    onTable = summary = canChange = false;
    lit = -1;
  }

 private:
  void open() {
    onTable = canLoad = canChange = true;
    summary = canDeal = refused = false;
    deals = 0;
    lit = -1;
  }
  void showSummary() {
    onTable = false;
    summary = true;
    score = std::to_string(balance);
    gain = std::to_string(balance - start);
  }
};

class VideoPokerTable : public TableTest {
 protected:
  VideoPokerTable() { room.play({"click commpr(2)"}); }

  std::array<int, 10> seenCards() {
    std::array<int, 10> cards{};
    for (int slot = 0; slot < 10; ++slot) {
      const PictureId& picture = element("Pict", slot).Picture;
      EXPECT_EQ(picture.store().name, "Picture1");
      cards.at(static_cast<std::size_t>(slot)) = picture.index();
    }
    EXPECT_EQ(std::set<int>(cards.begin(), cards.end()).size(), 10U);
    return cards;
  }
  void expectSeen() {
    EXPECT_EQ(room("screen"), plain.onTable ? "Frame3BIS" : "Frame3");
    EXPECT_EQ(control("Framecen").Visible, plain.summary);
    EXPECT_EQ(control("Command1").Enabled, plain.canDeal);
    EXPECT_EQ(control("Command3").Enabled, plain.canChange);
    EXPECT_EQ(control("Command9").Enabled, plain.canLoad);
    EXPECT_EQ(control("Command4").Enabled, !plain.refused);
    EXPECT_EQ(control("Command7").Enabled, !plain.refused);
    EXPECT_EQ(control("Command4").Picture,
              PictureId(plain.refused ? pictures::CONTPOK2 : pictures::CONTPOK1));
    EXPECT_EQ(control("Command7").Picture,
              PictureId(plain.refused ? pictures::SALVPOK2 : pictures::SALVPOK1));
    EXPECT_EQ(control("Label2").Caption, plain.credit);
    EXPECT_EQ(control("Label5").Caption, plain.score);
    EXPECT_EQ(control("Label6").Caption, plain.gain);
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_EQ(element("Frame1", i).BackColor, plain.scored ? plain.groups.at(i)
                                                : plain.marked.contains(i)
                                                    ? Colour(SystemColour::ButtonShadow)
                                                    : Colour(SystemColour::Light3d));
      EXPECT_EQ(element("Command2", i).Visible, !plain.scored);
    }
    for (std::size_t slot = 0; slot < 10; ++slot) {
      const PictureId card(pictures::Picture1, plain.cards.at(slot));
      EXPECT_EQ(element("Pict", slot).Picture, plain.credit.empty() ? PictureId() : card);
      EXPECT_EQ(element("Pict", slot).Visible, slot < 5);
    }
    for (int row = 0; row < 11; ++row) EXPECT_EQ(element("segn", row).Visible, row == plain.lit) << row;
  }

  /// The next deal is of these cards, if any.
  void queue(const std::vector<int>& cards) {
    if (!cards.empty()) room.queueCards(53, cards);
  }
  // The same click in the room and in the reckoning. A click that does nothing is one, too.
  void begin(const std::vector<int>& cards = {}) {
    queue(cards);
    click("Command8");
    plain.begin();
    plain.deal(seenCards());
  }
  void load(const std::vector<int>& cards = {}) {
    if (plain.canLoad && stored > 5) queue(cards);
    click("Command9");
    if (!plain.canLoad) return;
    plain.load(stored);
    if (plain.canLoad) plain.deal(seenCards());
  }
  void next(const std::vector<int>& cards = {}) {
    if (plain.canDeal) queue(cards);
    click("Command1");
    if (!plain.canDeal) return;
    plain.next();
    plain.deal(seenCards());
  }
  void mark(std::size_t i) {
    click(element("Command2", i));
    plain.mark(i);
  }
  void change() {
    click("Command3");
    if (plain.canChange) plain.change();
  }
  void goOn() {
    click("Command4");
    if (plain.summary && !plain.refused) plain.goOn();
  }
  void save() {
    click("Command7");
    if (!plain.summary || plain.refused) return;
    if (plain.balance > 5) stored = plain.balance;
    plain.refused = plain.balance <= 5;
  }

  PlainGame plain;
  int stored = 0;
  std::filesystem::path file = room.data.path() / "videopoker.dat";
};

TEST_F(VideoPokerTable, NothingIsDealtAtTheStart) {
  expectSeen();
  room.expect({"Command2(0) MousePointer=0", "Command2(0) MouseIcon=none"});
  begin();
  expectSeen();
  room.expect({"Command2(0) MouseIcon=Label13", "Command2(4) MousePointer=99"});
}

TEST_F(VideoPokerTable, AnyClickInWholeGamesDoesWhatTheReckoningSays) {
  constexpr int kSteps = kSanitized ? 20'000 : 40'000;
  std::map<std::string, int> seen;
  std::set<int> rows;
  begin();
  for (int step = 0; step < kSteps; ++step) {
    // Now and then a hand that is rare by chance.
    const auto cards = pick(8) == 0 ? kHands.at(static_cast<std::size_t>(pick(11))) : std::vector<int>{};
    if (!plain.onTable) {
      ++seen[!plain.summary       ? "left"
             : plain.balance <= 0 ? "spent"
             : plain.refused      ? "refused"
             : plain.balance == 5 ? "just too little"
                                  : "going on"];
      switch (pick(6)) {
        case 0: save(); break;
        case 1:
          if (pick(3) == 0) {
            std::filesystem::remove(file);
            stored = 0;
          }
          load(cards);
          seen["refused a game"] += !plain.canLoad && plain.summary;
          break;
        case 2:
          room.play({"click MENUVP", "click commpr(2)"});
          plain.summary = false;
          break;
        case 3:
          if (pick(3) == 0) begin(cards);
          break;
        default: goOn(); break;
      }
    } else {
      switch (pick(8)) {
        case 0:
        case 1: change(); break;
        case 2:
        case 3: next(cards); break;
        case 4:
          if (pick(40) != 0) break;
          click("Command5");
          plain.end();
          break;
        default: mark(static_cast<std::size_t>(pick(5))); break;
      }
    }
    rows.insert(plain.lit);
    expectSeen();
    ASSERT_FALSE(HasFailure()) << "step " << step;
  }
  EXPECT_EQ(rows.size(), 12U);
  for (const char* what : {"left", "spent", "refused", "just too little", "going on", "refused a game"}) {
    EXPECT_GT(seen[what], 0) << what;
  }
}

struct Stored {
  const char* what;
  std::string content;
  int balance;  // 0 where there is none

  friend void PrintTo(const Stored& stored, std::ostream* out) { *out << stored.what; }
};

class StoredGame : public VideoPokerTable, public testing::WithParamInterface<Stored> {};

TEST_P(StoredGame, IsLoadedForItsFeeOrRefusedAndNeverChanged) {
  const auto& [what, content, balance] = GetParam();
  writeFile(file, content);
  stored = balance;
  for (int times = 0; times < 2; ++times) {
    load();
    expectSeen();
    EXPECT_EQ(contentOf(file), content);
    if (!plain.onTable) continue;
    click("Command5");
    plain.end();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, StoredGame,
    testing::Values(Stored{"empty", "", 0}, Stored{"oneByte", "\x64", 0},
                    Stored{"five", std::string("\5\0", 2), 5}, Stored{"six", std::string("\6\0", 2), 6},
                    Stored{"large", "\xFF\x7F", 32767}, Stored{"negative", "\xFF\xFF", -1},
                    Stored{"long", std::string("\x64\0", 2) + std::string(998, '\xAA'), 100}),
    [](const auto& stored) { return stored.param.what; });

TEST_F(VideoPokerTable, AFileIsMadeADirectoryStaysAndALongFileKeepsItsRest) {
  load();
  EXPECT_TRUE(std::filesystem::is_regular_file(file));
  EXPECT_EQ(contentOf(file), "");
  EXPECT_EQ(plain.canLoad, false);
  begin(kHands[10]);
  while (plain.onTable) {
    change();
    next(kHands[1]);
  }
  expectSeen();
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  save();
  expectSeen();
  EXPECT_TRUE(std::filesystem::is_directory(file));
  std::filesystem::remove(file);
  save();
  EXPECT_EQ(contentOf(file), "\x1C" + std::string(39, '\0'));
  writeFile(file, std::string(1000, '\xAA'));
  save();
  EXPECT_EQ(contentOf(file), std::string("\x1C\0", 2) + std::string(998, '\xAA'));
}

}  // namespace
}  // namespace tombolario
