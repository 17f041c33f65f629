#pragma once

#include "host/host.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/screens.hpp"

namespace tombolario {

/// Whom the room thanks and where its letters go.
inline constexpr const char* kMailAddress = "info@tombolario.example";
inline constexpr const char* kWebAddress = "https://www.tombolario.example/";
inline constexpr const char* kThanks = "GRAZIE A WWW.TOMBOLARIO.EXAMPLE";
inline constexpr const char* kCredit = "TOMBOLARIO - SEI GIOCHI IN UNA STANZA - 22 NOVEMBRE 2026";

/// `Frameprincipale`, the screen that opens each game, with the two links. Three of its labels also keep
/// the cursors of the room.
class MainMenu {
 public:
  MainMenu(Form& owner, Host& host);

  Form& form;
  // clang-format off
  Frame Frameprincipale{form, "Frameprincipale", kFullSize, {.back = 0xFFC0C0}};
  Label Label4{Frameprincipale, "Label4", {0, 0, 12015, 615}, "TOMBOLARIO ",
               {.back = 0xFF8000, .fore = kWhite, .font = {.face = Face::Heavy, .points = 20.25}}};
  Label Label13{Frameprincipale, "Label13", {0, 600, 12015, 255}, "Risoluzione consigliata: 800*600",
                {.back = 0x0000C0, .fore = kWhite}};
  ControlArray<Button, 1, 6> commpr{[this](int n) {
    return Button{Frameprincipale, {"commpr", n}, {4080, 1440 + 600 * (n - 1), 3735, 615}, "",
                  buttonLook(kGameAtRest, {pictures::commpr, n})}; }};
  PictureBox Picture3{Frameprincipale, "Picture3", {9240, 2160, 1530, 1530},
                      {.back = kWhite, .border = Border::Sunken, .picture = pictures::Picture3}};
  PictureBox Picture4{Frameprincipale, "Picture4", {1080, 2160, 1530, 1530},
                      {.back = kWhite, .border = Border::Sunken, .picture = pictures::Picture4}};
  Label Label9{Frameprincipale, "Label9", {0, 5880, 12015, 375}, kCredit, stripLook(kWhite, kRed)};
  ControlArray<Button, 1, 2> CLINK{[this](int n) {
    return Button{Frameprincipale, {"CLINK", n}, {4080, 6600 + 480 * (n - 1), 3735, 495},
                  n == 1 ? "EMAIL" : kThanks, {.back = kLinkAtRest, .font = {.points = 9.75}}}; }};
  // clang-format on

  /// All six game buttons to their colour at rest.
  void restGames();

 private:
  static constexpr Colour kGameAtRest = 0x00FFFF;
  static constexpr Colour kGameUnderMouse = 0x0000FF;
  static constexpr Colour kLinkAtRest = 0xFFFF00;
  static constexpr Colour kLinkUnderMouse = 0xFF8000;

  void restLinks();
  void GoURL(const std::string& DestUrl);
  void apriMail(const std::string& address);

  Host& host_;
};

}  // namespace tombolario
