#pragma once

#include "host/host.hpp"
#include "mahjongg/rules.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"
#include "toolkit/screens.hpp"

namespace tombolario::mahjongg {

/// The screen of mahjongg, `Frame7`: the board, and the bench that counts what is left of each kind.
class Table : public Game {
 public:
  Table(Form& owner, Host& host);

  Frame& entrance() override { return Frame7; }
  Button& wayBack() override { return Command17; }
  void enter() override { avvioMAH(); }

  /// Lays a new board.
  void avvioMAH();

  Form& form;
  // clang-format off
  Frame Frame7{form, "Frame7", kFullSize, screenLook(0xFFE0C0)};
  Frame FRPEDMAH{Frame7, "FRPEDMAH", {2640, 360, 7455, 5775}, {.back = 0xFFE0C0}};
  // 1 to 120 are the cells of the board, those of the top above those of the ground; the other two have no
  // tile.
  ControlArray<Button, 0, kCells + 1> Commah{[this](int i) {
    const Name name{"Commah", i};
    if (i < 1 || i > kCells) {
      return Button{Frame7, name, {480, 360, 855, 495}, "", {.back = kGroundAtRest, .visible = false}};
    }
    const Point place = isGround(i) ? placeIn(600, kGroundColumns, i - 1)
                                    : placeIn(2280, kTopColumns, i - kGroundCells - 1);
    return Button{FRPEDMAH, name, {place.x, place.y, 855, 495}, "", {.back = atRest(i)}}; }};
  Button ELPEDMAH{Frame7, "ELPEDMAH", {3240, 6360, 2535, 375}, "", buttonLook(kRed, pictures::ELPEDMAH)};
  Button CERPEDMAH{Frame7, "CERPEDMAH", {3240, 6720, 2535, 375}, "", buttonLook(kBlue, pictures::CERPEDMAH)};
  Button ALTRAPARTITAMAH{Frame7, "ALTRAPARTITAMAH", {8880, 6960, 1815, 495}, "ALTRA PARTITA", buttonLook(0xD0D000)};
  Button Command17{Frame7, "Command17", {8880, 7440, 1815, 495}, "EXIT", buttonLook(kGreen)};

  Frame FrameBANMAH{Frame7, "FrameBANMAH", {480, 360, 1695, 7575}, {.back = 0xC0C0C0, .border = Border::Etched}};
  ControlArray<Image, 0, kKinds - 2> IImAH{[this](int i) {
    return Image{FrameBANMAH, {"IImAH", i}, placeOfImage(i < 5 ? i : 33 - i), {pictures::IImAH, i}}; }};
  Image ImAH{FrameBANMAH, "ImAH", placeOfImage(kKinds - 1), pictures::ImAH};
  ControlArray<Label, 0, kKinds - 1> labmah{[this](int kind) {
    return Label{FrameBANMAH, {"labmah", kind}, {720, 240 + 240 * kind, 615, 255}, "4",
                 {.back = kWhite, .font = {.points = 9.75}, .border = Border::Single}}; }};
  // Board and bench begin a little under the title.
  Label Label10{Frame7, "Label10", kTitleBar, "MAHJONGG", stripLook(0xFFFF80, 0xC04000)};
  // clang-format on

 private:
  void CERPEDMAH_MouseDown();
  void Commah_Click(int cell);
  void ELPEDMAH_Click();

  void show();

  static constexpr Colour kGroundAtRest = 0xD0D0D0;
  static constexpr Colour kTopAtRest = 0xFFFFFF;
  static constexpr Colour atRest(int cell) { return isGround(cell) ? kGroundAtRest : kTopAtRest; }
  static constexpr Point placeIn(int left, int columns, int index) {
    return {left + 840 * (index % columns), 480 + 480 * (index / columns)};
  }
  static constexpr Box placeOfImage(int kind) { return {360, 270 + 240 * kind, 300, 195}; }

  Host& host_;
  Mahjongg game_;
};

}  // namespace tombolario::mahjongg
