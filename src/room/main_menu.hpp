#pragma once

#include <deque>
#include <string>

#include "host/host.hpp"
#include "pictures/catalogue.hpp"
#include "room/credit.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/screens.hpp"

namespace tombolario {

/// Whom the room thanks and where its letters go.
inline constexpr const char* kMailAddress = "info@tombolario.example";
inline constexpr const char* kWebAddress = "https://www.tombolario.example/";
inline constexpr const char* kThanks = "GRAZIE A WWW.TOMBOLARIO.EXAMPLE";

/// `Frameprincipale`, the screen that opens each game, with the two links. Three of its labels also keep
/// the cursors of the room.
class MainMenu : public Frame {
 public:
  /// With an entry for each of so many games.
  MainMenu(Form& form, Host& host, int games);

  // clang-format off
  Label Label4{*this, "Label4", {0, 0, 12015, 615}, "TOMBOLARIO ",
               {.back = 0xFF8000, .fore = kWhite, .font = {.face = Face::Heavy, .points = 20.25}}};
  Label Label13{*this, "Label13", {0, 600, 12015, 255}, "Risoluzione consigliata: 800*600",
                {.back = 0x0000C0, .fore = kWhite}};
  std::deque<Button> commpr;
  PictureBox Picture3{*this, "Picture3", {9240, 2160, 1530, 1530},
                      {.back = kWhite, .border = Border::Sunken, .picture = pictures::Picture3}};
  PictureBox Picture4{*this, "Picture4", {1080, 2160, 1530, 1530},
                      {.back = kWhite, .border = Border::Sunken, .picture = pictures::Picture4}};
  Label Label9{*this, "Label9", {0, 5880, 12015, 375}, kCredit, stripLook(kWhite, kRed)};
  ControlArray<Button, 1, 2> CLINK{[this](int n) {
    return Button{*this, {"CLINK", n}, {4080, 6600 + 480 * (n - 1), 3735, 495},
                  n == 1 ? "EMAIL" : kThanks, {.back = kLinkAtRest, .font = {.points = 9.75}}}; }};
  // clang-format on

  /// All game buttons to their colour at rest.
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
