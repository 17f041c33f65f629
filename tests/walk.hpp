#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "driver/driver.hpp"
#include "invariants.hpp"
#include "player.hpp"
#include "toolkit/view.hpp"
#include "watched_files.hpp"

namespace tombolario {

/// A player of changing sense, whose every choice is read from bytes: it presses anything with any button,
/// drags off it, resizes the window, finds the data files harmed, and for a while plays well. It seldom
/// presses what leaves a game or drops a match, so that games come to their end. The same bytes play the same
/// room.
class Walk {
 public:
  Walk(std::span<const std::uint8_t> choices, const std::filesystem::path& directory);

  /// Leaves the main menu for a game, counted from 1, and goes back to it from there.
  void enter(int game);
  /// Plays until no byte is left. Throws a Violation after the first event that leaves the rules.
  void play();

  /// How many moves, presses and releases of the mouse there have been.
  long events() const { return events_; }
  /// What it has come to, and how often.
  Reached reached() const;

 private:
  /// A number of 0 to n - 1.
  int pick(int n);
  /// The left one more often than the other four.
  MouseButton anyButton() { return static_cast<MouseButton>(std::max(0, pick(8) - 3)); }
  Point anyPlace() { return {pick(12400) - 250, pick(9000) - 200}; }
  Point middleOfSomething();
  Point middleOfOne(const Row& controls);
  Point placeIn(const Control& control);
  void move(Point point);
  void press(MouseButton button);
  void release(MouseButton button);
  void click(Point point);
  void step();
  void playOn();
  void useScrollBar();
  void resize();
  void done();

  std::span<const std::uint8_t> choices_;
  WatchedFiles files_;
  ScriptedHost host_{files_};
  Room room_{host_};
  Form& form_ = room_.form();
  Invariants invariants_{form_};
  View view_{form_};
  std::array<const Control*, 2> bars_{form_.find("HScrolldom"), form_.find("VScrollram1")};
  Player player_{form_};
  const Control* entry_ = nullptr;
  Row leaves_;
  Row buttons_;    // all others
  int sense_ = 8;  // of 16 steps so many are of use
  long events_ = 0;
};

}  // namespace tombolario
