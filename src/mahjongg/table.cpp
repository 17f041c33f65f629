#include "mahjongg/table.hpp"

#include <string>

#include "mahjongg/game.hpp"
#include "toolkit/cursors.hpp"

namespace tombolario::mahjongg {

namespace {

constexpr Colour kSelected = kRed;
constexpr Colour kFound = kYellow;

}  // namespace

Table::Table(Form& owner, Host& host) : form(owner), host_(host) {
  for (int cell = 1; cell <= kCells; ++cell) Commah[cell].onClick = [this, cell] { Commah_Click(cell); };
  ELPEDMAH.onClick = [this] { ELPEDMAH_Click(); };
  CERPEDMAH.onMouseDown = [this](MouseButton) { CERPEDMAH_MouseDown(); };
  CERPEDMAH.onMouseUp = [this](MouseButton) { show(); };
  ALTRAPARTITAMAH.onClick = [this] { avvioMAH(); };
}

void Table::avvioMAH() {
  game_.avvioMAH(host_.uniform());
  for (int cell = 1; cell <= kCells; ++cell) {
    giveCursor(pictures::Label13, {&Commah[cell]});
    Commah[cell].Picture = {pictures::PICMAH, game_.piece(cell)};
  }
  show();
}

/// A tile: selects or releases it.
void Table::Commah_Click(int cell) {
  game_.press(cell);
  show();
}

/// "ELIMINA PEDINE".
void Table::ELPEDMAH_Click() {
  game_.removePair();
  show();
}

/// "CERCA PEDINE": as long as it is held, all tiles like the selected one are lit.
void Table::CERPEDMAH_MouseDown() {
  if (game_.selected() != 1) return;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (game_.kind(cell) == game_.selectedKind() && !game_.isSelected(cell)) Commah[cell].BackColor = kFound;
  }
}

/// The board, the bench, and what can be done with the selection. The bench lights the kind of the first
/// selected tile.
void Table::show() {
  for (int cell = 1; cell <= kCells; ++cell) {
    Commah[cell].Visible = game_.stands(cell);
    Commah[cell].BackColor = game_.isSelected(cell) ? kSelected : atRest(cell);
  }
  for (int kind = 0; kind < kKinds; ++kind) {
    const bool lit = kind == game_.selectedKind();
    labmah[kind].Visible = game_.left(kind) > 0;
    labmah[kind].Caption = std::to_string(game_.left(kind));
    labmah[kind].BackColor = lit ? kRed : kWhite;
    labmah[kind].ForeColor = lit ? kYellow : kBlack;
  }
  CERPEDMAH.Enabled = game_.selected() == 1;
  ELPEDMAH.Enabled = game_.selected() == 2;
}

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::mahjongg
