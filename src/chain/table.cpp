#include "chain/table.hpp"

namespace tombolario::chain {

Table::Table(Form& owner) : form(owner) {
  CoNTCAT.Enabled = false;
  INICAT.onClick = [this] { changeScreen(Frame4, Frame4BIS); };
  CoNTCAT.onClick = [this] { changeScreen(Frame4, Frame4BIS); };
  FINECA.onClick = [this] { changeScreen(Frame4BIS, Frame4); };
}

}  // namespace tombolario::chain
