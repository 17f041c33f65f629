#include "domino/table.hpp"

#include "domino/game.hpp"
#include "toolkit/cursors.hpp"

namespace tombolario::domino {

namespace {

/// A tile tells its numbers by the size of its box too: the first by the width, the second by the height.
constexpr Numbers<0, kNumbers - 1> kWidths{1380, 1370, 1375, 1385, 1390, 1383, 1377};
constexpr Numbers<0, kNumbers - 1> kHeights{780, 779, 781, 778, 782, 777, 783};

constexpr Colour kToLay = kYellow;
constexpr Colour kMatchOver = kRed;

Colour colourOf(Signal signal, Colour nothing) {
  switch (signal) {
    case Signal::Nothing: break;
    case Signal::LastMove: return kYellow;
    case Signal::ComputerPassed: return kRed;
    case Signal::PlayerStuck: return 0xFF8000;
  }
  return nothing;
}

const char* wordOf(Result result) {
  switch (result) {
    case Result::None: break;
    case Result::Won: return "HAI VINTO";
    case Result::Lost: return "HAI PERSO";
    case Result::Drawn: return "UN PARI";
  }
  return "";
}

}  // namespace

Table::Table(Form& owner, Host& host) : form(owner), host_(host) {
  for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
    LEF[slot].onClick = [this, slot] { layPlayers(slot, true); };
    RIGHT[slot].onClick = [this, slot] { layPlayers(slot, false); };
  }
  HScrolldom.onChange = [this] { HScrolldom_Change(); };
  giocodom.onClick = [this] { giocodom_Click(); };
  FINEDOM.onClick = [this] { FINEDOM_Click(); };
  NUOVAPARDOM.onClick = [this] { NUOVAPARDOM_Click(); };
  passadomban.onClick = [this] {
    game_.pass();
    showTurn();
  };
  Commdomban.onClick = [this] { computerTurn(); };
}

void Table::inizioDOMINO() {
  HScrolldom.Min = kOpeningBox;
  HScrolldom.Max = kOpeningBox;
  showScore();
  game_.inizioDOMINO(host_.uniform());
  for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
    domin[slot].Visible = true;
    giveCursor(pictures::Label13, {&LEF[slot], &RIGHT[slot]});
  }
  wwwdom.Picture = domin[kBlankSlot].Picture;
  wwwdom2.Picture = domin[kBlankSlot].Picture;
  for (int slot = 0; slot < kFaces; ++slot) {
    const Tile& tile = game_.state().numdom[slot];
    domin[slot].Picture = {pictures::dominob, game_.face(slot)};
    domin[slot].Width = kWidths[tile.first];
    domin[slot].Height = kHeights[tile.second];
  }
  VISUAL[kOpeningBox].Picture = domin[0].Picture;
  VISUAL[kOpeningBox].Visible = true;
  showTurn();
}

/// The tile that the bar points at is the one that is seen.
void Table::HScrolldom_Change() {
  for (int box = 0; box < kBoxes; ++box) VISUAL[box].Visible = box == HScrolldom.Value;
}

/// "GIOCO": a match, with the game that has been dealt.
void Table::giocodom_Click() {
  changeScreen(FRAME5, Frame5BIS);
  offerTiles();
  game_.begin();
  showScore();
  calcoloDOMINO();
}

/// A game is over: the next one, unless the match is over too.
void Table::NUOVAPARDOM_Click() {
  if (game_.matchOver(counting())) {
    showScore();
    FINEDOM.BackColor = kMatchOver;
  }
  if (FINEDOM.BackColor == kMatchOver) return;
  offerTiles();
  inizioDOMINO();
  calcoloDOMINO();
}

/// "FINE": the game is dropped, and the first one of another match dealt.
void Table::FINEDOM_Click() {
  changeScreen(Frame5BIS, FRAME5);
  FINEDOM.BackColor = kMatchGoesOn;
  inizioDOMINO();
}

/// "sx" and "dx".
void Table::layPlayers(int slot, bool left) {
  const auto face = left ? game_.layLeft(slot) : game_.layRight(slot);
  if (face) {
    showOnLine(*face, left);
    domin[slot].Picture = domin[*face].Picture;
    domin[slot].Visible = false;
    LEF[slot].Visible = false;
    RIGHT[slot].Visible = false;
    showTurn();
  }
  showCounters();
}

/// "SCELTA COMPUTER".
void Table::computerTurn() {
  if (const auto laid = game_.computerTurn(level())) showOnLine(laid->slot, laid->left);
  showTurn();
  showCounters();
}

void Table::calcoloDOMINO() {
  game_.calcoloDOMINO();
  showCounters();
}

/// Puts a face on the end of the line and into its viewer. The bar reaches all tiles but the last of each
/// side, and the opening one.
void Table::showOnLine(int face, bool left) {
  const PictureId picture = domin[face].Picture;
  if (left) {
    VISUAL[game_.state().primodom].Picture = picture;
    wwwdom2.Picture = picture;
    HScrolldom.Min = game_.state().primodom + 1;
  } else {
    VISUAL[game_.state().ultimodom].Picture = picture;
    wwwdom.Picture = picture;
    HScrolldom.Max = game_.state().ultimodom - 1;
  }
}

/// Whose turn it is, what the ends of the line tell, and how the game has ended.
void Table::showTurn() {
  const State& now = game_.state();
  lesx.BorderColor = colourOf(now.lesx, kNothing);
  ledx.BorderColor = colourOf(now.ledx, kNothing);
  for (Button& button : LEF) button.BackColor = now.playerToLay ? kToLay : kIdle;
  for (Button& button : RIGHT) button.BackColor = now.playerToLay ? kToLay : kIdle;
  Commdomban.Enabled = now.computerToMove;
  passadomban.Enabled = now.playerToPass;
  if (now.result != Result::None) NUOVAPARDOM.Caption = wordOf(now.result);
  NUOVAPARDOM.Visible = now.result != Result::None;
  for (int number = 0; number < kNumbers; ++number) {
    const bool open = number == now.open.sxdom || number == now.open.dxdom;
    peddom[number].BackColor = open ? kRed : kWhite;
    peddom[number].ForeColor = open ? kWhite : kBlack;
  }
}

void Table::showCounters() {
  const State& now = game_.state();
  for (int n = 0; n < 2 * kNumbers; ++n) peddom[n].Caption = now.contadom[n];
  domcont1.Caption = kHand - now.posateumdom;
  domcont2.Caption = kHand - now.posatecomdom;
}

void Table::showScore() {
  const State& now = game_.state();
  const bool byGame = counting() == Counting::ByGame;
  scoredom1.Caption = byGame ? now.partumdom : now.pedumdom;
  scoredom2.Caption = byGame ? now.partcomdom : now.pedcomdom;
}

/// The buttons of all tiles.
void Table::offerTiles() {
  for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
    LEF[slot].Visible = true;
    RIGHT[slot].Visible = true;
  }
}

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::domino
