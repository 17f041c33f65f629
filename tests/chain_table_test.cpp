#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <set>

#include "chain/rules.hpp"
#include "pictures/catalogue.hpp"
#include "sanitized.hpp"
#include "table_test.hpp"

namespace tombolario {
namespace {

/// The tiles by their values, in their order.
constexpr std::array<const char*, 12> kTiles{"01", "02", "03", "10", "12", "13",
                                             "20", "21", "23", "30", "31", "32"};

/// A game kept by the plain description. Positions are 1 to 7; the marks, 1 to 5.
struct PlainGame {
  bool twoExchanges = false;
  bool onTable = false;
  std::array<int, 8> tile{};
  std::set<int> toSubstitute, toExchange;
  bool substituted = false, exchangesOver = false, dealt = false;
  int exchanges = 0, numberShown = 0;
  bool armedFace = false;
  int score = 0, level = 1, hands = 0, full = 0;
  // What stays on the screens from earlier moments.
  std::string menuScore = "0", menuLevel = "0", menuFull, tableScore, tableLevel, tableHands;
  bool fullShown = false, canContinue = false, canSave = false, canLoad = true, canCount = true;
  bool exchangesShown = false;

  int links() const { return linksOf(tile); }
  static int linksOf(const std::array<int, 8>& tiles) {
    int count = 0;
    for (std::size_t i = 1; i < 5; ++i) {
      const char* left = kTiles.at(static_cast<std::size_t>(tiles[i]));
      const char* right = kTiles.at(static_cast<std::size_t>(tiles[i + 1]));
      count += left[1] == right[0];
    }
    return count;
  }
  void deal(const std::array<int, 8>& tiles) {
    tile = tiles;
    toSubstitute.clear();
    toExchange.clear();
    substituted = exchangesOver = armedFace = false;
    exchanges = numberShown = 0;
    dealt = true;
  }
  void markSubstitution(int i) {
    if (substituted) return;
    if (toSubstitute.erase(i) == 0) {
      if (toSubstitute.size() == (twoExchanges ? 1U : 2U)) return;
      toSubstitute.insert(i);
    }
    if (!twoExchanges) numberShown = static_cast<int>(toSubstitute.size());
  }
  void markExchange(int i) {
    if (exchangesOver) return;
    if (toExchange.erase(i) == 0 && toExchange.size() < 2) toExchange.insert(i);
    armedFace = toExchange.size() == 2;
  }
  void substitute() {
    if (substituted || toSubstitute.empty()) return;
    std::size_t reserve = 6;
    for (const int i : toSubstitute) tile.at(static_cast<std::size_t>(i)) = tile.at(reserve++);
    toSubstitute.clear();
    substituted = true;
  }
  void exchange() {
    if (exchangesOver || toExchange.size() != 2) return;
    std::swap(tile.at(static_cast<std::size_t>(*toExchange.begin())),
              tile.at(static_cast<std::size_t>(*toExchange.rbegin())));
    toExchange.clear();
    ++exchanges;
    exchangesOver = exchanges == (twoExchanges ? 2 : 1);
    if (!exchangesOver) armedFace = false;
  }
  /// The end of a hand; another is dealt after it.
  void count() {
    score = std::min(32767, score + links());
    ++(links() == 4 ? full : hands);
    tableScore = std::to_string(score);
    if (hands == 10) {
      hands = 0;
      canCount = onTable = false;
      menuScore = std::to_string(score);
      menuFull = std::to_string(full);
      menuLevel = std::to_string(level);
      canContinue = canSave = score >= 30;
    }
    tableHands = std::to_string(10 - hands);
  }
  void open(bool fresh) {
    if (fresh) {
      score = 0;
      level = 1;
    } else {
      score -= 30;
      level = std::min(32767, level + 1);
    }
    full = 0;
    onTable = canCount = fullShown = true;
    canContinue = false;
    exchangesShown = twoExchanges;
    tableScore = std::to_string(score);
    tableLevel = std::to_string(level);
    tableHands = "10";
  }
  void giveUp() {
    onTable = canContinue = canSave = fullShown = false;
    menuScore = menuLevel = "0";
    hands = level = 0;
  }
  void load(int storedScore, int storedLevel) {
    if (storedScore == 0) canLoad = false;
    if (storedScore <= 0) return;
    score = storedScore;
    level = storedLevel;
    menuScore = std::to_string(score);
    menuLevel = std::to_string(level);
    canContinue = true;
  }
};

class ChainTable : public TableTest {
 protected:
  ChainTable() { room.play({"click commpr(4)"}); }

  std::array<int, 8> seenTiles() {
    std::array<int, 8> tiles{};
    std::set<int> different;
    for (int i = 1; i <= 7; ++i) {
      const PictureId& picture = element("pictca", i).Picture;
      EXPECT_EQ(picture.store().name, "Picture2");
      tiles.at(static_cast<std::size_t>(i)) = picture.index();
      different.insert(picture.index());
    }
    EXPECT_EQ(different.size(), 7U);
    return tiles;
  }
  void expectSeen() {
    const auto plainRoom = plain.onTable ? "Frame4BIS" : "Frame4";
    EXPECT_EQ(control(plainRoom).Visible, true);
    for (int i = 1; i <= 5; ++i) {
      EXPECT_EQ(element("pictca", i).Picture.get().index(), plain.tile.at(static_cast<std::size_t>(i)));
      EXPECT_TRUE(element("pictca", i).Visible);
      EXPECT_EQ(element("Sh", i).FillColor,
                plain.toSubstitute.contains(i) ? Colour(0xFFFF80) : Colour(SystemColour::ActiveBorder));
      EXPECT_EQ(element("Sh", i).BorderColor, Colour(plain.toExchange.contains(i) ? kRed : kBlack));
      EXPECT_EQ(element("Comsost", i).Enabled, !plain.substituted);
      EXPECT_EQ(element("Comscam", i).Enabled, !plain.exchangesOver);
    }
    EXPECT_EQ(control("SOSTITCAT").Enabled, !plain.substituted);
    EXPECT_EQ(control("SOSTITCAT").Caption,
              "SOSTITUZIONE" + (plain.numberShown > 0 ? std::to_string(plain.numberShown) : ""));
    EXPECT_EQ(control("SOSTITCAT").BackColor,
              plain.toSubstitute.empty() ? Colour(SystemColour::ToolTip) : Colour(kYellow));
    EXPECT_EQ(control("SCAMBIA").Visible, !plain.exchangesOver);
    EXPECT_EQ(control("SCAMBIA").Picture, PictureId(plain.armedFace ? pictures::SC2 : pictures::SC1));
    EXPECT_EQ(control("SCALABELCAT").Caption, std::to_string(plain.exchanges));
    EXPECT_EQ(control("SCALABELCAT").Visible, plain.exchangesShown);
    EXPECT_EQ(control("Lll1").Caption, std::to_string(plain.links()));
    EXPECT_EQ(control("Lok").Visible, plain.links() == 4);
    EXPECT_EQ(control("nmcat").Enabled, plain.canCount);
    EXPECT_EQ(control("Lpuca").Caption, plain.tableScore);
    EXPECT_EQ(control("Lmacatpu").Caption, plain.tableHands);
    EXPECT_EQ(control("Llivpuca").Caption, plain.tableLevel);
    EXPECT_EQ(control("Label3ca").Caption, plain.menuScore);
    EXPECT_EQ(control("Label10ca").Caption, plain.menuLevel);
    EXPECT_EQ(control("Label14ca").Caption, plain.menuFull);
    EXPECT_EQ(control("Label13ca").Visible, plain.fullShown);
    EXPECT_EQ(control("Label14ca").Visible, plain.fullShown);
    EXPECT_EQ(control("CoNTCAT").Enabled, plain.canContinue);
    EXPECT_EQ(control("SALVACAT").Enabled, plain.canSave);
    EXPECT_EQ(control("CARCAT").Enabled, plain.canLoad);
  }

  // The same click in the room and in the reckoning.
  void markSubstitution(int i) {
    click(element("Comsost", i));
    plain.markSubstitution(i);
  }
  void markExchange(int i) {
    click(element("Comscam", i));
    plain.markExchange(i);
  }
  void substitute() {
    click("SOSTITCAT");
    plain.substitute();
  }
  void exchange() {
    if (plain.exchangesOver) return;
    click("SCAMBIA");
    plain.exchange();
  }
  void count() {
    click("nmcat");
    plain.count();
    plain.deal(seenTiles());
  }
  void giveUp() {
    click("FINECA");
    plain.giveUp();
    plain.deal(seenTiles());
  }
  void begin(bool twoExchanges) {
    click(twoExchanges ? "Optca2" : "Optca1");
    plain.twoExchanges = twoExchanges;
    click("INICAT");
    plain.open(true);
    plain.deal(seenTiles());
  }
  void goOn() {
    click("CoNTCAT");
    if (!plain.canContinue) return;
    plain.open(false);
    if (!plain.dealt) plain.deal(seenTiles());
  }
  /// The best row that a substitution of some positions makes, then exchanges of neighbours of any kind.
  void playGreedily() {
    std::vector<std::vector<int>> choices{{}};
    for (int i = 1; i <= 5; ++i) {
      choices.push_back({i});
      for (int j = i + 1; j <= 5 && !plain.twoExchanges; ++j) choices.push_back({i, j});
    }
    int best = -1;
    std::vector<int> substituted;
    std::pair<std::size_t, std::size_t> exchanged{1, 1};
    for (const auto& choice : choices) {
      auto tiles = plain.tile;
      std::size_t reserve = 6;
      for (const int i : choice) tiles.at(static_cast<std::size_t>(i)) = tiles.at(reserve++);
      for (std::size_t a = 1; a <= 5; ++a) {
        for (std::size_t b = a; b <= 5; ++b) {
          auto swapped = tiles;
          std::swap(swapped[a], swapped[b]);
          if (PlainGame::linksOf(swapped) <= best) continue;
          best = PlainGame::linksOf(swapped);
          substituted = choice;
          exchanged = {a, b};
        }
      }
    }
    for (const int i : substituted) markSubstitution(i);
    expectSeen();
    substitute();
    if (exchanged.first != exchanged.second) {
      markExchange(static_cast<int>(exchanged.first));
      markExchange(static_cast<int>(exchanged.second));
      expectSeen();
      exchange();
    }
    expectSeen();
    EXPECT_EQ(plain.links(), best);
    count();
  }
  std::string stored() const { return contentOf(room.data.path() / "CATENA.dat"); }
  static int numberAt(const std::string& content, std::size_t place) {
    if (content.size() < place + 2) return 0;
    const int word =
        static_cast<unsigned char>(content[place]) | static_cast<unsigned char>(content[place + 1]) << 8;
    return word < 0x8000 ? word : word - 0x10000;
  }

  PlainGame plain;
};

TEST_F(ChainTable, NothingIsDealtAtTheStart) {
  room.expect({"Label3ca Caption=0", "Label10ca Caption=0", "Label13ca Visible=0", "Label14ca Visible=0",
               "CoNTCAT Enabled=0", "SALVACAT Enabled=0", "CARCAT Enabled=1", "Optca1 Value=1",
               "Optca2 Value=0", "Optca2 MouseIcon=Label9", "Comsost(3) MousePointer=0",
               "pictca(3) Picture=pictca(3)", "pictca(6) Visible=0"});
  EXPECT_EQ(
      room.get("Text1", "Caption"),
      "In questo gioco, tramite sostituzioni e scambi di \\npedine simildomino, si deve formare una catena "
      "\\ncon queste pedine correlate tra loro come nel \\ndomino. Ogni legame vale 1 punto.\\n");
  begin(false);
  room.expect({"Comsost(5) MouseIcon=Label13", "Comscam(1) MousePointer=99", "SCALABELCAT Visible=0"});
  expectSeen();
}

TEST_F(ChainTable, AnyClickInWholeGamesDoesWhatTheReckoningSays) {
  constexpr int kSteps = kSanitized ? 3'000 : 20'000;
  std::map<std::string, int> seen;
  for (const bool greedy : {true, false}) {
    if (plain.onTable) giveUp();
    begin(pick(2) == 0);
    for (int step = 0; step < kSteps; ++step) {
      if (!plain.onTable) {
        ++seen[plain.canContinue ? "passed" : "failed"];
        switch (pick(6)) {
          case 0:
            click("SALVACAT");
            if (plain.canSave) {
              EXPECT_EQ(numberAt(stored(), 0), plain.score);
              EXPECT_EQ(numberAt(stored(), 40), plain.level);
              ++seen["saved"];
            }
            break;
          case 1:
            if (plain.canLoad && !stored().empty()) {
              click("CARCAT");
              plain.load(numberAt(stored(), 0), numberAt(stored(), 40));
            }
            break;
          case 2:
            click("menucat");
            plain.canContinue = plain.canSave = false;
            room.play({"click commpr(4)"});
            break;
          case 3: begin(pick(2) == 0); break;
          default:
            goOn();
            seen["level 3"] += plain.level == 3;
            break;
        }
      } else if (greedy && pick(20) != 0) {
        if (plain.toSubstitute.empty() && plain.toExchange.empty() && !plain.substituted &&
            plain.exchanges == 0) {
          playGreedily();
        } else {
          count();
        }
      } else {
        switch (pick(9)) {
          case 0: substitute(); break;
          case 1: exchange(); break;
          case 2:
            seen["full"] += plain.links() == 4;
            count();
            break;
          case 3:
            if (pick(30) == 0) giveUp();
            break;
          default: pick(2) == 0 ? markSubstitution(1 + pick(5)) : markExchange(1 + pick(5)); break;
        }
      }
      expectSeen();
      ASSERT_FALSE(HasFailure()) << "greedy " << greedy << ", step " << step;
    }
  }
  for (const char* what : {"passed", "failed", "saved", "level 3", "full"}) EXPECT_GT(seen[what], 0) << what;
}

TEST_F(ChainTable, ExactlyThirtyPassesAndOneLessFails) {
  // The row 0 1, 1 2, 2 3, 3 0, 3 2 has three links; the last one of the second level, two.
  for (const bool passes : {true, false}) {
    room.queueCards(12, {0, 4, 8, 9, 11, 5, 3});
    begin(false);
    for (int hand = 1; hand <= 10; ++hand) {
      EXPECT_EQ(plain.links(), hand == 10 && !passes ? 2 : 3);
      if (hand == 9 && !passes) {
        room.queueCards(12, {0, 4, 8, 3, 11, 5, 9});
      } else {
        room.queueCards(12, {0, 4, 8, 9, 11, 5, 3});
      }
      count();
    }
    EXPECT_EQ(plain.score, passes ? 30 : 29);
    EXPECT_EQ(plain.canContinue, passes);
    expectSeen();
  }
}

struct Stored {
  const char* what;
  std::string content;
  int score;
  int level;

  friend void PrintTo(const Stored& stored, std::ostream* out) { *out << stored.what; }
};

std::string record(int score, std::size_t size, int level = 0, char padding = '\xAA') {
  std::string content(size, padding);
  const auto put = [&](std::size_t place, int value) {
    if (place + 2 > size) return;
    content[place] = static_cast<char>(value & 0xFF);
    content[place + 1] = static_cast<char>(value >> 8 & 0xFF);
  };
  put(0, score);
  put(40, level);
  return content;
}

class StoredChain : public ChainTable, public testing::WithParamInterface<Stored> {};

TEST_P(StoredChain, IsLoadedAsItStandsAndNeverChanged) {
  const auto& [what, content, score, level] = GetParam();
  const auto file = room.data.path() / "CATENA.dat";
  writeFile(file, content);
  for (int times = 0; times < 2; ++times) {
    click("CARCAT");
    EXPECT_EQ(contentOf(file), content);
    room.expect({score == 0 ? "CARCAT Enabled=0" : "CARCAT Enabled=1",
                 score > 0 ? "CoNTCAT Enabled=1" : "CoNTCAT Enabled=0", "SALVACAT Enabled=0"});
    EXPECT_EQ(room.get("Label3ca", "Caption"), std::to_string(std::max(0, score)));
    EXPECT_EQ(room.get("Label10ca", "Caption"), std::to_string(score > 0 ? level : 0));
  }
  plain.load(score, level);
  goOn();
  if (score <= 0) return;
  expectSeen();
  EXPECT_EQ(plain.score, score - 30);
  EXPECT_EQ(contentOf(file), content);
}

INSTANTIATE_TEST_SUITE_P(
    Files, StoredChain,
    testing::Values(Stored{"empty", "", 0, 0}, Stored{"oneByte", "\x64", 0, 0},
                    Stored{"scoreAlone", record(34, 2), 34, 0}, Stored{"cutShort", record(34, 41), 34, 0},
                    Stored{"whole", record(34, 42, 2), 34, 2}, Stored{"padded", record(34, 80, 2), 34, 2},
                    Stored{"long", record(34, 4000, 2), 34, 2}, Stored{"zero", record(0, 80, 5), 0, 5},
                    Stored{"negative", record(-3, 80, 5), -3, 5}, Stored{"little", record(1, 80, -7), 1, -7},
                    Stored{"large", record(32767, 80, 32767), 32767, 32767}),
    [](const auto& stored) { return stored.param.what; });

TEST_F(ChainTable, AGameIsStoredAndTakenUpInALaterRun) {
  const auto file = room.data.path() / "CATENA.dat";
  writeFile(file, record(34, 4000, 1));
  click("CARCAT");
  plain.load(34, 1);
  goOn();
  while (plain.onTable) playGreedily();
  while (!plain.canContinue) {
    begin(false);
    while (plain.onTable) playGreedily();
  }
  click("SALVACAT");
  EXPECT_EQ(stored(), record(plain.score, 4000, plain.level));

  Driver later(nullptr, room.dataFiles);
  for (const char* command : {"start", "click commpr(4)", "click CARCAT", "click CoNTCAT"}) {
    EXPECT_EQ(later.answer(command), "ok") << command;
  }
  EXPECT_EQ(later.answer("screen"), "Frame4BIS");
  EXPECT_EQ(later.answer("get Lpuca Caption"), std::to_string(plain.score - 30));
  EXPECT_EQ(later.answer("get Llivpuca Caption"), std::to_string(plain.level + 1));
  EXPECT_EQ(later.answer("get Lmacatpu Caption"), "10");
  EXPECT_NE(later.answer("get pictca(1) Picture").find("Picture2("), std::string::npos);
}

TEST_F(ChainTable, WithoutAFileOneIsMade) {
  click("CARCAT");
  EXPECT_TRUE(std::filesystem::is_regular_file(room.data.path() / "CATENA.dat"));
  EXPECT_EQ(stored(), "");
  room.expect({"CARCAT Enabled=0", "CoNTCAT Enabled=0"});
}

TEST_F(ChainTable, TheRulesThemselvesRefuseWhatThePhaseDoesNotAllow) {
  using chain::Chain;
  constexpr auto kMode = chain::Mode::OneExchange;
  ScriptedSource chance;
  struct Operation {
    std::string_view phases;  // idle, in a level, passed, failed
    std::function<void(Chain&)> run;
  };
  const std::vector<Operation> operations{{"ipf", [&](Chain& game) { game.begin(chance); }},
                                          {"p", [&](Chain& game) { game.nextLevel(chance); }},
                                          {"l", [&](Chain& game) { game.endHand(chance); }},
                                          {"l", [](Chain& game) { game.markSubstitution(2, kMode); }},
                                          {"l", [](Chain& game) { game.markExchange(3, kMode); }},
                                          {"l", [](Chain& game) { game.markExchange(4, kMode); }},
                                          {"l", [](Chain& game) { game.substitute(); }},
                                          {"l", [](Chain& game) { game.exchange(); }},
                                          {"ipf", [](Chain& game) { game.resume(31, 4); }},
                                          {"pf", [](Chain& game) { game.leave(); }}};
  Chain game;
  std::array<int, 4> refusals{};
  const auto stateOf = [&] {
    std::vector<int> state{static_cast<int>(game.phase()), game.score(), game.level(), game.handsLeft()};
    for (int i = 1; i <= 7; ++i) state.push_back(game.tile(i));
    for (int i = 1; i <= 5; ++i) state.push_back(game.isToSubstitute(i) + 2 * game.isToExchange(i));
    return state;
  };
  for (int i = 0; i < 20'000; ++i) {
    const auto& [phases, run] = operations.at(static_cast<std::size_t>(pick(operations.size())));
    const auto phase = static_cast<std::size_t>(game.phase());
    const bool allowed = phases.find("ilpf"[phase]) != std::string::npos;
    const auto before = stateOf();
    const bool substituted = game.substituted();
    run(game);
    EXPECT_TRUE(allowed || stateOf() == before) << "ilpf"[phase];
    refusals.at(phase) += !allowed;
    EXPECT_FALSE(substituted && game.isToSubstitute(2)) << "a second substitution";
    EXPECT_LE(game.exchanges(), 1);
  }
  for (const int count : refusals) EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace tombolario
