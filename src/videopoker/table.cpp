#include "videopoker/table.hpp"

#include "toolkit/cursors.hpp"
#include "toolkit/marks.hpp"
#include "videopoker/game.hpp"

namespace tombolario::videopoker {

namespace {

constexpr Colour kFirstGroup = 0x0000C0;
constexpr Colour kSecondGroup = 0x8080FF;

}  // namespace

Table::Table(Form& owner, Host& host) : form(owner), host_(host) {
  Command1.Enabled = false;
  Command3.Enabled = false;
  for (int i = 0; i < kHandSize; ++i) Command2[i].onClick = [this, i] { toggleMark(Frame1[i]); };
  Command1.onClick = [this] { Command1_Click(); };
  Command3.onClick = [this] { Command3_Click(); };
  Command4.onClick = [this] { Command4_Click(); };
  Command5.onClick = [this] { Command5_Click(); };
  Command7.onClick = [this] { Command7_Click(); };
  Command8.onClick = [this] { Command8_Click(); };
  Command9.onClick = [this] { Command9_Click(); };
}

/// Deals a hand. The deal that ends a run shows the summary, and its hand waits on the hidden table.
void Table::avvioVIDEO() {
  if (game_.avvioVIDEO(host_.uniform())) {
    showSummary();
    Command3.Enabled = false;
  }
  for (int i = 0; i < kHandSize; ++i) {
    Frame1[i].BackColor = kAtRest;
    Command2[i].Visible = true;
    giveCursor(pictures::Label13, {&Command2[i]});
  }
  for (int slot = 0; slot < kSlots; ++slot) Pict[slot].Picture = {pictures::Picture1, game_.card(slot)};
  Label2.Caption = game_.balance();
}

/// "NUOVA PARTITA".
void Table::Command8_Click() {
  openButtons();
  Command9.Enabled = true;
  Command3.Enabled = true;
  showTable();
  Command1.Enabled = false;
  hideRows();
  game_.begin();
  avvioVIDEO();
}

/// "CARICA PARTITA".
void Table::Command9_Click() {
  if (!game_.load(file().read()[1])) {
    Command9.Enabled = false;
    return;
  }
  openButtons();
  Label2.Caption = game_.balance();
  showTable();
  Command1.Enabled = false;
  Command3.Enabled = true;
  hideRows();
  avvioVIDEO();
}

/// "NUOVA MANO".
void Table::Command1_Click() {
  hideRows();
  Command1.Enabled = false;
  Command3.Enabled = true;
  avvioVIDEO();
}

/// "CAMBIA CARTE": the change, the recognition, the payment.
void Table::Command3_Click() {
  changeMarkedCards();
  const Scoring scoring = score(game_.hand());
  for (int i = 0; i < kHandSize; ++i) {
    Command2[i].Visible = false;
    Frame1[i].BackColor = kAtRest;
  }
  segn[scoring.row].Visible = true;
  showGroups(scoring);
  Command3.Enabled = false;
  Command1.Enabled = true;
  game_.pay(scoring.row);
  if (game_.spent()) endCredit();
}

void Table::changeMarkedCards() {
  const auto from = game_.change(marksOf<Marks>(Frame1));
  for (int i = 0; i < kHandSize; ++i) Pict[i].Picture = Pict[from[i]].Picture;
}

void Table::showGroups(const Scoring& scoring) {
  for (int i = 0; i < kHandSize; ++i) {
    switch (scoring.groups[i]) {
      case Group::None: break;
      case Group::First: Frame1[i].BackColor = kFirstGroup; break;
      case Group::Second: Frame1[i].BackColor = kSecondGroup; break;
    }
  }
}

/// Nothing is left: only a new or a loaded game goes on from here. The lit row stays on the hidden table.
void Table::endCredit() {
  Command3.Enabled = false;
  Command1.Enabled = false;
  refuseButtons();
  Label2.Caption = "0";
  showSummary();
}

/// "CONTINUA (-5)": the hand that waits on the table is played first.
void Table::Command4_Click() {
  if (game_.goOn()) {
    showTable();
    Command9.Enabled = true;
    Label2.Caption = game_.balance();
    Command7.Enabled = true;
    Command7.Picture = pictures::SALVPOK1;
  } else {
    refuseButtons();
  }
  Command3.Enabled = true;
}

/// "SALVA".
void Table::Command7_Click() {
  if (game_.worthSaving()) {
    file().write({static_cast<std::int16_t>(game_.balance())});
  } else {
    refuseButtons();
  }
}

/// "TERMINA": the game is abandoned, with no summary.
void Table::Command5_Click() {
  changeScreen(Frame3BIS, Frame3);
  Framecen.Visible = false;
  Command3.Enabled = false;
  hideRows();
}

void Table::showTable() {
  changeScreen(Frame3, Frame3BIS);
  Framecen.Visible = false;
}

void Table::showSummary() {
  Framecen.Visible = true;
  changeScreen(Frame3BIS, Frame3);
  Label6.Caption = game_.gain();
  Label5.Caption = game_.balance();
}

/// Both buttons of the summary as they are from the start of each game.
void Table::openButtons() {
  Command4.Enabled = true;
  Command4.Picture = pictures::CONTPOK1;
  Command7.Enabled = true;
  Command7.Picture = pictures::SALVPOK1;
}

/// Both buttons of the summary tell that the balance is too low.
void Table::refuseButtons() {
  Command4.Enabled = false;
  Command4.Picture = pictures::CONTPOK2;
  Command7.Enabled = false;
  Command7.Picture = pictures::SALVPOK2;
}

void Table::hideRows() {
  for (PictureBox& row : segn) row.Visible = false;
}

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::videopoker
