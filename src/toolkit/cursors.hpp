#pragma once

#include <initializer_list>

#include "toolkit/control.hpp"

namespace tombolario {

/// Gives each of the controls a cursor of its own.
inline void giveCursor(const PictureId& cursor, std::initializer_list<Control*> controls) {
  for (Control* control : controls) {
    control->MousePointer = kCustomPointer;
    control->MouseIcon = cursor;
  }
}

}  // namespace tombolario
