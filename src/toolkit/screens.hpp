#pragma once

#include "toolkit/controls.hpp"

namespace tombolario {

/// The place of nearly every full-size screen; it reaches a little over the edge of the window.
inline constexpr Box kFullSize{0, 0, 12015, 8655};

inline constexpr Font kTitleFont{.face = Face::Heavy, .points = 12};
inline constexpr Font kButtonFont{.points = 9.75, .bold = true};

/// The strip across the top of a screen that names the game.
inline constexpr Box kTitleBar{0, 0, 12120, 375};

/// The look of heavy text on a strip of colour: a title, a score.
constexpr Look stripLook(Colour fore, Colour back, Align align = Align::Centre) {
  return {.back = back, .fore = fore, .font = kTitleFont, .align = align};
}

/// The look of a button with a caption, or with a picture in its place.
constexpr Look buttonLook(Colour back) { return {.back = back, .font = kButtonFont}; }
constexpr Look buttonLook(Colour back, PictureId picture) { return {.back = back, .picture = picture}; }

/// The look of a group of options with its title, and of an option in it.
constexpr Look groupLook() { return {.font = kButtonFont, .border = Border::Etched}; }
constexpr Look optionLook() { return {.font = {.points = 9.75}}; }

/// The look of a card.
constexpr Look cardLook(bool visible, Colour back = kBlack) {
  return {.back = back, .border = Border::Single, .visible = visible};
}

/// The look of a screen, which is out of sight at the start, and what it is called where it is not seen.
constexpr Look screenLook(Colour back, const char* about) {
  return {.back = back, .visible = false, .about = about};
}

/// Shows one full-size screen in the place of another.
inline void changeScreen(Control& from, Control& to) {
  to.Visible = true;
  from.Visible = false;
}

}  // namespace tombolario
