#pragma once

#include "domino/rules.hpp"
#include "host/host.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"
#include "toolkit/screens.hpp"
#include "toolkit/scroll_bar.hpp"

namespace tombolario::domino {

/// The slot after all faces holds the blank tile.
inline constexpr int kBlankSlot = kFaces;

/// The screens of domino: `FRAME5`, its options, and `Frame5BIS`, the table.
class Table : public Game {
 public:
  Table(Form& owner, Host& host);

  Frame& entrance() override { return FRAME5; }
  Button& wayBack() override { return MENUDOM; }
  void start() override { inizioDOMINO(); }

  /// Deals a game and shows it, whether the table is on view or not.
  void inizioDOMINO();

  Form& form;

  // clang-format off
  Frame FRAME5{form, "FRAME5", kFullSize, screenLook(kGreen)};
  Label DOMETIC{FRAME5, "DOMETIC", kTitleBar, "DOMINO", stripLook(kYellow, kBlue)};
  Label domgi{FRAME5, "domgi", {0, 375, 12120, 375}, "OPZIONI DI GIOCO", stripLook(kWhite, kRed)};
  Frame pundom{FRAME5, "pundom", {2400, 1560, 3375, 2895}, groupLook(), "PUNTEGGIO"};
  OptionButton Opdom1{pundom, "Opdom1", {480, 960, 2415, 375}, "Per partita", true, optionLook()};
  OptionButton Opdom2{pundom, "Opdom2", {480, 1560, 2415, 375}, "Per pedina", false, optionLook()};
  Frame difdom{FRAME5, "difdom", {6240, 1560, 3375, 2895}, groupLook(), "LIVELLO DI DIFFICOLTA'"};
  OptionButton Opdom3{difdom, "Opdom3", {480, 960, 2415, 375}, "Principiante", false, optionLook()};
  OptionButton Opdom4{difdom, "Opdom4", {480, 1560, 2415, 375}, "Esperto", true, optionLook()};
  Button MENUDOM{FRAME5, "MENUDOM", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button giocodom{FRAME5, "giocodom", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};

  Frame Frame5BIS{form, "Frame5BIS", kFullSize, screenLook(kTable)};
  Shape lecen{Frame5BIS, "lecen", {4920, 2520, 2055, 2295}, 5, {.back = kTable, .fore = kNothing}};
  Shape lesx{Frame5BIS, "lesx", {2880, 2520, 2055, 2295}, 5, {.back = kTable, .fore = kNothing}};
  Shape ledx{Frame5BIS, "ledx", {6960, 2520, 2055, 2295}, 5, {.back = kTable, .fore = kNothing}};
  PictureBox wwwdom2{Frame5BIS, "wwwdom2", {3240, 2880, 1380, 780},
                     {.back = kWhite, .border = Border::Single, .picture = {pictures::domin, kBlankSlot}}};
  PictureBox wwwdom{Frame5BIS, "wwwdom", {7320, 2880, 1380, 780},
                    {.back = kWhite, .border = Border::Single, .picture = {pictures::domin, kBlankSlot}}};
  // The line: the tiles lie on each other, and the bar chooses the one that is seen.
  ControlArray<PictureBox, 0, kBoxes - 1> VISUAL{[this](int box) {
    return PictureBox{Frame5BIS, {"VISUAL", box}, {5280, 2880, 1380, 780}, {.back = kWhite, .border = Border::Single, .visible = false}}; }};
  ScrollBar HScrolldom{Frame5BIS, "HScrolldom", {5040, 3960, 1815, 375}, ScrollBar::Direction::Horizontal};
  // By slot; none but the player's are ever seen.
  ControlArray<PictureBox, 0, kBlankSlot> domin{[this](int slot) {
    const bool player = slot >= kFirstOfPlayer && slot <= kLastOfPlayer;
    const Point place = player ? placeInHand(slot) : Point{5280, 2880};
    const Look look{.back = kWhite, .border = Border::Single, .picture = slot == kBlankSlot ? PictureId(pictures::domin, slot) : PictureId(),
                    .visible = player};
    return PictureBox{Frame5BIS, {"domin", slot}, {place.x, place.y, 1380, 780}, look}; }};
  ControlArray<Button, kFirstOfPlayer, kLastOfPlayer> LEF{[this](int slot) {
    const Point place = placeInHand(slot) + Point{240, 840};
    return Button{Frame5BIS, {"LEF", slot}, {place.x, place.y, 495, 315}, "sx", buttonLook(kIdle)}; }};
  ControlArray<Button, kFirstOfPlayer, kLastOfPlayer> RIGHT{[this](int slot) {
    const Point place = placeInHand(slot) + Point{720, 840};
    return Button{Frame5BIS, {"RIGHT", slot}, {place.x, place.y, 495, 315}, "dx", buttonLook(kIdle)}; }};

  Frame bandom{Frame5BIS, "bandom", {240, 2520, 2295, 2295}, {.border = Border::Etched}};
  Image spagnadom{bandom, "spagnadom", placeOfFlag(0), pictures::spagnadom};
  Image brasiledom{bandom, "brasiledom", placeOfFlag(1), pictures::brasiledom};
  Image giapponedom{bandom, "giapponedom", placeOfFlag(2), pictures::giapponedom};
  Image usadom{bandom, "usadom", placeOfFlag(3), pictures::usadom};
  Image sveziadom{bandom, "sveziadom", placeOfFlag(4), pictures::sveziadom};
  Image portogallodom{bandom, "portogallodom", placeOfFlag(5), pictures::portogallodom};
  Image danimarcadom{bandom, "danimarcadom", placeOfFlag(6), pictures::danimarcadom};
  // The player's counters, then the computer's.
  ControlArray<Label, 0, 2 * kNumbers - 1> peddom{[this](int n) {
    return Label{bandom, {"peddom", n}, {n < kNumbers ? 720 : 1320, 240 + 240 * (n % kNumbers), 615, 255}, "",
                 {.back = kWhite, .font = {.bold = true}, .border = Border::Single}}; }};

  PictureBox tabdom{Frame5BIS, "tabdom", {4320, 360, 3435, 1215}, {.back = kWhite, .picture = pictures::tabdom}};
  Label domcont2{tabdom, "domcont2", {1515, 315, 945, 435}, "", cellLook(kWhite, kRed)};
  Label domcont1{tabdom, "domcont1", {1515, 765, 945, 435}, "", cellLook(kWhite, kRed)};
  Label scoredom2{tabdom, "scoredom2", {2475, 315, 945, 435}, "", cellLook(kYellow, kBlue)};
  Label scoredom1{tabdom, "scoredom1", {2475, 765, 945, 435}, "", cellLook(kYellow, kBlue)};

  Button NUOVAPARDOM{Frame5BIS, "NUOVAPARDOM", {9480, 2640, 2295, 495}, "",
                     {.back = kYellow, .fore = kRed, .font = kTitleFont, .visible = false}};
  Button FINEDOM{Frame5BIS, "FINEDOM", {9480, 3120, 2295, 495}, "FINE", buttonLook(kMatchGoesOn)};
  Button passadomban{Frame5BIS, "passadomban", {9480, 3600, 2295, 495}, "", buttonLook(kYellow, pictures::passadomban)};
  Button Commdomban{Frame5BIS, "Commdomban", {9480, 4080, 2295, 495}, "", buttonLook(kRed, pictures::Commdomban)};
  // clang-format on

 private:
  void FINEDOM_Click();
  void HScrolldom_Change();
  void NUOVAPARDOM_Click();
  void giocodom_Click();
  void calcoloDOMINO();

  void layPlayers(int slot, bool left);
  void computerTurn();
  void showOnLine(int face, bool left);
  void showTurn();
  void showCounters();
  void showScore();
  void offerTiles();

  static constexpr Colour kTable = 0x00C0C0;
  static constexpr Colour kNothing = 0x808080;
  static constexpr Colour kIdle = SystemColour::ToolTip;
  static constexpr Colour kMatchGoesOn = 0xFFFF80;

  static constexpr Point placeInHand(int slot) {
    return {240 + 1680 * ((slot - 1) % 7), slot <= 7 ? 5520 : 6960};
  }
  static constexpr Box placeOfFlag(int number) { return {240, 270 + 240 * number, 330, 210}; }
  static constexpr Look cellLook(Colour fore, Colour back) {
    return {.back = back, .fore = fore, .font = kButtonFont};
  }
  Counting counting() const { return Opdom1.Value == 1 ? Counting::ByGame : Counting::ByTile; }
  Level level() const { return Opdom4.Value == 1 ? Level::Expert : Level::Beginner; }

  Host& host_;
  Domino game_;
};

}  // namespace tombolario::domino
