#pragma once

#include <memory>

#include "host/host.hpp"
#include "toolkit/form.hpp"

namespace tombolario {

/// The room: its window with the twelve screens and the six games. A host makes one, runs the start-up
/// once, and feeds it mouse events through the form.
class Room {
 public:
  explicit Room(Host& host);
  ~Room();

  /// The start-up. Runs once, before the first event.
  void Form_Load();
  Form& form();
  /// The one screen in sight.
  const Control& screen() const;

 private:
  struct Screens;
  std::unique_ptr<Screens> screens_;
};

}  // namespace tombolario
