#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <optional>

#include "pictures/catalogue.hpp"
#include "ramino/rules.hpp"
#include "ramino_reckoning.hpp"
#include "sanitized.hpp"
#include "table_test.hpp"

namespace tombolario {
namespace {

enum class Phase { Draw, InPlay, Placed, Over };
constexpr std::size_t kDrawn = 9, kLooked = 21, kOpen = 22;

/// A match kept by the plain description.
struct PlainMatch {
  bool expert = true;

  std::array<int, 52> pos{};
  reckoning::Twelve twelve;                  // marks and groups; the cards are in pos
  std::string frames = std::string(9, '-');  // '-' free, 's' selected, 'L' locked
  Phase phase = Phase::Draw;
  std::size_t top = 23;
  std::vector<int> list;
  int shown = 0;  // place of the bar
  std::string overlay;
  bool blueButtons = false, exchangeButtons = false, drawnFrame = false, takenFrame = false;
  bool sawDrawn = false;  // whether the drawn card's box has a picture
  bool shownTable = false, lookedVisible = false, goOn = false;
  std::vector<std::size_t> laidOpen;  // the computer's positions on view, in order
  int human = 0, computer = 0;

  void deal(const std::vector<int>& cards) {
    std::copy(cards.begin(), cards.end(), pos.begin());
    twelve = {};
    phase = Phase::Draw;
    top = 23;
    list.clear();
    shown = 0;
    overlay = "";
    blueButtons = exchangeButtons = drawnFrame = takenFrame = sawDrawn = false;
    shownTable = false;
  }
  void clear() {
    frames = std::string(9, '-');
    lookedVisible = goOn = false;
    laidOpen.clear();
  }
  int selected() const { return static_cast<int>(std::count(frames.begin(), frames.end(), 's')); }

  void stock() {
    if (phase != Phase::Draw) return;
    cover(pos[kOpen]);
    drawnFrame = true;
    pos[kDrawn] = pos[top++];
    inHand();
    if (top == 51) draw();
  }
  void table() {
    if (phase != Phase::Draw) return;
    takenFrame = true;
    pos[kDrawn] = pos[kOpen];
    inHand();
  }
  void leave() {
    if (phase != Phase::InPlay) return;
    pos[kOpen] = pos[kDrawn];
    placed();
  }
  void press(std::size_t k) {
    if (phase == Phase::Over) return;
    if (phase == Phase::InPlay) {
      unlock(k);
      pos[kOpen] = pos[k];
      pos[k] = pos[kDrawn];
      frames[k] = '-';
      placed();
      return;
    }
    if (frames[k] == 's') {
      frames[k] = '-';
    } else if (selected() < 3) {
      unlock(k);
      frames[k] = 's';
    }
    if (selected() == 3) tryTris();
  }
  void swap() {
    if (selected() != 2) return;
    std::swap(pos[frames.find('s')], pos[frames.rfind('s')]);
    std::replace(frames.begin(), frames.end(), 's', '-');
  }
  void computersTurn() {
    if (phase != Phase::Placed) return;
    phase = Phase::Draw;
    bool taken = false;
    if (expert) {
      lookedVisible = true;
      shownTable = true;
      look(kOpen);
      taken = twelve.mark[kLooked] == 2;
      if (taken) fit();
      if (twelve.inTris() == 9) return lost();
      if (taken) return;
      shownTable = false;
    }
    const int open = pos[kOpen];
    look(top);
    const int mark = twelve.mark[kLooked];
    bool used = false;
    if (mark == 0 || (mark == 1 && twelve.handAllMarked())) {
      pos[kOpen] = pos[kLooked];
      used = true;
    } else {
      used = fit();
    }
    if (used) {
      ++top;
      cover(open);
    }
    if (twelve.inTris() == 9) return lost();
    if (top == 51 && twelve.inTris() < 9) draw();
  }

 private:
  void cover(int card) {
    list.push_back(card);
    shown = static_cast<int>(list.size()) - 1;
  }
  void inHand() {
    phase = Phase::InPlay;
    sawDrawn = true;
    std::replace(frames.begin(), frames.end(), 's', '-');
    blueButtons = exchangeButtons = true;
  }
  void placed() {
    phase = Phase::Placed;
    std::replace(frames.begin(), frames.end(), 's', '-');
    blueButtons = exchangeButtons = drawnFrame = takenFrame = false;
  }
  void unlock(std::size_t k) {
    if (frames[k] != 'L') return;
    for (std::size_t i = k / 3 * 3; i < k / 3 * 3 + 3; ++i) frames[i] = '-';
  }
  void tryTris() {
    std::vector<std::size_t> chosen;
    for (std::size_t k = 0; k < 9; ++k) {
      if (frames[k] == 's') chosen.push_back(k);
    }
    if (!reckoning::playersTris(pos[chosen[0]], pos[chosen[1]], pos[chosen[2]])) return;
    std::size_t to = frames[0] != 'L' ? 0 : frames[3] != 'L' ? 3 : 6;
    for (const std::size_t k : chosen) {
      std::swap(pos[to], pos[k]);
      frames[k] = '-';
      frames[to++] = 'L';
    }
    if (frames != "LLLLLLLLL") return;
    phase = Phase::Over;
    overlay = "ramvin";
    shownTable = false;
    goOn = ++human < 9;
  }
  void look(std::size_t from) {
    twelve.clearPairs();
    pos[kLooked] = pos[from];
    for (std::size_t p = 10; p <= 21; ++p) twelve.card[p] = pos[p];
    twelve.look();
  }
  bool fit() {
    for (std::size_t p = 10; p <= 20; ++p) {
      const bool pairGoes = twelve.mark[p] == 1 && twelve.handAllMarked() && twelve.mark[kLooked] == 2;
      if (twelve.mark[p] != 0 && !pairGoes) continue;
      pos[kOpen] = pos[p];
      pos[p] = pos[kLooked];
      twelve.mark[p] = twelve.mark[kLooked];
      twelve.group[p] = twelve.group[kLooked];
      twelve.mark[kLooked] = 0;
      return true;
    }
    return false;
  }
  void lost() {
    phase = Phase::Over;
    overlay = "ramper";
    shownTable = false;
    goOn = ++computer < 9;
    for (int group = 0; group < 3; ++group) {
      for (std::size_t p = 10; p <= 20; ++p) {
        if (twelve.mark[p] == 2 && twelve.group[p] == group) laidOpen.push_back(p);
      }
    }
  }
  void draw() {
    phase = Phase::Over;
    overlay = "rampar";
    exchangeButtons = false;
    goOn = true;
  }
};

class RaminoTable : public TableTest {
 protected:
  RaminoTable() {
    room.play({"click commpr(5)"});
    std::iota(pack_.begin(), pack_.end(), 0);
  }

  /// A deal by one of the three buttons, of the cards told, or of any.
  void deal(const char* button, std::vector<int> cards = {}) {
    if (cards.empty()) {
      std::shuffle(pack_.begin(), pack_.end(), engine);
      cards.assign(pack_.begin(), pack_.end() - 1);
    }
    if (control(button).Visible) {
      room.queueCards(52, cards);
      plain.clear();
      plain.deal(cards);
      if (button == std::string("ALTRORAM")) plain.human = plain.computer = 0;
    }
    click(button);
    ASSERT_EQ(room("queued"), "0");
  }
  void open(bool expert) {
    if (room("screen") == "Frame6bis") click("ramesc");
    click(expert ? "Opram2" : "Opram1");
    click("GIOCORAM");
    plain.expert = expert;
    deal("ALTRORAM");
  }
  void stock() {
    click("mazzoram");
    plain.stock();
  }
  void takeTable() {
    click("tavoloram");
    plain.table();
  }
  void leave() {
    click("ramlas");
    plain.leave();
  }
  void press(std::size_t k) {
    click(element("ramCom", k));
    plain.press(k);
  }
  void swap() {
    click("scambiaram");
    plain.swap();
  }
  void computersTurn() {
    click("ramturncom");
    plain.computersTurn();
  }

  void expectSeen() {
    const auto card = [](int number) { return PictureId(pictures::ramcar, number); };
    const bool over = plain.phase == Phase::Over;
    for (std::size_t k = 0; k < 9; ++k) {
      EXPECT_EQ(element("ramin", k).Picture, card(plain.pos[k])) << k;
      const char frame = plain.frames[k];
      EXPECT_EQ(element("Ramfr", k).BackColor, frame == 'L'   ? Colour(kYellow)
                                               : frame == 's' ? Colour(SystemColour::ButtonShadow)
                                                              : Colour(SystemColour::Light3d));
      const Control& button = element("ramCom", k);
      EXPECT_EQ(button.Enabled, !over);
      EXPECT_EQ(button.BackColor, Colour(plain.blueButtons ? kBlue : kRed));
      EXPECT_EQ(button.Picture, PictureId(plain.exchangeButtons ? pictures::rampul2 : pictures::rampul1));
    }
    EXPECT_EQ(element("ramin", 9).Picture, plain.sawDrawn ? card(plain.pos[kDrawn]) : PictureId());
    EXPECT_EQ(control("cartatr").Picture, card(plain.pos[kOpen]));
    EXPECT_EQ(element("Ramfr", 9).Visible, plain.drawnFrame);
    EXPECT_EQ(control("Frame19b").Visible, plain.takenFrame);
    EXPECT_EQ(control("mazzoram").Enabled, plain.phase == Phase::Draw);
    EXPECT_EQ(control("tavoloram").Enabled, plain.phase == Phase::Draw);
    EXPECT_EQ(control("ramlas").Enabled, plain.phase == Phase::InPlay);
    EXPECT_EQ(control("ramturncom").Enabled, plain.phase == Phase::Placed);
    EXPECT_EQ(control("scambiaram").Enabled, plain.selected() == 2);
    for (std::size_t p = 10; p <= 21; ++p) {
      const auto place = std::find(plain.laidOpen.begin(), plain.laidOpen.end(), p);
      const bool open = place != plain.laidOpen.end();
      EXPECT_EQ(element("ramin", p).Picture, card(plain.pos[p])) << p;
      EXPECT_EQ(element("ramin", p).Visible, p == kLooked ? plain.lookedVisible : open) << p;
      if (open) {
        EXPECT_EQ(element("ramin", p).Left, 600 * static_cast<int>(place - plain.laidOpen.begin() + 1));
      }
    }
    EXPECT_EQ(control("ramcomp").Visible, plain.shownTable);
    EXPECT_EQ(control("avvram").Visible, !plain.laidOpen.empty());
    for (const char* overlay : {"ramvin", "ramper", "rampar"}) {
      EXPECT_EQ(control(overlay).Visible, plain.overlay == overlay) << overlay;
    }
    EXPECT_EQ(control("Continuaramino").Visible, plain.goOn);
    EXPECT_EQ(control("PRAMC").Caption, std::to_string(plain.computer));
    EXPECT_EQ(control("PRAMH").Caption, std::to_string(plain.human));
    EXPECT_LE(std::max(plain.human, plain.computer), 9);

    const auto listed = plain.list.size();
    EXPECT_LE(listed, 37U);
    EXPECT_EQ(control("VScrollram1").Max, listed == 0 ? 0 : static_cast<int>(listed) - 1);
    EXPECT_EQ(control("VScrollram1").Value, plain.shown);
    for (std::size_t i = 0; i < 37; ++i) {
      EXPECT_EQ(element("visualram", i).Visible, i < listed && i == static_cast<std::size_t>(plain.shown));
      if (i < listed) {
        EXPECT_EQ(element("visualram", i).Picture, card(plain.list[i]));
      }
    }
  }
  /// Three cards outside the locked triples that can be locked.
  std::optional<std::array<std::size_t, 3>> findTris() {
    for (std::size_t a = 0; a < 9; ++a)
      for (std::size_t b = a + 1; b < 9; ++b)
        for (std::size_t c = b + 1; c < 9; ++c) {
          const bool loose = plain.frames[a] != 'L' && plain.frames[b] != 'L' && plain.frames[c] != 'L';
          if (loose && reckoning::playersTris(plain.pos[a], plain.pos[b], plain.pos[c])) {
            return std::array{a, b, c};
          }
        }
    return std::nullopt;
  }
  /// How many loose cards of the hand stand close to this one, if it stood there.
  int worth(std::size_t k, int card) {
    int close = 0;
    for (std::size_t other = 0; other < 9; ++other) {
      if (other == k || plain.frames[other] == 'L') continue;
      const int apart = std::abs(card % 13 - plain.pos[other] % 13);
      close += apart == 0 || (card / 13 == plain.pos[other] / 13 && apart <= 2);
    }
    return close;
  }
  void playWell() {
    switch (plain.phase) {
      case Phase::Draw:
      case Phase::Placed:
        if (const auto tris = findTris()) {
          for (std::size_t k = 0; k < 9; ++k) {
            if (plain.frames[k] == 's') return press(k);
          }
          for (const std::size_t k : *tris) {
            press(k);
            expectSeen();
          }
          return;
        }
        if (plain.phase == Phase::Placed) return computersTurn();
        return pick(3) == 0 ? takeTable() : stock();
      case Phase::InPlay: {
        std::size_t least = 9;
        for (std::size_t k = 0; k < 9; ++k) {
          if (plain.frames[k] == 'L') continue;
          if (least == 9 || worth(k, plain.pos[k]) < worth(least, plain.pos[least])) least = k;
        }
        const bool better = least < 9 && worth(least, plain.pos[kDrawn]) >= worth(least, plain.pos[least]);
        return better ? press(least) : leave();
      }
      case Phase::Over: return deal(plain.goOn ? "Continuaramino" : "ALTRORAM");
    }
  }
  void clickAbout() {
    switch (pick(9)) {
      case 0: return stock();
      case 1: return takeTable();
      case 2: return leave();
      case 3: return swap();
      case 4: return computersTurn();
      case 5: {
        const int to = pick(40);
        room("scroll VScrollram1 " + std::to_string(to));
        plain.shown = std::clamp(to, 0, control("VScrollram1").Max.get());
        return;
      }
      case 6:
        if (plain.goOn) return deal("Continuaramino");
        if (pick(50) == 0) deal("ALTRORAM");
        return;
      default: return press(static_cast<std::size_t>(pick(9)));
    }
  }

  PlainMatch plain;

 private:
  std::vector<int> pack_ = std::vector<int>(52);
};

TEST_F(RaminoTable, AHandLiesReadyFromTheStart) {
  room.expect({"PRAMC Caption=0", "PRAMH Caption=0", "Opram1 Value=0", "Opram2 Value=1",
               "ramin(9) Picture=none", "Continuaramino Visible=0", "ramCom(8) MouseIcon=Label13",
               "VScrollram1 MouseIcon=Label4", "Opram1 MouseIcon=Label9", "ramin(10) Visible=0",
               "ramin(21) Visible=0", "avvram Visible=0", "VScrollram1 Max=0"});
  room.play({"click MENURAM"});
  EXPECT_EQ(room("screen"), "Frameprincipale");
}

TEST_F(RaminoTable, AnyClickInWholeMatchesDoesWhatTheReckoningSays) {
  constexpr int kClicks = kSanitized ? 2'000 : 20'000;
  std::map<std::string, int> ends;
  for (const bool expert : {false, true}) {
    for (int player = 0; player < 2; ++player) {
      open(expert);
      for (int i = 0; i < kClicks; ++i) {
        const bool wasOver = plain.phase == Phase::Over;
        if (player == 0) playWell();
        if (player == 1) clickAbout();
        expectSeen();
        ASSERT_FALSE(HasFailure()) << "expert " << expert << ", player " << player << ", step " << i;
        if (!wasOver && plain.phase == Phase::Over) ++ends[plain.overlay];
      }
    }
  }
  for (const char* end : {"ramvin", "ramper", "rampar"}) EXPECT_GT(ends[end], kSanitized ? 5 : 20) << end;
}

TEST_F(RaminoTable, TheRulesThemselvesRefuseWhatThePhaseDoesNotAllow) {
  using ramino::Ramino;
  ScriptedSource chance;
  struct Operation {
    std::string_view phases;  // none yet, draw, in play, placed, won, lost, no card left
    std::function<void(Ramino&)> run;
  };
  const std::vector<Operation> operations{
      {"d", [](Ramino& game) { game.drawFromStock(); }},
      {"d", [](Ramino& game) { game.takeFromTable(); }},
      {"i", [](Ramino& game) { game.leave(); }},
      {"p", [](Ramino& game) { game.computerTurn(ramino::Level::Expert); }},
      {"wln", [&](Ramino& game) { game.nextHand(chance); }},
      {"dip", [](Ramino& game) { game.press(4); }},
      {"", [](Ramino& game) { game.swapSelected(); }}};
  const auto stateOf = [](const Ramino& game) {
    std::vector<int> state{static_cast<int>(game.phase()), game.discards(), game.wonByComputer()};
    for (int p = 0; p <= 22; ++p) state.push_back(game.card(p));
    for (int k = 0; k < 9; ++k) state.push_back(static_cast<int>(game.frame(k)));
    return state;
  };
  bool wholeMatch = false;
  Ramino game;
  for (int i = 0; i < 20'000; ++i) {
    const Operation& operation = operations.at(static_cast<std::size_t>(pick(operations.size())));
    const auto phase = "-dipwln"[static_cast<int>(game.phase())];
    const bool matchOver = game.isOver() && !game.goesOn();
    const auto before = stateOf(game);
    operation.run(game);
    EXPECT_EQ(stateOf(game) != before, !matchOver && operation.phases.find(phase) != std::string::npos)
        << phase;
    wholeMatch |= matchOver;
    if ((phase == '-' || matchOver) && pick(20) == 0) game.newMatch(chance);
  }
  EXPECT_TRUE(wholeMatch);
}

/// A deal with cards of one's own first: the player's nine, the drawn one's place, the computer's eleven,
/// the looked one's place, the table card, the stock.
std::vector<int> dealOf(const std::vector<int>& first) {
  std::vector<int> cards = first;
  for (int card = 0; cards.size() < 51; ++card) {
    if (std::find(first.begin(), first.end(), card) == first.end()) cards.push_back(card);
  }
  return cards;
}

TEST_F(RaminoTable, AMatchEndsWithTheNinthHand) {
  for (const bool expert : {false, true}) {
    open(expert);
    for (int hand = 1; hand <= 9; ++hand) {
      deal(hand == 1 ? "ALTRORAM" : "Continuaramino", dealOf({0, 13, 26, 1, 14, 27, 2, 15, 28}));
      for (const std::size_t k : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U}) press(k);
      expectSeen();
      EXPECT_EQ(plain.human, hand);
      ASSERT_EQ(plain.goOn, hand < 9);
    }
    for (int hand = 1; hand <= 9; ++hand) {
      // Three sets of the computer's among eleven, in no order.
      deal(hand == 1 ? "ALTRORAM" : "Continuaramino",
           dealOf({0, 14, 29, 43, 5, 20, 34, 48, 10, 51, 1, 2, 3, 27, 40, 28, 41, 42, 16, 11, 25, 50, 8}));
      takeTable();
      leave();
      computersTurn();
      expectSeen();
      EXPECT_EQ(plain.computer, hand);
      ASSERT_EQ(plain.goOn, hand < 9);
      room.expect({"ramper Visible=1", "avvram Visible=1", "Continuaramino MouseIcon=Label13"});
    }
    deal("ALTRORAM");
    expectSeen();
    room.expect({"PRAMC Caption=0", "PRAMH Caption=0", "Continuaramino Visible=0"});
  }
}

TEST_F(RaminoTable, FourTrisOfTheComputerKeepTheGameAlive) {
  for (const bool expert : {false, true}) {
    open(expert);
    // Eleven cards of four sets; the table card and the first of the stock would each be the twelfth.
    deal("ALTRORAM",
         dealOf({4, 5, 6, 7, 17, 18, 19, 30, 31, 51, 0, 13, 26, 1, 14, 27, 2, 15, 28, 3, 16, 50, 29, 42}));
    for (int turn = 0; turn < 60; ++turn) {
      takeTable();
      leave();
      computersTurn();
      expectSeen();
      ASSERT_EQ(plain.phase, Phase::Draw);
      ASSERT_FALSE(HasFailure()) << turn;
    }
    for (int turn = 0; turn < 40 && plain.phase != Phase::Over; ++turn) {
      stock();
      leave();
      computersTurn();
      expectSeen();
      ASSERT_FALSE(HasFailure()) << turn;
    }
    EXPECT_EQ(plain.overlay, "rampar");
  }
}

TEST_F(RaminoTable, LeavingTheTableDropsTheMatch) {
  open(true);
  deal("ALTRORAM", dealOf({0, 13, 26, 1, 14, 27, 2, 15, 28}));
  for (const std::size_t k : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U}) press(k);
  room.expect({"PRAMH Caption=1", "Continuaramino Visible=1"});
  room.play({"click ramesc"});
  EXPECT_EQ(room("screen"), "frame6");
  room.expect({"PRAMH Caption=0", "Continuaramino Visible=0", "Ramfr(0) BackColor=3d-light",
               "ramvin Visible=0", "ramCom(0) Enabled=1", "mazzoram Enabled=1", "ramin(9) Picture=none"});
  room.play({"click GIOCORAM"});
  EXPECT_EQ(room("screen"), "Frame6bis");
}

}  // namespace
}  // namespace tombolario
