#pragma once

#include <string>

#include "host/data_files.hpp"
#include "pieces/chance.hpp"

namespace tombolario {

/// What the room asks of its surroundings: the window, the page and the driver each give their own.
class Host {
 public:
  virtual ~Host() = default;
  virtual UniformSource& uniform() = 0;
  /// Hands a web address or a "mailto:" address to the desktop; whether it could open it does not matter.
  virtual void openAddress(const std::string& address) = 0;
  virtual DataFiles& dataFiles() = 0;
};

}  // namespace tombolario
