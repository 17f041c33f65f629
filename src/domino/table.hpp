#pragma once

#include "shell/form.hpp"
#include "shell/screens.hpp"

namespace tombolario::domino {

/// The screens of domino: `FRAME5`, its options, and `Frame5BIS`, the table.
class Table {
 public:
  explicit Table(Form& owner);

  Form& form;
  // clang-format off
  Frame FRAME5{form, "FRAME5", kFullSize, screenLook(kGreen)};
  Label DOMETIC{FRAME5, "DOMETIC", kTitleBar, "DOMINO", stripLook(kYellow, kBlue)};
  Label domgi{FRAME5, "domgi", {0, 375, 12120, 375}, "OPZIONI DI GIOCO", stripLook(kWhite, kRed)};
  Button giocodom{FRAME5, "giocodom", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};
  Button MENUDOM{FRAME5, "MENUDOM", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};

  Frame Frame5BIS{form, "Frame5BIS", kFullSize, screenLook(0x00C0C0)};
  Button FINEDOM{Frame5BIS, "FINEDOM", {9480, 3120, 2295, 495}, "FINE", buttonLook(0xFFFF80)};
  // clang-format on
};

}  // namespace tombolario::domino
