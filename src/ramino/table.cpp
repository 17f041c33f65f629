#include "ramino/table.hpp"

namespace tombolario::ramino {

Table::Table(Form& owner) : form(owner) {
  GIOCORAM.onClick = [this] { changeScreen(frame6, Frame6bis); };
  ramesc.onClick = [this] { changeScreen(Frame6bis, frame6); };
}

}  // namespace tombolario::ramino
