#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "toolkit/control.hpp"

namespace tombolario {

/// A row of controls of one kind that share a name, numbered First to Last. A number outside is a fault, and
/// throws std::out_of_range.
template <class Kind, int First, int Last>
class ControlArray {
 public:
  /// Makes each control in place by `make(index)`, which returns it by value.
  template <class Make>
  explicit ControlArray(Make make) : ControlArray(make, std::make_index_sequence<Last - First + 1>()) {}

  Kind& operator[](int index) {
    if (index < First || index > Last) {
      Name wanted = controls_.front().name();
      wanted.index = index;
      throw std::out_of_range("there is no " + wanted.text());
    }
    return controls_[static_cast<std::size_t>(index - First)];
  }

  auto begin() { return controls_.begin(); }
  auto end() { return controls_.end(); }

 private:
  template <class Make, std::size_t... I>
  ControlArray(Make& make, std::index_sequence<I...>) : controls_{{make(First + static_cast<int>(I))...}} {}

  std::array<Kind, Last - First + 1> controls_;
};

}  // namespace tombolario
