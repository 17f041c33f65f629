#include "driver/properties.hpp"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tombolario {

namespace {

std::string text(bool flag) { return flag ? "1" : "0"; }

std::string text(int number) { return std::to_string(number); }

std::string text(const PictureId& picture) { return picture.name(); }

std::string text(const std::string& caption) {
  std::string line;
  for (const char c : caption) {
    if (c == '\n') {
      line += "\\n";
    } else {
      line += c;
    }
  }
  return line;
}

std::string text(const Colour& colour) {
  if (!colour.isSystem()) {
    std::array<char, 9> hex{};
    std::snprintf(hex.data(), hex.size(), "0x%06X", static_cast<unsigned>(colour.rgb()));
    return hex.data();
  }
  switch (colour.role()) {
    case SystemColour::Light3d: return "3d-light";
    case SystemColour::ButtonShadow: return "button-shadow";
    case SystemColour::ButtonFace: return "button-face";
    case SystemColour::ToolTip: return "tooltip";
    case SystemColour::Window: return "window";
    case SystemColour::ActiveBorder: return "active-border";
  }
  return "";
}

template <auto property>
std::string read(const Control& control) {
  return text((control.*property).get());
}

constexpr auto kProperties = std::to_array<PropertyReader>({{"Visible", read<&Control::Visible>},
                                                            {"Enabled", read<&Control::Enabled>},
                                                            {"BackColor", read<&Control::BackColor>},
                                                            {"ForeColor", read<&Control::ForeColor>},
                                                            {"BorderColor", read<&Control::BorderColor>},
                                                            {"FillColor", read<&Control::FillColor>},
                                                            {"Picture", read<&Control::Picture>},
                                                            {"Left", read<&Control::Left>},
                                                            {"Top", read<&Control::Top>},
                                                            {"Width", read<&Control::Width>},
                                                            {"Height", read<&Control::Height>},
                                                            {"Value", read<&Control::Value>},
                                                            {"Min", read<&Control::Min>},
                                                            {"Max", read<&Control::Max>},
                                                            {"MousePointer", read<&Control::MousePointer>},
                                                            {"MouseIcon", read<&Control::MouseIcon>},
                                                            {"Caption", read<&Control::Caption>}});

}  // namespace

std::span<const PropertyReader> properties() { return kProperties; }

const PropertyReader* findProperty(std::string_view name) {
  const auto* found = std::find_if(kProperties.begin(), kProperties.end(),
                                   [&](const PropertyReader& known) { return known.name == name; });
  return found != kProperties.end() ? found : nullptr;
}

}  // namespace tombolario
