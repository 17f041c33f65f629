#include "room/room.hpp"

#include <stdexcept>
#include <string>

#include "chain/game.hpp"
#include "domino/game.hpp"
#include "mahjongg/game.hpp"
#include "pictures/catalogue.hpp"
#include "poker/game.hpp"
#include "ramino/game.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/screens.hpp"
#include "toolkit/scroll_bar.hpp"
#include "videopoker/game.hpp"

namespace tombolario {

namespace {

constexpr Box kClientArea{0, 0, 11880, 8595};

/// The games, in the order of the menu, which is also that of the start-up.
std::vector<std::unique_ptr<Game>> makeGames(Form& form, Host& host) {
  std::vector<std::unique_ptr<Game>> games;
  for (const auto make : {poker::makeGame, videopoker::makeGame, domino::makeGame, chain::makeGame,
                          ramino::makeGame, mahjongg::makeGame}) {
    games.push_back(make(form, host));
  }
  return games;
}

/// A game whose ways would lead nowhere stops the start.
void checkWays(Game& game, const Form& form) {
  const std::string entrance = game.entrance().name().text();
  if (game.entrance().parent() != &form) throw std::logic_error(entrance + " is an entrance and no screen");
  const Control* screen = &game.wayBack();
  while (screen->parent() != &form) screen = screen->parent();
  if (screen != &game.entrance())
    throw std::logic_error(game.wayBack().name().text() + " leads back, and does not lie on " + entrance);
}

}  // namespace

Room::Room(Host& host)
    : form_("Form1", kClientArea, kBlue, "Tombolario"),
      games_(makeGames(form_, host)),
      menu_(form_, host, static_cast<int>(games_.size())) {
  auto entry = menu_.commpr.begin();
  for (const auto& game : games_) {
    checkWays(*game, form_);
    // A press of any mouse button opens the game.
    (entry++)->onMouseDown = [this, &game](MouseButton) {
      game->enter();
      changeScreen(menu_, game->entrance());
      menu_.restGames();
    };
    game->wayBack().onClick = [this, &game] {
      game->leave();
      changeScreen(game->entrance(), menu_);
    };
  }
}

void Room::Form_Load() {
  for (const auto& game : games_) game->start();
  giveCursors();
}

/// The menu's labels keep the cursors of the room. What stands alone takes its own here; what is one of a row
/// takes it at each deal, but for the rows of the menu.
void Room::giveCursors() {
  for (Control* control : form_.controls()) {
    if (dynamic_cast<Button*>(control) != nullptr &&
        (!control->name().inArray || control->parent() == &menu_)) {
      giveCursor(menu_.Label13.MouseIcon, {control});
    } else if (dynamic_cast<ScrollBar*>(control) != nullptr) {
      giveCursor(menu_.Label4.MouseIcon, {control});
    } else if (dynamic_cast<OptionButton*>(control) != nullptr) {
      giveCursor(menu_.Label9.MouseIcon, {control});
    }
  }
}

}  // namespace tombolario
