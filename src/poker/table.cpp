#include "poker/table.hpp"

#include "poker/game.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/marks.hpp"

namespace tombolario::poker {

namespace {

constexpr Colour kFirstGroup = kGreen;
constexpr Colour kSecondGroup = 0xC0FFC0;
constexpr Colour kTop = kYellow;
constexpr Colour kWonHand = kYellow;

}  // namespace

Table::Table(Form& owner, Host& host) : form(owner), host_(host) {
  for (int i = 0; i < kHandSize; ++i) Command22[i].onClick = [this, i] { toggleMark(Frame11[i]); };
  Command11.onClick = [this] { Command11_Click(); };
  Command15.onClick = [this] { Command15_Click(); };
  Command33.onClick = [this] { Command33_Click(); };
  Command44.onClick = [this] { Command44_Click(); };
  Command55.onClick = [this] { Command55_Click(); };
}

void Table::start() {
  Command11.Enabled = false;
  begin();
}

/// A match without a score.
void Table::begin() {
  game_.begin();
  hum1.Caption = game_.playerScore();
  comp1.Caption = game_.computerScore();
}

/// Deals: the player's cards are seen, the computer's lie face down.
void Table::avvioPOKER() {
  hum1.BackColor = kWhite;
  comp1.BackColor = kWhite;
  humres.Caption = " ";
  comres.Caption = " ";
  game_.avvioPOKER(host_.uniform());
  for (int slot = 0; slot < kSlots; ++slot) Pictt[slot].Picture = {pictures::Picture11, game_.card(slot)};
  for (int i = 0; i < kHandSize; ++i) {
    Command22[i].Visible = true;
    giveCursor(pictures::Label13, {&Command22[i]});
    Pictt[kComputerSlot + i].Picture = pictures::ufo;
  }
  for (Frame& frame : Frame11) frame.BackColor = kAtRest;
}

/// "GIOCO".
void Table::Command44_Click() {
  changeScreen(Frame2, Frame2BIS);
  Command55.Visible = true;
  result.Visible = false;
  Command33.Enabled = true;
  avvioPOKER();
}

/// "INIZIO": a new match, whatever the present one has come to.
void Table::Command15_Click() {
  begin();
  Command55.Visible = true;
  result.Visible = false;
  Command33.Enabled = true;
  avvioPOKER();
}

/// "NUOVA MANO".
void Table::Command11_Click() {
  Command11.Enabled = false;
  Command33.Enabled = true;
  avvioPOKER();
}

/// "EXIT": back to the options, the match forgotten.
void Table::Command55_Click() {
  Command11.Enabled = false;
  Command55.Visible = false;
  begin();
  changeScreen(Frame2BIS, Frame2);
  avvioPOKER();
}

/// "CAMBIA CARTE": both sides change, and the hand is won.
void Table::Command33_Click() {
  for (int slot = kComputerSlot; slot < kSlots; ++slot) {
    Pictt[slot].Picture = {pictures::Picture11, game_.card(slot)};
  }
  changePlayer();
  Command33.Enabled = false;
  Command11.Enabled = true;
  changeComputer();
  award();
  endMatch();
}

void Table::changePlayer() {
  const auto from = game_.changePlayer(marksOf<Marks>(Frame11));
  for (int i = 0; i < kHandSize; ++i) {
    Pictt[i].Picture = Pictt[from[i]].Picture;
    Command22[i].Visible = false;
    Frame11[i].BackColor = kAtRest;
  }
  humres.Caption = game_.player().text();
  showRoles(0, 0, game_.player());
}

void Table::changeComputer() {
  const auto changed = game_.changeComputer();
  if (changed) Pictt[kComputerSlot + *changed].Picture = Pictt[kNextCardSlot].Picture;
  showRoles(kHandSize, kComputerSlot, game_.computer());
  comres.Caption = game_.computer().text();
}

/// Colours the frames of the cards that make the class of a hand.
void Table::showRoles(int firstFrame, int firstSlot, const Classification& found) {
  for (int i = 0; i < kHandSize; ++i) {
    Frame& frame = Frame11[firstFrame + i];
    switch (found.roleOf(game_.card(firstSlot + i))) {
      case Role::None: break;
      case Role::FirstGroup: frame.BackColor = kFirstGroup; break;
      case Role::SecondGroup: frame.BackColor = kSecondGroup; break;
      case Role::Top: frame.BackColor = kTop; break;
    }
  }
}

/// The score of the side that wins the hand grows and is lit until the next deal.
void Table::award() {
  switch (game_.award(level(), counting())) {
    case Side::Nobody: break;
    case Side::Player:
      hum1.BackColor = kWonHand;
      hum1.Caption = game_.playerScore();
      break;
    case Side::Computer:
      comp1.BackColor = kWonHand;
      comp1.Caption = game_.computerScore();
      break;
  }
}

/// A match that is over goes on by a new one alone.
void Table::endMatch() {
  const Side side = game_.matchWinner(counting());
  if (side == Side::Nobody) return;
  result.Caption = side == Side::Player ? "HAI VINTO" : "HAI PERSO";
  result.Visible = true;
  Command11.Enabled = false;
  Command33.Enabled = false;
}

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::poker
