#include "chain/table.hpp"

#include <string>

#include "chain/game.hpp"
#include "toolkit/cursors.hpp"

namespace tombolario::chain {

namespace {

constexpr Colour kNoSubstitution = SystemColour::ActiveBorder;
constexpr Colour kSubstituted = 0xFFFF80;
constexpr Colour kNoExchange = kBlack;
constexpr Colour kExchanged = kRed;

constexpr Colour kIdle = SystemColour::ToolTip;
constexpr Colour kReady = kYellow;

}  // namespace

Table::Table(Form& owner, Host& host) : form(owner), host_(host) {
  CoNTCAT.Enabled = false;
  SALVACAT.Enabled = false;
  for (int i = 1; i <= kRow; ++i) {
    Comsost[i].onClick = [this, i] { Comsost_Click(i); };
    Comscam[i].onClick = [this, i] { Comscam_Click(i); };
  }
  SOSTITCAT.onClick = [this] { SOSTITCAT_Click(); };
  SCAMBIA.onClick = [this] { SCAMBIA_Click(); };
  nmcat.onClick = [this] { nmcat_Click(); };
  FINECA.onClick = [this] { FINECA_Click(); };
  INICAT.onClick = [this] { INICAT_Click(); };
  CoNTCAT.onClick = [this] { CoNTCAT_Click(); };
  CARCAT.onClick = [this] { CARCAT_Click(); };
  SALVACAT.onClick = [this] { SALVACAT_Click(); };
}

void Table::start() {
  Label3ca.Caption = "0";
  Label10ca.Caption = "0";
}

void Table::leave() {
  CoNTCAT.Enabled = false;
  SALVACAT.Enabled = false;
}

/// Deals a hand.
void Table::avviocatena() {
  game_.avviocatena(host_.uniform());
  SOSTITCAT.Caption = kSubstitution;
  SOSTITCAT.BackColor = kIdle;
  SOSTITCAT.Enabled = true;
  SCALABELCAT.Caption = game_.state().scambicat;
  SCAMBIA.Picture = pictures::SC1;
  SCAMBIA.Visible = true;
  enableMarks();
  for (int i = 1; i <= kRow; ++i) giveCursor(pictures::Label13, {&Comsost[i], &Comscam[i]});
  for (int position = 1; position <= kDrawn; ++position) showTile(position);
  showMarks();
  showLinks();
}

/// "NUOVA PARTITA".
void Table::INICAT_Click() {
  avviocatena();
  game_.begin();
  openTable();
}

/// "CONTINUA": the next level. Only a stored game can come here without a hand dealt.
void Table::CoNTCAT_Click() {
  if (!game_.state().dealt) avviocatena();
  game_.nextLevel();
  openTable();
}

/// The table at the start of a level.
void Table::openTable() {
  SCALABELCAT.Visible = mode() == Mode::TwoExchanges;
  Label13ca.Visible = true;
  Label14ca.Visible = true;
  CoNTCAT.Enabled = false;
  changeScreen(Frame4, Frame4BIS);
  nmcat.Enabled = true;
  Lpuca.Caption = game_.state().puntcat;
  Llivpuca.Caption = game_.state().livcat;
  Lmacatpu.Caption = kHandsOfALevel;
}

/// "SOSTITUZIONE" under a tile. With two tiles to a substitution the button tells how many are marked.
void Table::Comsost_Click(int position) {
  const int before = game_.state().nsostcat();
  game_.markSubstitution(position, mode());
  const int marked = game_.state().nsostcat();
  if (mode() == Mode::OneExchange && marked != before) {
    SOSTITCAT.Caption = marked == 0 ? kSubstitution : kSubstitution + std::to_string(marked);
  }
  SOSTITCAT.BackColor = marked > 0 ? kReady : kIdle;
  showMarks();
}

/// "SOSTITUZIONE": the one of this hand. The number on the button stays.
void Table::SOSTITCAT_Click() {
  if (!game_.substitute()) return;
  SOSTITCAT.Enabled = false;
  for (Button& button : Comsost) button.Enabled = false;
  for (int position = 1; position <= kRow; ++position) showTile(position);
  showLinks();
  SOSTITCAT.BackColor = kIdle;
  showMarks();
}

/// "SCAMBIO" over a tile.
void Table::Comscam_Click(int position) {
  game_.markExchange(position);
  showMarks();
  SCAMBIA.Picture = game_.state().toExchange() == 2 ? pictures::SC2 : pictures::SC1;
}

/// "SCAMBIA": the marked tiles change places.
void Table::SCAMBIA_Click() {
  if (!game_.exchange()) return;
  SCALABELCAT.Caption = game_.state().scambicat;
  showMarks();
  for (int position = 1; position <= kRow; ++position) showTile(position);
  showLinks();
  if (game_.exchangesLeft(mode())) {
    SCAMBIA.Picture = pictures::SC1;
    return;
  }
  SCAMBIA.Visible = false;
  for (Button& button : Comscam) button.Enabled = false;
}

/// "NUOVA MANO": the hand counts, and another is dealt.
void Table::nmcat_Click() {
  const bool levelOver = game_.endHand();
  Lpuca.Caption = game_.state().puntcat;
  if (levelOver) endLevel();
  Lmacatpu.Caption = game_.handsLeft();
  avviocatena();
}

/// The menu tells what the level has come to; without the score for the next one there is no way on.
void Table::endLevel() {
  nmcat.Enabled = false;
  changeScreen(Frame4BIS, Frame4);
  Label3ca.Caption = game_.state().puntcat;
  Label14ca.Caption = game_.state().pleincat;
  Label10ca.Caption = game_.state().livcat;
  CoNTCAT.Enabled = game_.levelPassed();
  SALVACAT.Enabled = game_.levelPassed();
}

/// "FINE": the level is given up. What is left of it is no game to store.
void Table::FINECA_Click() {
  changeScreen(Frame4BIS, Frame4);
  CoNTCAT.Enabled = false;
  SALVACAT.Enabled = false;
  Label13ca.Visible = false;
  Label14ca.Visible = false;
  Label3ca.Caption = "0";
  game_.giveUp();
  avviocatena();
  Label10ca.Caption = game_.state().livcat;
}

/// "SALVA".
void Table::SALVACAT_Click() { file().write({game_.state().puntcat, game_.state().livcat}); }

/// "CARICA": back to where the game was stored, after a level that was passed.
void Table::CARCAT_Click() {
  const auto [score, level] = file().read().items;
  if (score == 0) CARCAT.Enabled = false;
  if (score <= 0) return;
  game_.resume(score, level);
  Label3ca.Caption = score;
  Label10ca.Caption = level;
  CoNTCAT.Enabled = true;
}

void Table::enableMarks() {
  for (Button& button : Comsost) button.Enabled = true;
  for (Button& button : Comscam) button.Enabled = true;
}

void Table::showTile(int position) {
  pictca[position].Picture = {pictures::Picture2, game_.state().pescatecat[position]};
}

void Table::showMarks() {
  for (int i = 1; i <= kRow; ++i) {
    Sh[i].FillColor = game_.state().segnacat[i] ? kSubstituted : kNoSubstitution;
    Sh[i].BorderColor = game_.state().scambiocat[i] ? kExchanged : kNoExchange;
  }
}

void Table::showLinks() {
  const int links = game_.state().links();
  Lll1.Caption = links;
  Lok.Visible = links == kFullChain;
}

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::chain
