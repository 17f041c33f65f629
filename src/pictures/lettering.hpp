#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "toolkit/painter.hpp"
#include "toolkit/picture.hpp"

namespace tombolario::pictures {

/// The type of nearly all picture text, at that height of the capitals in pixels.
Font lettering(double capHeight);

/// Draws a line of text in the box, in smaller type where it would be wider than the box.
void fittedText(Painter& painter, const Rect& box, std::string_view text, const Font& font, Rgb ink,
                Align align = Align::Centre);

/// A ground of one colour with a line of text in its middle, its capitals of that height or, where it would
/// be wider than the room for it, smaller.
void plate(Painter& painter, Size size, double room, double capHeight, std::string_view text, Rgb ink,
           Rgb ground);

/// Of the words on the small buttons of ramino, and in the help that shows them.
inline constexpr int kSmallCapHeight = 8;

/// A text that a template can be made of.
template <std::size_t N>
struct FixedText {
  constexpr FixedText(const char (&literal)[N]) { std::copy_n(literal, N, text); }
  char text[N]{};
};

/// What the words of every flag begin with; its country follows.
inline constexpr std::string_view kFlagOf = "bandiera ";

/// A store of one plate; `kCapHeight` and `kRoom`, the width left for its text, are pixels.
template <FixedText kText, Size kSize, Rgb kInk, Rgb kGround, int kCapHeight = std::min(11, kSize.height - 5),
          int kRoom = kSize.width - 4>
constexpr PictureStore plateStore(std::string_view name) {
  return singlePicture<kSize>(
      name, [](int) { return std::string(kText.text); },
      [](Painter& painter, int) { plate(painter, kSize, kRoom, kCapHeight, kText.text, kInk, kGround); });
}

}  // namespace tombolario::pictures
