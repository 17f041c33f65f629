#pragma once

#include <cstdint>

namespace tombolario {

/// A screen colour, 0xRRGGBB.
using Rgb = std::uint32_t;

inline constexpr Rgb kBlack = 0x000000;
inline constexpr Rgb kWhite = 0xFFFFFF;
inline constexpr Rgb kRed = 0xFF0000;
inline constexpr Rgb kGreen = 0x00FF00;
inline constexpr Rgb kBlue = 0x0000FF;
inline constexpr Rgb kYellow = 0xFFFF00;
inline constexpr Rgb kCyan = 0x00FFFF;

/// The colours that belong to the system and are known by their role alone.
enum class SystemColour : std::uint8_t { Light3d, ButtonShadow, ButtonFace, ToolTip, Window, ActiveBorder };

/// The value of a system colour in the classic palette.
constexpr Rgb classicPalette(SystemColour role) {
  switch (role) {
    case SystemColour::Light3d: return 0xDFDFDF;
    case SystemColour::ButtonShadow: return 0x808080;
    case SystemColour::ButtonFace: return 0xC0C0C0;
    case SystemColour::ToolTip: return 0xFFFFE1;
    case SystemColour::Window: return 0xFFFFFF;
    case SystemColour::ActiveBorder: return 0xC0C0C0;
  }
  return kBlack;
}

/// The colour of a control: a screen colour or a system colour. It remembers which of the two it was
/// given: a system white is not a plain white.
class Colour {
 public:
  constexpr Colour(Rgb rgb) : value_(rgb & 0xFFFFFF) {}
  constexpr Colour(SystemColour role) : value_(static_cast<std::uint32_t>(role)), isSystem_(true) {}

  constexpr bool isSystem() const { return isSystem_; }
  /// The role of a system colour; meaningless for any other.
  constexpr SystemColour role() const { return static_cast<SystemColour>(value_); }
  /// What is seen on the screen.
  constexpr Rgb rgb() const { return isSystem_ ? classicPalette(role()) : value_; }

  constexpr bool operator==(const Colour&) const = default;

 private:
  std::uint32_t value_;
  bool isSystem_ = false;
};

}  // namespace tombolario
