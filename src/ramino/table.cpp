#include "ramino/table.hpp"

#include <initializer_list>
#include "ramino/game.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/marks.hpp"

namespace tombolario::ramino {

namespace {

Colour colourOf(FrameState frame) {
  switch (frame) {
    case FrameState::Free: break;
    case FrameState::Selected: return kMarked;
    case FrameState::Locked: return kYellow;
  }
  return kAtRest;
}

}  // namespace

Table::Table(Form& owner, Host& host) : form(owner), host_(host) {
  for (int card = 0; card < kPlayerCards; ++card) ramCom[card].onClick = [this, card] { ramCom_Click(card); };
  VScrollram1.onChange = [this] { VScrollram1_Change(); };
  mazzoram.onClick = [this] { mazzoram_Click(); };
  tavoloram.onClick = [this] { tavoloram_Click(); };
  ramlas.onClick = [this] { ramlas_Click(); };
  scambiaram.onClick = [this] { scambiaram_Click(); };
  ramturncom.onClick = [this] { ramturncom_Click(); };
  Continuaramino.onClick = [this] { Continuaramino_Click(); };
  ALTRORAM.onClick = [this] { ALTRORAM_Click(); };
  GIOCORAM.onClick = [this] { GIOCORAM_Click(); };
  ramesc.onClick = [this] { ramesc_Click(); };
}

void Table::start() {
  begin();
  avvioRAM();
}

/// A match without a hand won.
void Table::begin() {
  game_.begin();
  PRAMC.Caption = game_.state().vintiCompRam;
  PRAMH.Caption = game_.state().vintiUmanoRam;
}

/// Deals a hand.
void Table::avvioRAM() {
  for (Control* control : std::initializer_list<Control*>{&Ramfr[kInPlay], &Frame19b, &ramper, &ramvin,
                                                          &rampar, &avvram, &ramcomp}) {
    control->Visible = false;
  }
  enableButtons(true);
  showButtons(pictures::rampul1, kRed);
  for (Button& button : ramCom) giveCursor(pictures::Label13, {&button});
  VScrollram1.Max = 0;
  for (PictureBox& entry : visualram) entry.Visible = false;
  game_.avvioRAM(host_.uniform());
  ramin[kInPlay].Picture = PictureId();
  showCards();
  showTurn();
}

/// "GIOCO".
void Table::GIOCORAM_Click() {
  changeScreen(frame6, Frame6bis);
  ramesc.Visible = true;
  ramvin.Visible = false;
  ramper.Visible = false;
  enableButtons(true);
}

/// "MAZZO": the next card of the stock comes into play, and the table card is covered.
void Table::mazzoram_Click() {
  const int listed = game_.state().nScartiRam;
  game_.drawFromStock();
  showDiscards(listed);
  Ramfr[kInPlay].Visible = true;
  drawn();
}

/// "TAVOLO": the table card comes into play, and stays on view.
void Table::tavoloram_Click() {
  game_.takeFromTable();
  Frame19b.Visible = true;
  drawn();
}

void Table::drawn() {
  ramin[kInPlay].Picture = {pictures::ramcar, game_.card(kInPlay)};
  showButtons(pictures::rampul2, kBlue);
  showTurn();
  endHand();
}

/// "lascia": the card in play goes to the table.
void Table::ramlas_Click() {
  game_.leave();
  placed();
}

/// The button of a card: "Segna", or the two arrows that exchange it for the card in play.
void Table::ramCom_Click(int card) {
  const bool inPlay = game_.state().phase == Phase::InPlay;
  game_.press(card);
  if (inPlay) {
    placed();
  } else {
    showCards();
    showTurn();
  }
  endHand();
}

/// The card in play has its place.
void Table::placed() {
  showButtons(pictures::rampul1, kRed);
  Ramfr[kInPlay].Visible = false;
  Frame19b.Visible = false;
  showCards();
  showTurn();
}

/// Two cards change places.
void Table::scambiaram_Click() {
  game_.swapSelected();
  showCards();
  showTurn();
}

/// "TURNO DEL COMPUTER": the expert shows the table card that it takes.
void Table::ramturncom_Click() {
  const int listed = game_.state().nScartiRam;
  const bool tookTable = game_.computerTurn(level());
  if (level() == Level::Expert) {
    ramin[kConsidered].Visible = true;
    ramcomp.Visible = tookTable;
  }
  showDiscards(listed);
  showCards();
  showTurn();
  endHand();
}

/// "CONTINUA": the next hand of the match.
void Table::Continuaramino_Click() {
  clearTable();
  avvioRAM();
}

/// "ALTRA PARTITA".
void Table::ALTRORAM_Click() {
  begin();
  clearTable();
  avvioRAM();
}

/// "ESCI": the hand and the match are lost.
void Table::ramesc_Click() {
  begin();
  changeScreen(Frame6bis, frame6);
  clearTable();
  avvioRAM();
}

/// No card stays selected or locked, and the computer's are seen no more.
void Table::clearTable() {
  game_.freeFrames();
  for (int position = kComputerFirst; position <= kConsidered; ++position) ramin[position].Visible = false;
  Continuaramino.Visible = false;
}

/// One of the covered cards is on view.
void Table::VScrollram1_Change() {
  for (int i = 0; i < kListPlaces; ++i) visualram[i].Visible = i == VScrollram1.Value;
}

/// A card that has just been covered comes into view in the list, which had so many entries before.
void Table::showDiscards(int listed) {
  if (game_.state().nScartiRam == listed) return;
  const int last = listed;
  visualram[last].Picture = {pictures::ramcar, game_.state().scarti[last]};
  visualram[last].Visible = true;
  VScrollram1.Max = last;
  VScrollram1.Value = last;
}

void Table::showCards() {
  for (int position = 0; position <= kConsidered; ++position) {
    if (position != kInPlay) ramin[position].Picture = {pictures::ramcar, game_.card(position)};
  }
  cartatr.Picture = {pictures::ramcar, game_.card(kTable)};
}

/// Which buttons the phase of the turn allows, and the frames.
void Table::showTurn() {
  const State& now = game_.state();
  mazzoram.Enabled = now.phase == Phase::ToDraw;
  tavoloram.Enabled = now.phase == Phase::ToDraw;
  ramlas.Enabled = now.phase == Phase::InPlay;
  ramturncom.Enabled = now.phase == Phase::Placed;
  scambiaram.Enabled = now.selRam == 2;
  for (int card = 0; card < kPlayerCards; ++card) Ramfr[card].BackColor = colourOf(now.frames[card]);
}

void Table::showButtons(const PictureId& picture, Colour back) {
  for (Button& button : ramCom) {
    button.Picture = picture;
    button.BackColor = back;
  }
}

void Table::enableButtons(bool enabled) {
  for (Button& button : ramCom) button.Enabled = enabled;
}

/// Shows how the hand has ended, if it has.
void Table::endHand() {
  const Result result = game_.state().result;
  if (result == Result::None) return;
  enableButtons(false);
  switch (result) {
    case Result::None: break;
    case Result::Won:
      ramvin.Visible = true;
      ramcomp.Visible = false;
      PRAMH.Caption = game_.state().vintiUmanoRam;
      break;
    case Result::Lost:
      PRAMC.Caption = game_.state().vintiCompRam;
      ramper.Visible = true;
      ramcomp.Visible = false;
      showComputersTris();
      break;
    case Result::Drawn:
      for (Button& button : ramCom) button.Picture = pictures::rampul1;
      rampar.Visible = true;
      break;
  }
  if (game_.goesOn()) Continuaramino.Visible = true;
}

/// Side by side, in the order in which the computer made them.
void Table::showComputersTris() {
  const Marking& marking = game_.state().marking;
  int left = 0;
  for (int tris = 0; tris < 3; ++tris) {
    for (int position = kComputerFirst; position <= kComputerLast; ++position) {
      if (marking.segnoRam[position] != Mark::Tris || marking.grupRam[position] != tris) continue;
      ramin[position].Visible = true;
      ramin[position].Left = left += 600;
    }
  }
  avvram.Visible = true;
}

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::ramino
