#pragma once

#include "host/host.hpp"
#include "pictures/catalogue.hpp"
#include "poker/rules.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"
#include "toolkit/screens.hpp"

namespace tombolario::poker {

/// The screens of poker against the computer: `Frame2`, its options, and `Frame2BIS`, the table.
class Table : public Game {
 public:
  Table(Form& owner, Host& host);

  Frame& entrance() override { return Frame2; }
  Button& wayBack() override { return menupok; }

  /// The start-up: no score, and no hand to follow.
  void start() override;

  Form& form;

  // clang-format off
  Frame Frame2{form, "Frame2", {0, 0, 12000, 8775}, screenLook(kCyan)};
  Label LPOKER{Frame2, "LPOKER", {0, 0, 12015, 375}, "POKER", stripLook(kYellow, kBlue)};
  Frame Framepun{Frame2, "Framepun", {720, 1560, 3375, 2895}, groupLook(), "TIPI DI PUNTEGGIO"};
  OptionButton Op1{Framepun, "Op1", {480, 960, 2415, 375}, "Per mano", false, optionLook()};
  OptionButton Op2{Framepun, "Op2", {480, 1560, 2415, 375}, "Per configurazione", true, optionLook()};
  Frame Framescpok{Frame2, "Framescpok", {4320, 1560, 3375, 2895}, groupLook(), "DIFFICOLTA'"};
  OptionButton Option3{Framescpok, "Option3", {480, 960, 2415, 375}, "Normale", false, optionLook()};
  OptionButton Option4{Framescpok, "Option4", {480, 1560, 2415, 375}, "Alta", true, optionLook()};
  Frame Framecomb{Frame2, "Framecomb", {7920, 1560, 3375, 2895}, groupLook(), "COMBINAZIONI"};
  PictureBox Pictcompok{Framecomb, "Pictcompok", {570, 510, 2250, 2055},
                        {.back = kBlue, .picture = pictures::Pictcompok}};
  Button menupok{Frame2, "menupok", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button Command44{Frame2, "Command44", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};

  Frame Frame2BIS{form, "Frame2BIS", {0, 0, 12120, 8655}, screenLook(kWhite)};
  // 0 to 4 are the player's, 5 to 9 the computer's.
  ControlArray<Frame, 0, 9> Frame11{[this](int i) {
    const bool player = i < kHandSize;
    return Frame{Frame2BIS, {"Frame11", i},
                 {1560 + 1800 * (i % kHandSize), player ? 5160 : 0, 1815, player ? 2775 : 2175},
                 {.back = SystemColour::Light3d, .border = Border::Etched}}; }};
  // By slot of the pack; the replacements are never seen.
  ControlArray<PictureBox, 0, kSlots - 1> Pictt{[this](int slot) {
    const bool inHand = slot < kHandSize || (slot >= kComputerSlot && slot < kNextCardSlot);
    const Look look{.back = kBlack, .border = Border::Single, .visible = inHand};
    if (inHand) return PictureBox{Frame11[slot % kComputerSlot + (slot < kHandSize ? 0 : kHandSize)], {"Pictt", slot}, {360, 360, 1080, 1415}, look};
    return PictureBox{Frame2BIS, {"Pictt", slot}, {1920 + 1800 * (slot % kHandSize), 2955, 1080, 1415}, look}; }};
  ControlArray<Button, 0, 4> Command22{[this](int i) {
    return Button{Frame11[i], {"Command22", i}, {240, 2160, 1335, 375}, "Segna", buttonLook(0xFFE0C0)}; }};
  Label comres{Frame2BIS, "comres", {1560, 2160, 9015, 495}, "", resultLook()};
  Label humres{Frame2BIS, "humres", {1560, 4680, 9015, 495}, "", resultLook()};
  PictureBox Picture5{Frame2BIS, "Picture5", {8100, 3060, 2475, 1215},
                      {.back = kWhite, .picture = pictures::Picture5}};
  Label result{Picture5, "result", {0, 0, 1510, 310}, "",
               {.back = kYellow, .fore = kRed, .font = {.bold = true}, .border = Border::Single, .visible = false}};
  Label comp1{Picture5, "comp1", {1680, 410, 615, 255}, "", {.back = kWhite, .font = {.bold = true}}};
  Label hum1{Picture5, "hum1", {1680, 840, 615, 255}, "", {.back = kWhite, .font = {.bold = true}}};
  Button Command11{Frame2BIS, "Command11", {240, 5640, 1095, 615}, "NUOVA MANO", buttonLook(0xFF8000)};
  Button Command33{Frame2BIS, "Command33", {240, 6240, 1095, 615}, "CAMBIA CARTE", buttonLook(0xFFFF80)};
  Button Command55{Frame2BIS, "Command55", {10800, 5880, 975, 495}, "EXIT", buttonLook(0xFFC0C0)};
  Button Command15{Frame2BIS, "Command15", {10800, 6360, 975, 495}, "INIZIO", buttonLook(0x80FF80)};
  // clang-format on

 private:
  void avvioPOKER();
  void Command11_Click();
  void Command15_Click();
  void Command33_Click();
  void Command44_Click();
  void Command55_Click();

  void begin();
  void changePlayer();
  void changeComputer();
  void showRoles(int firstFrame, int firstSlot, const Classification& found);
  void award();
  void endMatch();

  static constexpr Look resultLook() {
    return {.back = kRed, .fore = kYellow, .font = {.points = 18, .bold = true}};
  }
  Level level() const { return Option3.Value == 1 ? Level::Normal : Level::High; }
  Counting counting() const { return Op1.Value == 1 ? Counting::ByHand : Counting::ByClass; }

  Host& host_;
  Poker game_;
};

}  // namespace tombolario::poker
