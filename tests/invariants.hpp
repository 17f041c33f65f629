#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "toolkit/form.hpp"

namespace tombolario {

/// What never holds in the room has come to hold.
struct Violation : std::logic_error {
  using std::logic_error::logic_error;
};

inline void require(bool holds, const char* otherwise) {
  if (!holds) throw Violation(otherwise);
}

/// All that can be seen to hold after every event, however the player got there.
class Invariants {
 public:
  explicit Invariants(Form& room);

  /// Throws a Violation.
  void check();
  /// How often a game, counted from 1 as on the main menu, came to an end.
  long ends(int game) const {
    require(game <= static_cast<int>(games_.size()), "tests/invariants.cpp does not know the last game");
    return games_[static_cast<std::size_t>(game - 1)].ends;
  }

 private:
  struct Game {
    std::function<bool()> check;  // throws, or tells whether the game is at an end
    bool ended = false;
    long ends = 0;
  };

  Form& room_;
  long checks_ = 0;
  std::vector<const Control*> screens_;
  std::vector<const Control*> counts_;
  std::vector<Game> games_;
};

}  // namespace tombolario
