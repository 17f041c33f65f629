#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/form.hpp"

namespace tombolario {

using Row = std::vector<const Control*>;

/// The controls of an array, from one index to another.
Row row(Form& form, const std::string& name, int first, int last);

/// Of the board of mahjongg, cell by cell, the tiles of a kind that are free, where there are two or more.
std::vector<Row> freeAlike(const Row& cells);

/// A player with some sense: it keeps what belongs together, and carries a game on.
class Player {
 public:
  explicit Player(Form& room);
  /// What may well be pressed next; nothing on a screen where any button is as good as another.
  Row moves() const;

 private:
  std::vector<std::function<Row()>> games_;
};

}  // namespace tombolario
