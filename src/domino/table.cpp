#include "domino/table.hpp"

namespace tombolario::domino {

Table::Table(Form& owner) : form(owner) {
  giocodom.onClick = [this] { changeScreen(FRAME5, Frame5BIS); };
  FINEDOM.onClick = [this] { changeScreen(Frame5BIS, FRAME5); };
}

}  // namespace tombolario::domino
