#pragma once

#include <span>
#include <string>
#include <string_view>

#include "toolkit/control.hpp"

namespace tombolario {

/// A property of a control as text: a number in plain decimal, a flag as 1 or 0, a colour as 0xRRGGBB or
/// as the role of a system colour, a picture by its name, a caption with "\n" for each line break.
struct PropertyReader {
  std::string_view name;
  std::string (*read)(const Control& control);
};

/// The caption comes last, since it may hold blanks.
std::span<const PropertyReader> properties();

/// Null for an unknown name.
const PropertyReader* findProperty(std::string_view name);

}  // namespace tombolario
