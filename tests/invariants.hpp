#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "player.hpp"
#include "toolkit/form.hpp"

namespace tombolario {

/// What never holds in the room has come to hold.
struct Violation : std::logic_error {
  using std::logic_error::logic_error;
};

inline void require(bool holds, const char* otherwise) {
  if (!holds) throw Violation(otherwise);
}

/// What a walk has come to, and how often.
using Reached = std::map<std::string, long>;

/// All that can be seen to hold after every event, however the player got there.
class Invariants {
 public:
  explicit Invariants(Form& room);

  /// Throws a Violation.
  void check();
  /// How often each game came to each of its ends, as `domino match won`.
  const Reached& reached() const { return reached_; }

 private:
  struct Game {
    std::string name;
    std::function<std::string()> check;  // throws, or tells the end that the game has come to
    std::string end = {};
  };

  Form& room_;
  long checks_ = 0;
  std::vector<const Control*> screens_;
  std::vector<const Control*> counts_;
  std::vector<Game> games_;
  Reached reached_;
};

}  // namespace tombolario
