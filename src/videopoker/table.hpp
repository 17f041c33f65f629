#pragma once

#include "host/host.hpp"
#include "host/record_file.hpp"
#include "pictures/catalogue.hpp"
#include "pieces/pay_tables.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"
#include "toolkit/screens.hpp"
#include "videopoker/rules.hpp"

namespace tombolario::videopoker {

/// The two screens of video poker: `Frame3`, its menu with the summary of a run, and `Frame3BIS`, the
/// table. Places in twips, as everywhere: Left, Top, Width, Height.
class Table : public Game {
 public:
  Table(Form& owner, Host& host);

  Frame& entrance() override { return Frame3; }
  Button& wayBack() override { return MENUVP; }
  void leave() override { Framecen.Visible = false; }

  Form& form;

  // clang-format off
  Frame Frame3{form, "Frame3", kFullSize, screenLook(SystemColour::ToolTip)};
  Label LVIDPOK{Frame3, "LVIDPOK", {-120, 0, 12120, 375}, "VIDEOPOKER", stripLook(kYellow, kBlue)};
  Button Command8{Frame3, "Command8", {3840, 960, 4260, 495}, "NUOVA PARTITA", buttonLook(0xFFFF00)};
  Button Command9{Frame3, "Command9", {3840, 1440, 4260, 495}, "CARICA PARTITA", buttonLook(0x00FF00)};
  Button MENUVP{Frame3, "MENUVP", {3840, 1920, 4260, 495}, "MENU'", buttonLook(0xFF8080)};
  PictureBox striscie{Frame3, "striscie", {2760, 3120, 6510, 2970},
                      {.back = kBlack, .border = Border::Single, .picture = pictures::striscie}};
  Line Line1{Frame3, "Line1", {2760, 2970, 6510, 60}, kBlue};
  Line Line2{Frame3, "Line2", {2760, 6180, 6510, 60}, kBlue};

  Frame Framecen{Frame3, "Framecen", {1560, 2880, 9015, 3495},
                 {.back = 0xC0C0C0, .border = Border::Etched, .visible = false}};
  Button Command4{Framecen, "Command4", {1800, 840, 2535, 735}, "", buttonLook(kRed, pictures::CONTPOK1)};
  Button Command7{Framecen, "Command7", {4680, 840, 2535, 735}, "", buttonLook(kWhite, pictures::SALVPOK1)};
  Label Label7{Framecen, "Label7", {2760, 2400, 1575, 375}, " Punteggio", stripLook(kYellow, kBlue, Align::Left)};
  Label Label5{Framecen, "Label5", {4320, 2400, 1935, 375}, "", stripLook(kYellow, kBlue)};
  Label Label8{Framecen, "Label8", {2760, 2760, 1575, 375}, " Saldo", stripLook(kRed, 0xFFFF80, Align::Left)};
  Label Label6{Framecen, "Label6", {4320, 2760, 1935, 375}, "", stripLook(kRed, 0xFFFF80)};

  Frame Frame3BIS{form, "Frame3BIS", kFullSize, screenLook(SystemColour::Window)};
  ControlArray<Frame, 0, 4> Frame1{[this](int i) {
    return Frame{Frame3BIS, {"Frame1", i}, {1560 + 1800 * i, 840, 1815, 3375},
                 {.back = SystemColour::Light3d, .border = Border::Etched}}; }};
  ControlArray<PictureBox, 0, 9> Pict{[this](int i) {
    const Look look{.back = kBlack, .border = Border::Single, .visible = i < kHandSize};
    if (i < kHandSize) return PictureBox{Frame1[i], {"Pict", i}, {360, 840, 1080, 1415}, look};
    return PictureBox{Frame3BIS, {"Pict", i}, {1920 + 1800 * (i - kHandSize), 1680, 1080, 1415}, look}; }};
  ControlArray<Button, 0, 4> Command2{[this](int i) {
    return Button{Frame1[i], {"Command2", i}, {240, 2760, 1335, 375}, "Segna", buttonLook(0xFFE0C0)}; }};
  Button Command1{Frame3BIS, "Command1", {1680, 5280, 2535, 615}, "NUOVA MANO", buttonLook(0xFF8000)};
  Button Command3{Frame3BIS, "Command3", {1680, 5880, 2535, 615}, "CAMBIA CARTE", buttonLook(0xFFFF80)};
  Button Command5{Frame3BIS, "Command5", {10200, 7440, 1335, 495}, "TERMINA", buttonLook(0xFFC0C0)};
  Label Label3{Frame3BIS, "Label3", {1440, 6960, 2055, 375}, " Dotazione", stripLook(kYellow, kRed, Align::Left)};
  Label Label2{Frame3BIS, "Label2", {3480, 6960, 1575, 375}, "", stripLook(kYellow, kRed)};
  Label Labcomvp{Frame3BIS, "Labcomvp", {7080, 4800, 2895, 255}, "combinazioni e relativo punteggio",
                 {.back = SystemColour::Window, .font = {.bold = true}}};
  PictureBox Pictcomvidpok{Frame3BIS, "Pictcomvidpok", {7320, 5040, 2370, 2895},
                           {.back = kRed, .border = Border::Single, .picture = pictures::Pictcomvidpok}};
  ControlArray<PictureBox, 0, 10> segn{[this](int k) {
    const PictureId row(pictures::segn, k);
    const auto [width, height] = row.size();
    return PictureBox{Pictcomvidpok, {"segn", k},
                      {0, kPayTable[k].top, width * kTwipsPerPixel, height * kTwipsPerPixel},
                      {.picture = row, .visible = false}}; }};
  // clang-format on

 private:
  void avvioVIDEO();
  void Command1_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Command7_Click();
  void Command8_Click();
  void Command9_Click();

  void changeMarkedCards();
  void showGroups(const Scoring& scoring);
  void endCredit();
  void showTable();
  void showSummary();
  void openButtons();
  void refuseButtons();
  void hideRows();
  /// The balance alone is stored.
  RecordFile<1> file() { return {host_.dataFiles(), "videopoker.dat"}; }

  Host& host_;
  VideoPoker game_;
};

}  // namespace tombolario::videopoker
