#pragma once

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "shell/form.hpp"

namespace tombolario {

/// What never holds in the room has come to hold.
struct Violation : std::logic_error {
  using std::logic_error::logic_error;
};

inline void require(bool holds, const char* otherwise) {
  if (!holds) throw Violation(otherwise);
}

/// What can be seen to hold on one screen after every event, however the player got there.
class Invariant {
 public:
  virtual ~Invariant() = default;
  /// Throws a Violation.
  virtual void check() = 0;
  /// How often the game came to an end.
  long ends() const { return ends_; }

 protected:
  void count(bool end) { ends_ += !std::exchange(ended_, end) && end; }

 private:
  long ends_ = 0;
  bool ended_ = false;
};

/// All that must hold after every event, in the whole room.
class Invariants {
 public:
  explicit Invariants(Form& room);

  void check();
  /// How often a game, 1 to 6 as on the main menu, came to an end.
  long ends(int game) const { return games_.at(static_cast<std::size_t>(game - 1))->ends(); }

 private:
  std::vector<const Control*> screens_;
  std::vector<const Control*> counts_;
  std::array<std::unique_ptr<Invariant>, 6> games_;
};

}  // namespace tombolario
