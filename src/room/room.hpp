#pragma once

#include <memory>
#include <vector>

#include "host/host.hpp"
#include "room/main_menu.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"

namespace tombolario {

/// The room: its window with the main menu and the games. A host makes one, runs the start-up once, and feeds
/// it mouse events through the form.
class Room {
 public:
  explicit Room(Host& host);

  /// The start-up. Runs once, before the first event.
  void Form_Load();
  Form& form() { return form_; }
  /// The one screen in sight.
  const Control& screen() const { return form_.inSight(); }

 private:
  void giveCursors();

  Form form_;
  std::vector<std::unique_ptr<Game>> games_;  // in the order of the menu
  MainMenu menu_;
};

}  // namespace tombolario
