#pragma once

#include <string>

#include "shell/data_files.hpp"

namespace tombolario {

/// The only chance in the room: uniform random numbers.
class UniformSource {
 public:
  virtual ~UniformSource() = default;
  /// Starts a new sequence from the system clock; two calls never start the same one.
  virtual void seedFromClock() = 0;
  /// The next number, in [0,1).
  virtual double next() = 0;
};

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
