#pragma once

#include "chain/rules.hpp"
#include "host/host.hpp"
#include "host/record_file.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"
#include "toolkit/screens.hpp"

namespace tombolario::chain {

/// The screens of the chain game: `Frame4`, its menu, and `Frame4BIS`, the table.
class Table : public Game {
 public:
  Table(Form& owner, Host& host);

  Frame& entrance() override { return Frame4; }
  Button& wayBack() override { return menucat; }

  /// The start-up: no hand is dealt.
  void start() override;
  /// The way to the main menu closes the way on.
  void leave() override;

  Form& form;
  // clang-format off
  Frame Frame4{form, "Frame4", kFullSize, screenLook(0xFFFF80)};
  Label LCATENA{Frame4, "LCATENA", kTitleBar, "MISTO DOMINO/POKER", stripLook(kYellow, kBlue)};
  Frame framescelta{Frame4, "framescelta", {960, 1800, 4455, 1935}, {.border = Border::Etched}};
  OptionButton Optca1{framescelta, "Optca1", {360, 420, 3975, 375}, "1 SCAMBIO - 2 SOSTITUZIONI", true, optionLook()};
  OptionButton Optca2{framescelta, "Optca2", {360, 1020, 3975, 375}, "2 SCAMBI - 1 SOSTITUZIONE", false, optionLook()};
  Frame Framevis{Frame4, "Framevis", {960, 3600, 4455, 1575}, {.border = Border::Etched}};
  Label Label16ca{Framevis, "Label16ca", {240, 210, 2295, 375}, " PUNTEGGIO", stripLook(kYellow, kBlue, Align::Left)};
  Label Label3ca{Framevis, "Label3ca", {2535, 210, 1680, 375}, "", stripLook(kYellow, kBlue)};
  Label Label11ca{Framevis, "Label11ca", {240, 600, 2295, 375}, " LIVELLO", stripLook(kWhite, kRed, Align::Left)};
  Label Label10ca{Framevis, "Label10ca", {2535, 600, 1680, 375}, "", stripLook(kWhite, kRed)};
  Label Label13ca{Framevis, "Label13ca", {240, 990, 2295, 375}, " EN PLEIN", hidden(stripLook(kWhite, 0xFF8000, Align::Left))};
  Label Label14ca{Framevis, "Label14ca", {2535, 990, 1680, 375}, "", hidden(stripLook(kWhite, 0xFF8000))};
  TextBox Text1{Frame4, "Text1", {1080, 6480, 4215, 1095},
                "In questo gioco, tramite sostituzioni e scambi di \n"
                "pedine simildomino, si deve formare una catena \n"
                "con queste pedine correlate tra loro come nel \n"
                "domino. Ogni legame vale 1 punto.\n",
                {.back = SystemColour::Window, .font = {.points = 9}, .align = Align::Left}};
  Button INICAT{Frame4, "INICAT", {6600, 1560, 3975, 855}, "", buttonLook(kRed, pictures::INICAT)};
  Button CoNTCAT{Frame4, "CoNTCAT", {6600, 2400, 3975, 855}, "", buttonLook(kRed, pictures::CoNTCAT)};
  Button CARCAT{Frame4, "CARCAT", {6600, 3240, 3975, 855}, "", buttonLook(kRed, pictures::CARCAT)};
  Button SALVACAT{Frame4, "SALVACAT", {6600, 4080, 3975, 855}, "", buttonLook(kRed, pictures::SALVACAT)};
  Button menucat{Frame4, "menucat", {6600, 4920, 3975, 495}, "MENU'", buttonLook(0xFF8080)};

  Frame Frame4BIS{form, "Frame4BIS", kFullSize, screenLook(0xE0E0E0)};
  ControlArray<Shape, 1, kRow> Sh{[this](int i) {
    return Shape{Frame4BIS, {"Sh", i}, {leftOf(i) - 360, 2280, 2175, 2775}, 5,
                 {.back = SystemColour::ActiveBorder, .fore = kBlack}}; }};
  // 0 and 8 are never used, 6 and 7 the reserve.
  ControlArray<Image, 0, 8> pictca{[this](int i) {
    const bool onTable = i >= 1 && i <= kRow;
    return Image{Frame4BIS, {"pictca", i}, {onTable ? leftOf(i) : leftOf(1), 2760, 1380, 780},
                 {pictures::pictca, i}, onTable}; }};
  ControlArray<Button, 1, kRow> Comscam{[this](int i) {
    return Button{Frame4BIS, {"Comscam", i}, {leftOf(i) - 120, 1800, 1620, 375}, "SCAMBIO", buttonLook(0xFFC0C0)}; }};
  ControlArray<Button, 1, kRow> Comsost{[this](int i) {
    return Button{Frame4BIS, {"Comsost", i}, {leftOf(i) - 120, 4200, i == 1 ? 1665 : 1620, 495}, "SOSTITUZIONE",
                  buttonLook(0xFFFF80)}; }};
  Button SCAMBIA{Frame4BIS, "SCAMBIA", {3000, 960, 6135, 495}, "", buttonLook(0xC0C0C0, pictures::SC1)};
  Label SCALABELCAT{Frame4BIS, "SCALABELCAT", {9240, 960, 855, 495}, "", hidden(stripLook(kBlue, kYellow))};
  Button SOSTITCAT{Frame4BIS, "SOSTITCAT", {480, 5400, 2535, 615}, kSubstitution, buttonLook(SystemColour::ToolTip)};
  Button nmcat{Frame4BIS, "nmcat", {480, 6600, 2295, 495}, "NUOVA MANO", buttonLook(0xFF8000)};
  Button FINECA{Frame4BIS, "FINECA", {480, 7080, 2295, 495}, "", buttonLook(kRed, pictures::FINECA)};
  Frame Framevis2{Frame4BIS, "Framevis2", {7320, 5760, 4335, 1815}, {.border = Border::Etched}};
  Label Lok{Framevis2, "Lok", {120, 120, 4095, 375}, "OK", hidden(stripLook(kWhite, 0xFF8000))};
  Label Lpunca{Framevis2, "Lpunca", {120, 540, 2655, 375}, " PUNTEGGIO", stripLook(kYellow, kBlue, Align::Left)};
  Label Lpuca{Framevis2, "Lpuca", {2775, 540, 1440, 375}, "", stripLook(kYellow, kBlue)};
  Label Lmanca{Framevis2, "Lmanca", {120, 930, 2655, 375}, " MANI DA GIOCARE", stripLook(kBlack, kYellow, Align::Left)};
  Label Lmacatpu{Framevis2, "Lmacatpu", {2775, 930, 1440, 375}, "", stripLook(kBlack, kYellow)};
  Label Llivca{Framevis2, "Llivca", {120, 1320, 2655, 375}, " LIVELLO", stripLook(kWhite, kRed, Align::Left)};
  Label Llivpuca{Framevis2, "Llivpuca", {2775, 1320, 1440, 375}, "", stripLook(kWhite, kRed)};
  // The links of the row, for nobody to see.
  Label Lll1{Frame4BIS, "Lll1", {480, 6120, 495, 255}, "", {.visible = false}};
  // clang-format on

 private:
  void CARCAT_Click();
  void CoNTCAT_Click();
  void Comscam_Click(int position);
  void Comsost_Click(int position);
  void FINECA_Click();
  void INICAT_Click();
  void SALVACAT_Click();
  void SCAMBIA_Click();
  void SOSTITCAT_Click();
  void avviocatena();
  void nmcat_Click();

  void enableMarks();
  void endLevel();
  void openTable();
  void showLinks();
  void showMarks();
  void showTile(int position);
  /// The score and the level are stored.
  RecordFile<2> file() { return {host_.dataFiles(), "CATENA.dat"}; }
  Mode mode() const { return Optca1.Value == 1 ? Mode::OneExchange : Mode::TwoExchanges; }

  static constexpr const char* kSubstitution = "SOSTITUZIONE";
  static constexpr int leftOf(int position) { return 840 + 2280 * (position - 1); }
  static constexpr Look hidden(Look look) {
    look.visible = false;
    return look;
  }

  Host& host_;
  Chain game_;
};

}  // namespace tombolario::chain
