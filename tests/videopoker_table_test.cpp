#include "session.hpp"

namespace tombolario {
namespace {

// Cards by number: 0 to 12 red, 13 to 25 yellow, 26 to 38 cyan, 39 to 51 green, 52 the joker.
const std::vector<int> kWorthless{0, 14, 29, 44, 22, 8, 33, 50, 3, 24};
const std::vector<int> kFiveAlike{7, 20, 33, 46, 52, 1, 2, 3, 4, 5};

class VideoPokerTable : public testing::Test {
 protected:
  void startGame(const std::vector<int>& cards = {}) {
    room("click commpr(2)");
    deal("click Command8", cards);
  }
  void deal(const std::string& command, const std::vector<int>& cards = {}) {
    if (!cards.empty()) room.queueCards(53, cards);
    EXPECT_EQ(room(command), "ok");
  }
  std::string litRows() {
    std::string rows;
    for (int k = 0; k <= 10; ++k) {
      const std::string row = std::to_string(k);
      if (room.get("segn(" + row + ")", "Visible") == "1") rows += row + ' ';
    }
    return rows;
  }
  /// Plays hands that change nothing in the balance until the run is over.
  void finishRun() {
    while (room("screen") == "Frame3BIS") {
      if (room.get("Command3", "Enabled") == "1") room.play({"click Command3"});
      deal("click Command1", {0, 13, 29, 44, 22, 8, 33, 50, 3, 24});  // a pair of aces
    }
  }
  void store(int balance) {
    const auto word = static_cast<unsigned>(balance);
    writeFile(file, std::string{static_cast<char>(word & 0xFF), static_cast<char>(word >> 8 & 0xFF)});
  }

  Session room;
  std::filesystem::path file = room.data.path() / "videopoker.dat";
};

TEST_F(VideoPokerTable, ADealShowsItsCardsAndWaitsForMarks) {
  room.expect({"Label2 Caption=", "Label5 Caption=", "Label6 Caption=", "Pict(0) Picture=none",
               "Command2(0) MousePointer=0", "Command2(0) MouseIcon=none"});
  startGame(kWorthless);
  EXPECT_EQ(room("screen"), "Frame3BIS");
  for (int i = 0; i < 10; ++i) {
    const std::string pict = "Pict(" + std::to_string(i) + ")";
    EXPECT_EQ(room.get(pict, "Picture"),
              "Picture1(" + std::to_string(kWorthless[static_cast<std::size_t>(i)]) + ")");
    EXPECT_EQ(room.get(pict, "Visible"), i < 5 ? "1" : "0");
  }
  room.expect({"Command1 Enabled=0", "Command3 Enabled=1", "Frame3 Visible=0", "Framecen Visible=0",
               "Label2 Caption=10", "Frame1(4) BackColor=3d-light", "Command2(4) Visible=1",
               "Command2(4) MousePointer=99", "Command2(4) MouseIcon=Label13"});
  EXPECT_EQ(litRows(), "");
}

TEST_F(VideoPokerTable, AMarkIsTurnedOverByEachClickAndChangesItsCard) {
  startGame(kWorthless);
  room.play({"click Command2(1)", "click Command2(3)", "click Command2(4)", "click Command2(4)"});
  room.expect({"Frame1(0) BackColor=3d-light", "Frame1(1) BackColor=button-shadow",
               "Frame1(3) BackColor=button-shadow", "Frame1(4) BackColor=3d-light"});
  room.play({"click Command3"});
  room.expect({"Pict(0) Picture=Picture1(0)", "Pict(1) Picture=Picture1(8)", "Pict(2) Picture=Picture1(29)",
               "Pict(3) Picture=Picture1(33)", "Pict(4) Picture=Picture1(22)",
               "Pict(5) Picture=Picture1(8)"});
}

TEST_F(VideoPokerTable, AScoredHandLightsItsRowAndPaysAtTheNextDeal) {
  startGame({0, 13, 4, 17, 22, 1, 2, 3, 5, 6});
  room.play({"click Command2(2)", "click Command2(2)", "click Command3"});
  EXPECT_EQ(litRows(), "2 ");
  room.expect({"Frame1(0) BackColor=0x0000C0", "Frame1(1) BackColor=0x0000C0", "Frame1(2) BackColor=0x8080FF",
               "Frame1(3) BackColor=0x8080FF", "Frame1(4) BackColor=3d-light", "Command2(0) Visible=0",
               "Command3 Enabled=0", "Command1 Enabled=1", "Label2 Caption=10"});
  room.play({"click Command3"});
  EXPECT_EQ(litRows(), "2 ") << "a disabled button does nothing";
  deal("click Command1", kFiveAlike);
  EXPECT_EQ(litRows(), "");
  room.expect({"Label2 Caption=12", "Frame1(0) BackColor=3d-light", "Command2(0) Visible=1",
               "Command1 Enabled=0", "Command3 Enabled=1"});
  room.play({"click Command3"});
  EXPECT_EQ(litRows(), "10 ");
  room.expect({"Frame1(0) BackColor=3d-light"});
  deal("click Command1", kWorthless);
  room.expect({"Label2 Caption=30"});
}

TEST_F(VideoPokerTable, AJokerWithNothingIsAPairWithoutHighlight) {
  startGame({1, 15, 30, 6, 52, 8, 9, 10, 11, 12});
  room.play({"click Command3"});
  EXPECT_EQ(litRows(), "1 ");
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(room.get("Frame1(" + std::to_string(i) + ")", "BackColor"), "3d-light");
  }
}

TEST_F(VideoPokerTable, TheTenthDealEndsTheRunAndWaitsOnTheHiddenTable) {
  startGame(kFiveAlike);
  room.play({"click Command3"});
  for (int dealt = 2; dealt <= 9; ++dealt) {
    deal("click Command1", {0, 13, 29, 44, 22, 8, 33, 50, 3, 24});
    room.play({"click Command3"});
    ASSERT_EQ(room("screen"), "Frame3BIS") << dealt;
  }
  deal("click Command1", kWorthless);
  EXPECT_EQ(room("screen"), "Frame3");
  room.expect({"Framecen Visible=1", "Label5 Caption=28", "Label6 Caption=18", "Label2 Caption=28",
               "Command3 Enabled=0", "Command1 Enabled=0", "Pict(0) Picture=Picture1(0)",
               "Command2(0) Visible=1", "Command4 Picture=CONTPOK1", "Command7 Picture=SALVPOK1"});

  room.play({"click Command7"});
  EXPECT_EQ(contentOf(file), std::string("\x1C\0", 2)) << "the balance before the fee";
  room.play({"click Command4"});
  EXPECT_EQ(room("screen"), "Frame3BIS");
  room.expect({"Framecen Visible=0", "Label2 Caption=23", "Command3 Enabled=1", "Command1 Enabled=0",
               "Pict(0) Picture=Picture1(0)"});
  finishRun();
  // The waiting hand was worthless; the fee counts as a loss of this run.
  room.expect({"Label5 Caption=22", "Label6 Caption=-6"});
}

TEST_F(VideoPokerTable, ASpentCreditLeavesOnlyNewAndLoadedGames) {
  startGame(kWorthless);
  for (int hand = 1; hand <= 9; ++hand) {
    room.play({"click Command3"});
    deal("click Command1", kWorthless);
  }
  room.play({"click Command4"});  // 1 is left: refused
  room.expect({"Label5 Caption=1", "Label6 Caption=-9", "Command4 Enabled=0", "Command4 Picture=CONTPOK2",
               "Command7 Enabled=0", "Command7 Picture=SALVPOK2", "Command3 Enabled=1"});
  EXPECT_EQ(room("screen"), "Frame3");

  store(6);
  deal("click Command9", kWorthless);
  room.expect({"Label2 Caption=1", "Command4 Picture=CONTPOK1", "Command7 Picture=SALVPOK1"});
  room.play({"click Command3"});
  EXPECT_EQ(room("screen"), "Frame3");
  room.expect({"Framecen Visible=1", "Label2 Caption=0", "Label5 Caption=0", "Label6 Caption=-6",
               "Command4 Enabled=0", "Command4 Picture=CONTPOK2", "Command7 Enabled=0",
               "Command7 Picture=SALVPOK2", "Command1 Enabled=0", "Command3 Enabled=0"});
  EXPECT_EQ(litRows(), "0 ");

  deal("click Command8", kWorthless);
  EXPECT_EQ(litRows(), "");
  room.expect({"Label2 Caption=10", "Command4 Enabled=1", "Command4 Picture=CONTPOK1", "Command7 Enabled=1",
               "Command7 Picture=SALVPOK1"});
}

TEST_F(VideoPokerTable, APairAtABalanceOfOneGoesOn) {
  store(6);
  room("click commpr(2)");
  deal("click Command9", {0, 13, 29, 44, 22, 8, 33, 50, 3, 24});
  room.play({"click Command3"});
  EXPECT_EQ(room("screen"), "Frame3BIS");
  room.expect({"Command1 Enabled=1"});
}

TEST_F(VideoPokerTable, ABalanceOfFiveIsRefusedAtThePressThatAsks) {
  store(10);
  room("click commpr(2)");
  deal("click Command9", {0, 13, 29, 44, 22, 8, 33, 50, 3, 24});
  finishRun();
  room.expect({"Label5 Caption=5", "Command4 Picture=CONTPOK1", "Command7 Enabled=1"});
  room.play({"click Command7"});
  room.expect({"Command4 Enabled=0", "Command4 Picture=CONTPOK2", "Command7 Enabled=0",
               "Command7 Picture=SALVPOK2", "Command3 Enabled=0"});
  EXPECT_EQ(contentOf(file), std::string("\x0A\0", 2)) << "a refused save touches no file";
}

TEST_F(VideoPokerTable, EndingAGameKeepsNothingOfIt) {
  startGame(kFiveAlike);
  room.play({"click Command3", "click Command5"});
  EXPECT_EQ(room("screen"), "Frame3");
  room.expect({"Framecen Visible=0", "Command3 Enabled=0", "Command1 Enabled=1", "Label2 Caption=10"});
  EXPECT_EQ(litRows(), "");
  room.play({"click MENUVP", "click commpr(2)"});
  room.expect({"Framecen Visible=0"});
}

TEST_F(VideoPokerTable, ASummaryLeftByTheMenuIsGone) {
  startGame();
  finishRun();
  room.play({"click MENUVP"});
  EXPECT_EQ(room("screen"), "Frameprincipale");
  room.expect({"Framecen Visible=0"});
}

struct Stored {
  const char* what;
  std::string content;
  int balance;  // 0 where the file is refused

  friend void PrintTo(const Stored& stored, std::ostream* out) { *out << stored.what; }
};

class StoredGame : public VideoPokerTable, public testing::WithParamInterface<Stored> {};

TEST_P(StoredGame, IsLoadedForItsFeeOrRefusedAndNeverChanged) {
  const auto& [what, content, balance] = GetParam();
  writeFile(file, content);
  room("click commpr(2)");
  for (int times = 0; times < 2; ++times) {
    room.play({"click Command9"});
    if (balance == 0) {
      EXPECT_EQ(room("screen"), "Frame3");
      room.expect({"Command9 Enabled=0", "Label2 Caption="});
    } else {
      EXPECT_EQ(room("screen"), "Frame3BIS");
      EXPECT_EQ(room.get("Label2", "Caption"), std::to_string(balance));
      room.play({"click Command5"});
    }
    EXPECT_EQ(contentOf(file), content);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, StoredGame,
    testing::Values(Stored{"empty", "", 0}, Stored{"oneByte", "\x64", 0},
                    Stored{"five", std::string("\5\0", 2), 0}, Stored{"six", std::string("\6\0", 2), 1},
                    Stored{"hundred", std::string("\x64\0", 2), 95}, Stored{"negative", "\xFF\xFF", 0},
                    Stored{"long", std::string("\x64\0", 2) + std::string(998, '\xAA'), 95}),
    [](const auto& stored) { return stored.param.what; });

TEST_F(VideoPokerTable, AMissingFileIsMadeAndRefusedUntilAGameBegins) {
  room("click commpr(2)");
  room.play({"click Command9"});
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(contentOf(file), "");
  room.expect({"Command9 Enabled=0"});
  room.play({"click Command8", "click Command5"});
  room.expect({"Command9 Enabled=1"});
}

TEST_F(VideoPokerTable, ADirectoryInPlaceOfTheFileHarmsNothing) {
  std::filesystem::create_directory(file);
  room("click commpr(2)");
  room.play({"click Command9"});
  room.expect({"Command9 Enabled=0"});
  room.play({"click Command8"});
  finishRun();
  room.play({"click Command7"});
  room.expect({"Command7 Enabled=1", "Command7 Picture=SALVPOK1"});
  EXPECT_TRUE(std::filesystem::is_directory(file));
}

TEST_F(VideoPokerTable, ASaveLeavesTheRestOfALongFile) {
  std::string content(1000, '\xAA');
  writeFile(file, content);
  startGame(kFiveAlike);
  finishRun();
  room.play({"click Command7"});
  content[0] = '\x1C';
  content[1] = '\0';
  EXPECT_EQ(contentOf(file), content);
}

}  // namespace
}  // namespace tombolario
