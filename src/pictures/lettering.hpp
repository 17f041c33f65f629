#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "toolkit/painter.hpp"
#include "toolkit/picture.hpp"

namespace tombolario::pictures {

/// The type of nearly all picture text, at that height of the capitals in pixels.
Font lettering(double capHeight);

/// Draws a line of text in the box, in smaller type where it would be wider than the box.
void fittedText(Painter& painter, const Rect& box, std::string_view text, const Font& font, Rgb ink,
                Align align = Align::Centre);

/// A ground of one colour with a line of text in its middle, no wider than the room for it.
void plate(Painter& painter, Size size, double room, std::string_view text, Rgb ink, Rgb ground);

/// A text that a template can be made of.
template <std::size_t N>
struct FixedText {
  constexpr FixedText(const char (&literal)[N]) { std::copy_n(literal, N, text); }
  char text[N]{};
};

/// A store of one plate; `kRoom` is the width left for its text, in pixels.
template <FixedText kText, Size kSize, Rgb kInk, Rgb kGround, int kRoom = kSize.width - 6>
constexpr PictureStore plateStore(std::string_view name) {
  return singlePicture<kSize>(
      name, [](Painter& painter, int) { plate(painter, kSize, kRoom, kText.text, kInk, kGround); });
}

}  // namespace tombolario::pictures
