#include "poker/table.hpp"

namespace tombolario::poker {

Table::Table(Form& owner) : form(owner) {
  Command44.onClick = [this] { changeScreen(Frame2, Frame2BIS); };
  Command55.onClick = [this] { changeScreen(Frame2BIS, Frame2); };
}

}  // namespace tombolario::poker
