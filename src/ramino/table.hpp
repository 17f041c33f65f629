#pragma once

#include "shell/form.hpp"
#include "shell/screens.hpp"

namespace tombolario::ramino {

/// The screens of ramino: `frame6`, its options, and `Frame6bis`, the table.
class Table {
 public:
  explicit Table(Form& owner);

  Form& form;
  // clang-format off
  Frame frame6{form, "frame6", kFullSize, screenLook(kRed)};
  Label ramETIC{frame6, "ramETIC", kTitleBar, "RAMINO", stripLook(kYellow, kBlue)};
  Button GIOCORAM{frame6, "GIOCORAM", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};
  Button MENURAM{frame6, "MENURAM", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};

  Frame Frame6bis{form, "Frame6bis", kFullSize, screenLook(SystemColour::Window)};
  Button ramesc{Frame6bis, "ramesc", {8400, 2280, 2475, 495}, "ESCI", buttonLook(0xFFC0C0)};
  // clang-format on
};

}  // namespace tombolario::ramino
