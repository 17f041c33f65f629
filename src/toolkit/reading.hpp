#pragma once

#include <string>
#include <vector>

#include "toolkit/form.hpp"

namespace tombolario {

/// A control in sight that says or does something, as a player hears it.
struct Reading {
  const Control* control;
  Role role;
  Box box;           ///< what is seen of it, in twips of the window
  std::string name;  ///< its caption or its picture in words, what it is about, how it is marked
  std::string news;  ///< what to tell when it has become another; nothing where the name says it
  const Control* group = nullptr;  ///< of an option: what its fellows lie in
};

/// All that is to be heard of the screen in sight, in the order of reading: row by row from the top, each
/// from the left, the options of a group right behind it. Ornaments say nothing, and what is covered is not
/// in sight.
std::vector<Reading> readingOf(const Form& form);

}  // namespace tombolario
