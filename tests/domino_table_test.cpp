#include <deque>
#include <numeric>

#include "domino_reckoning.hpp"
#include "pictures/catalogue.hpp"
#include "sanitized.hpp"
#include "table_test.hpp"

namespace tombolario {
namespace {

using reckoning::Move;
using reckoning::Pair;

constexpr Colour kGrey = 0x808080;
constexpr Colour kOrange = 0xFF8000;

/// A match kept by the plain description.
struct PlainMatch {
  enum Turn { ToLay, Stuck, Computer, Over };

  bool byTile = false;
  bool expert = true;

  std::map<int, Pair> player, computer;
  std::deque<Pair> line;  // as the tiles lie
  int leftLaid = 0;       // how many of them are left of the opening one
  int playerLaid = 0, computerLaid = 1;
  Turn turn = Over;
  std::string result;
  Colour left = kGrey, right = kGrey;
  bool passedOnOrange = false;
  int playerGames = 0, computerGames = 0, playerTiles = 0, computerTiles = 0;
  int shownPlayer = 0, shownComputer = 0;
  bool matchOver = false;
  int shown = 0;  // place in the line of what the middle shows, from the opening tile

  void deal(const std::vector<int>& order) {
    player.clear();
    computer.clear();
    for (int slot = 1; slot < 28; ++slot) {
      (slot < 15 ? player : computer)[slot] = tileOf(order.at(static_cast<std::size_t>(slot)));
    }
    line = {tileOf(order[0])};
    leftLaid = playerLaid = shown = 0;
    computerLaid = 1;
    left = right = kGrey;
    result = "";
    turn = playerMoves().empty() ? Stuck : ToLay;
    showScore();
  }
  void newMatch() {
    playerGames = computerGames = playerTiles = computerTiles = 0;
    matchOver = false;
    showScore();
  }
  int sx() const { return line.front().first; }
  int dx() const { return line.back().second; }
  std::vector<Move> playerMoves() const { return reckoning::moves(player, sx(), dx()); }

  void lay(int slot, bool onLeft) {
    if (turn != ToLay || !player.contains(slot)) return;
    for (const Move& move : playerMoves()) {
      if (move.slot != slot || move.left != onLeft) continue;
      put(player, move);
      turn = Computer;
      if (++playerLaid == 14) end('P', 14 - computerLaid);
      return;
    }
  }
  void pass() {
    if (turn != Stuck) return;
    turn = Computer;
    passedOnOrange = left == kOrange;
  }
  void computerMoves() {
    if (turn != Computer) return;
    turn = ToLay;
    const auto move = reckoning::choice(computer, sx(), dx(), reckoning::countsOf(player), expert);
    if (move) {
      put(computer, *move);
      if (++computerLaid == 14) end('C', 14 - playerLaid);
    } else if (passedOnOrange) {
      const int ahead = playerLaid - computerLaid;
      end(ahead > 0 ? 'P' : ahead < 0 ? 'C' : '-', std::abs(ahead));
    } else {
      left = right = kRed;
    }
    passedOnOrange = false;
    if (playerMoves().empty()) {
      left = right = kOrange;
      if (turn == ToLay) turn = Stuck;
    }
  }
  /// Whether another game is to be dealt.
  bool next() {
    if (turn != Over) return false;
    if (byTile ? std::max(playerTiles, computerTiles) >= 30 : std::max(playerGames, computerGames) == 9) {
      matchOver = true;
      showScore();
    }
    return !matchOver;
  }

 private:
  static Pair tileOf(int tile) { return reckoning::set().at(static_cast<std::size_t>(tile)); }
  void put(std::map<int, Pair>& hand, const Move& move) {
    Pair tile = hand.at(move.slot);
    if (move.reversed) std::swap(tile.first, tile.second);
    hand.erase(move.slot);
    if (move.left) {
      line.push_front(tile);
      ++leftLaid;
    } else {
      line.push_back(tile);
    }
    left = move.left ? kYellow : kGrey;
    right = move.left ? kGrey : kYellow;
  }
  void end(char side, int tiles) {
    turn = Over;
    result = side == 'P' ? "HAI VINTO" : side == 'C' ? "HAI PERSO" : "UN PARI";
    if (side == 'P') {
      ++playerGames;
      playerTiles += tiles;
    }
    if (side == 'C') {
      ++computerGames;
      computerTiles += tiles;
    }
  }
  void showScore() {
    shownPlayer = byTile ? playerTiles : playerGames;
    shownComputer = byTile ? computerTiles : computerGames;
  }
};

/// The face of the room's set that lies so.
PictureId faceOf(const Pair& tile) {
  const auto& set = reckoning::set();
  const bool reversed = tile.first > tile.second;
  const Pair sorted = reversed ? Pair(tile.second, tile.first) : tile;
  const auto number = std::find(set.begin(), set.end(), sorted) - set.begin();
  return {pictures::dominob, static_cast<int>(number) + (reversed ? 28 : 0)};
}

class DominoTable : public TableTest {
 protected:
  DominoTable() { room.play({"click commpr(3)"}); }

  std::vector<int> dealtOrder() {
    std::vector<int> order;
    for (int slot = 0; slot < 28; ++slot) {
      const PictureId& face = element("domin", slot).Picture;
      order.push_back(face.index());
    }
    auto sorted = order;
    std::sort(sorted.begin(), sorted.end());
    for (int tile = 0; tile < 28; ++tile) EXPECT_EQ(sorted.at(static_cast<std::size_t>(tile)), tile);
    return order;
  }
  void open(bool byTile, bool expert) {
    if (room("screen") == "Frame5BIS") room.play({"click FINEDOM"});
    room.play({byTile ? "click Opdom2" : "click Opdom1", expert ? "click Opdom4" : "click Opdom3"});
    const auto order = dealtOrder();
    room.play({"click giocodom"});
    plain = {};
    plain.byTile = byTile;
    plain.expert = expert;
    plain.newMatch();
    plain.deal(order);
  }
  void expectSeen() {
    expectLine();
    expectHands();
    EXPECT_EQ(control("lesx").BorderColor, plain.left);
    EXPECT_EQ(control("ledx").BorderColor, plain.right);
    EXPECT_EQ(control("lecen").BorderColor, kGrey);
    EXPECT_EQ(control("Commdomban").Enabled, plain.turn == PlainMatch::Computer);
    EXPECT_EQ(control("passadomban").Enabled, plain.turn == PlainMatch::Stuck);
    EXPECT_EQ(control("NUOVAPARDOM").Visible, plain.turn == PlainMatch::Over);
    if (plain.turn == PlainMatch::Over) {
      EXPECT_EQ(control("NUOVAPARDOM").Caption, plain.result);
    }
    EXPECT_EQ(control("FINEDOM").BackColor, plain.matchOver ? Colour(kRed) : Colour(0xFFFF80));
    EXPECT_EQ(control("scoredom1").Caption, std::to_string(plain.shownPlayer));
    EXPECT_EQ(control("scoredom2").Caption, std::to_string(plain.shownComputer));
  }
  void expectLine() {
    const PictureId blank(pictures::domin, 56);
    const int first = 30 - plain.leftLaid;
    const int last = first + static_cast<int>(plain.line.size()) - 1;
    for (std::size_t i = 1; i < plain.line.size(); ++i) {
      ASSERT_EQ(plain.line[i - 1].second, plain.line[i].first) << "the line breaks";
    }
    EXPECT_TRUE(first >= 3 && last <= 57);
    EXPECT_EQ(control("HScrolldom").Min, std::min(30, first + 1));
    EXPECT_EQ(control("HScrolldom").Max, std::max(30, last - 1));
    for (int box = 0; box <= 60; ++box) {
      const Control& tile = element("VISUAL", box);
      EXPECT_EQ(tile.Visible, box == 30 + plain.shown) << box;
      if (box >= first && box <= last) {
        EXPECT_EQ(tile.Picture, faceOf(plain.line.at(static_cast<std::size_t>(box - first))));
      }
    }
    EXPECT_EQ(control("wwwdom2").Picture, first < 30 ? faceOf(plain.line.front()) : blank);
    EXPECT_EQ(control("wwwdom").Picture, last > 30 ? faceOf(plain.line.back()) : blank);
  }
  void expectHands() {
    const Colour colour = plain.turn == PlainMatch::ToLay ? Colour(kYellow) : SystemColour::ToolTip;
    for (int slot = 1; slot <= 14; ++slot) {
      const bool held = plain.player.contains(slot);
      EXPECT_EQ(element("domin", slot).Visible, held) << slot;
      for (Control* button : {&element("LEF", slot), &element("RIGHT", slot)}) {
        EXPECT_EQ(button->Visible, held) << slot;
        EXPECT_TRUE(button->Enabled);
        EXPECT_EQ(button->BackColor, colour);
      }
      if (held) {
        EXPECT_EQ(element("domin", slot).Picture, faceOf(plain.player.at(slot)));
      }
    }
    EXPECT_EQ(control("domcont1").Caption, std::to_string(plain.player.size()));
    EXPECT_EQ(control("domcont2").Caption, std::to_string(plain.computer.size()));
    const auto players = reckoning::countsOf(plain.player);
    const auto computers = reckoning::countsOf(plain.computer);
    for (int n = 0; n < 7; ++n) {
      const auto at = static_cast<std::size_t>(n);
      EXPECT_EQ(element("peddom", n).Caption, std::to_string(players.at(at)));
      EXPECT_EQ(element("peddom", n + 7).Caption, std::to_string(computers.at(at)));
      const bool open = n == plain.sx() || n == plain.dx();
      EXPECT_EQ(element("peddom", n).BackColor, Colour(open ? kRed : kWhite));
      EXPECT_EQ(element("peddom", n).ForeColor, Colour(open ? kWhite : kBlack));
      EXPECT_EQ(element("peddom", n + 7).BackColor, Colour(kWhite));
    }
  }
  // The same click in the room and in the reckoning.
  void lay(int slot, bool left) {
    click(element(left ? "LEF" : "RIGHT", slot));
    plain.lay(slot, left);
  }
  void pass() {
    click(control("passadomban"));
    plain.pass();
  }
  void computerMoves() {
    click(control("Commdomban"));
    plain.computerMoves();
  }
  void next() {
    click(control("NUOVAPARDOM"));
    if (plain.next()) plain.deal(dealtOrder());
  }
  void scrollTo(int place) {
    Control& bar = control("HScrolldom");
    room("scroll HScrolldom " + std::to_string(30 + place));
    plain.shown = std::clamp(30 + place, bar.Min.get(), bar.Max.get()) - 30;
  }

  PlainMatch plain;
};

TEST_F(DominoTable, AGameStandsReadyFromTheStart) {
  room.expect({"Opdom1 Value=1", "Opdom2 Value=0", "Opdom3 Value=0", "Opdom4 Value=1", "scoredom1 Caption=0",
               "scoredom2 Caption=0", "NUOVAPARDOM Visible=0", "FINEDOM BackColor=0xFFFF80",
               "VISUAL(30) Visible=1", "HScrolldom Min=30", "HScrolldom Max=30", "HScrolldom Value=30",
               "HScrolldom MouseIcon=Label4", "LEF(14) MouseIcon=Label13", "Opdom3 MouseIcon=Label9",
               "domin(0) Visible=0", "domin(15) Visible=0", "domin(56) Picture=domin(56)",
               "domin(56) Visible=0"});
  const std::array widths{1380, 1370, 1375, 1385, 1390, 1383, 1377};
  const std::array heights{780, 779, 781, 778, 782, 777, 783};
  open(false, true);
  expectSeen();
  for (int slot = 0; slot < 28; ++slot) {
    for (const int reversed : {0, 28}) {
      const Control& tile = element("domin", slot + reversed);
      auto [a, b] =
          reckoning::set().at(static_cast<std::size_t>(element("domin", slot).Picture.get().index()));
      if (reversed != 0) std::swap(a, b);
      EXPECT_EQ(tile.Picture.get().index(), element("domin", slot).Picture.get().index() + reversed);
      EXPECT_EQ(tile.Width, widths.at(static_cast<std::size_t>(a)));
      EXPECT_EQ(tile.Height, heights.at(static_cast<std::size_t>(b)));
    }
  }
}

TEST_F(DominoTable, AnyClickInWholeMatchesDoesWhatTheReckoningSays) {
  constexpr int kMatches = kSanitized ? 12 : 300;
  std::map<std::string, int> seen;
  for (int match = 0; match < kMatches; ++match) {
    open(match % 2 == 1, match % 4 < 2);
    const int sense = match % 3;  // 0 plays well, 2 clicks about
    int clicks = 0;
    for (; !plain.matchOver && clicks < 20'000; ++clicks) {
      const auto good = plain.turn == PlainMatch::ToLay ? plain.playerMoves() : std::vector<Move>{};
      if (pick(8) < 2 * sense) {
        switch (pick(5)) {
          case 0: pass(); break;
          case 1: computerMoves(); break;
          case 2: scrollTo(pick(30) - 15); break;
          default: lay(1 + pick(14), pick(2) == 0); break;
        }
      } else if (!good.empty()) {
        const Move& move = sense == 0 ? good.front() : good.at(static_cast<std::size_t>(pick(good.size())));
        lay(move.slot, move.left);
      } else if (plain.turn == PlainMatch::Over) {
        ++seen[plain.result];
        next();
      } else {
        plain.turn == PlainMatch::Stuck ? pass() : computerMoves();
      }
      if (plain.left == kRed) ++seen["computer passed"];
      if (plain.left == kGrey && plain.turn == PlainMatch::Stuck) ++seen["stuck at the deal"];
      expectSeen();
      ASSERT_FALSE(HasFailure()) << "match " << match << ", click " << clicks;
    }
    ASSERT_TRUE(plain.matchOver);
    const auto [least, most] = std::minmax(plain.shownPlayer, plain.shownComputer);
    EXPECT_TRUE(plain.byTile ? most >= 30 && least < 30 : most == 9 && least < 9);
    next();
    expectSeen();
  }
  for (const char* what : {"HAI VINTO", "HAI PERSO", "UN PARI", "computer passed"}) {
    EXPECT_GT(seen[what], 0) << what;
  }
  if (!kSanitized) {
    EXPECT_GT(seen["stuck at the deal"], 0);
  }
}

TEST_F(DominoTable, AGameThatIsDroppedLeavesItsCountersUntilTheNextMatch) {
  open(false, true);
  for (int clicks = 0; plain.turn != PlainMatch::Over && clicks < 200; ++clicks) {
    const auto good = plain.playerMoves();
    if (plain.turn == PlainMatch::ToLay) lay(good.front().slot, good.front().left);
    plain.turn == PlainMatch::Stuck ? pass() : computerMoves();
  }
  next();
  ASSERT_FALSE(plain.playerMoves().empty());
  lay(plain.playerMoves().front().slot, plain.playerMoves().front().left);
  computerMoves();
  const std::string laid = control("domcont1").Caption;
  EXPECT_EQ(laid, "13");
  room.play({"click FINEDOM"});
  EXPECT_EQ(room("screen"), "FRAME5");
  EXPECT_EQ(control("domcont1").Caption, laid);
  EXPECT_EQ(control("scoredom1").Caption, std::to_string(plain.shownPlayer));
  EXPECT_EQ(control("scoredom2").Caption, std::to_string(plain.shownComputer));
  int offered = 0;
  for (int slot = 1; slot <= 14; ++slot) {
    EXPECT_TRUE(element("domin", slot).Visible);
    offered += element("LEF", slot).Visible;
  }
  EXPECT_EQ(offered, 13);
  room.play({"click MENUDOM"});
  EXPECT_EQ(room("screen"), "Frameprincipale");
  room.play({"click commpr(3)"});
  open(true, false);
  expectSeen();
}

}  // namespace
}  // namespace tombolario
