#pragma once

#include "shell/form.hpp"
#include "shell/screens.hpp"

namespace tombolario::mahjongg {

/// The screen of mahjongg, `Frame7`: board and bench.
class Table {
 public:
  explicit Table(Form& owner) : form(owner) {}

  Form& form;
  // clang-format off
  Frame Frame7{form, "Frame7", kFullSize, screenLook(0xFFE0C0)};
  Label Label10{Frame7, "Label10", kTitleBar, "MAHJONGG", stripLook(0xFFFF80, 0xC04000)};
  Button Command17{Frame7, "Command17", {8880, 7440, 1815, 495}, "EXIT", buttonLook(kGreen)};
  // clang-format on
};

}  // namespace tombolario::mahjongg
