#pragma once

#include "shell/form.hpp"
#include "shell/screens.hpp"

namespace tombolario::poker {

/// The screens of poker against the computer: `Frame2`, its options, and `Frame2BIS`, the table.
class Table {
 public:
  explicit Table(Form& owner);

  Form& form;
  // clang-format off
  Frame Frame2{form, "Frame2", kFullSize, screenLook(kCyan)};
  Label LPOKER{Frame2, "LPOKER", kTitleBar, "POKER", stripLook(kYellow, kBlue)};
  Button menupok{Frame2, "menupok", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button Command44{Frame2, "Command44", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};

  Frame Frame2BIS{form, "Frame2BIS", kFullSize, screenLook(kWhite)};
  Button Command55{Frame2BIS, "Command55", {10800, 5880, 975, 495}, "EXIT", buttonLook(0xFFC0C0)};
  // clang-format on
};

}  // namespace tombolario::poker
