#pragma once

#include <memory>

#include "host/host.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"

namespace tombolario::poker {

/// Poker against the computer. The window and the host must outlive it.
std::unique_ptr<Game> makeGame(Form& form, Host& host);

}  // namespace tombolario::poker
