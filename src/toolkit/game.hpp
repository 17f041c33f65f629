#pragma once

#include "toolkit/controls.hpp"

namespace tombolario {

/// A game, as the room knows it. It makes its screens in the window and keeps to itself what happens on them.
class Game {
 public:
  Game() = default;
  Game(const Game&) = delete;
  Game& operator=(const Game&) = delete;
  virtual ~Game() = default;

  /// The screen that the main menu opens.
  virtual Frame& entrance() = 0;
  /// The button there that leads back to the menu.
  virtual Button& wayBack() = 0;

  /// Runs once, before the first event.
  virtual void start() {}
  /// The player comes from the menu; the entrance is not in sight yet.
  virtual void enter() {}
  /// The player goes back to the menu; the entrance is still in sight.
  virtual void leave() {}
};

}  // namespace tombolario
