#pragma once

#include "pictures/catalogue.hpp"
#include "shell/form.hpp"
#include "shell/screens.hpp"

namespace tombolario::chain {

/// The screens of the chain game: `Frame4`, its menu, and `Frame4BIS`, the table.
class Table {
 public:
  explicit Table(Form& owner);

  Form& form;
  // clang-format off
  Frame Frame4{form, "Frame4", kFullSize, screenLook(0xFFFF80)};
  Label LCATENA{Frame4, "LCATENA", kTitleBar, "MISTO DOMINO/POKER", stripLook(kYellow, kBlue)};
  Button INICAT{Frame4, "INICAT", {6600, 1560, 3975, 855}, "", buttonLook(kRed, pictures::INICAT)};
  Button CoNTCAT{Frame4, "CoNTCAT", {6600, 2400, 3975, 855}, "", buttonLook(kRed, pictures::CoNTCAT)};
  Button menucat{Frame4, "menucat", {6600, 4920, 3975, 495}, "MENU'", buttonLook(0xFF8080)};

  Frame Frame4BIS{form, "Frame4BIS", kFullSize, screenLook(0xE0E0E0)};
  Button FINECA{Frame4BIS, "FINECA", {480, 7080, 2295, 495}, "", buttonLook(kRed, pictures::FINECA)};
  // clang-format on
};

}  // namespace tombolario::chain
