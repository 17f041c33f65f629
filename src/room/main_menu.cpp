#include "room/main_menu.hpp"

#include <string>

namespace tombolario {

namespace {

/// The mouse is over one button of the row: that one alone takes the hover colour. No colour changes
/// twice, so that a move within the button draws nothing.
template <class Row>
void hover(Row& row, const Control& under, Colour atRest, Colour underMouse) {
  for (Control& button : row) button.BackColor = &button == &under ? underMouse : atRest;
}

template <class Row>
void rest(Row& row, Colour atRest) {
  for (Control& button : row) button.BackColor = atRest;
}

/// The mouse is at a point of the ground: what lies beside it or above or below it goes to rest. A point
/// right on an edge still counts as inside.
template <class Row>
void restAwayFrom(Row& row, Point point, Colour atRest) {
  for (Control& button : row) {
    const bool beside = point.x < button.Left || point.x > button.Left + button.Width;
    const bool aboveOrBelow = point.y < button.Top || point.y > button.Top + button.Height;
    if (beside || aboveOrBelow) button.BackColor = atRest;
  }
}

}  // namespace

MainMenu::MainMenu(Form& form, Host& host, int games)
    : Frame(form, "Frameprincipale", kFullSize, {.back = 0xFFC0C0, .about = "Menù"}), host_(host) {
  for (int n = 1; n <= games; ++n) {
    commpr.emplace_back(*this, Name{"commpr", n}, Box{4080, 1440 + 600 * (n - 1), 3735, 615}, "",
                        buttonLook(kGameAtRest, {pictures::commpr, n}));
  }
  Label13.MouseIcon = pictures::Label13;
  Label4.MouseIcon = pictures::Label4;
  Label9.MouseIcon = pictures::Label9;
  for (Button& button : commpr) {
    button.onMouseMove = [this, &button](Point) { hover(commpr, button, kGameAtRest, kGameUnderMouse); };
  }
  for (Button& button : CLINK) {
    button.onMouseMove = [this, &button](Point) { hover(CLINK, button, kLinkAtRest, kLinkUnderMouse); };
  }
  onMouseMove = [this](Point point) {
    restAwayFrom(commpr, point, kGameAtRest);
    restAwayFrom(CLINK, point, kLinkAtRest);
  };
  CLINK[1].onMouseDown = [this](MouseButton) {
    apriMail(kMailAddress);
    restLinks();
  };
  CLINK[2].onMouseDown = [this](MouseButton) {
    GoURL(kWebAddress);
    restLinks();
  };
}

void MainMenu::restGames() { rest(commpr, kGameAtRest); }

void MainMenu::restLinks() { rest(CLINK, kLinkAtRest); }

void MainMenu::GoURL(const std::string& DestUrl) { host_.openAddress(DestUrl); }

void MainMenu::apriMail(const std::string& address) { host_.openAddress("mailto:" + address); }

}  // namespace tombolario
