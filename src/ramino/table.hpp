#pragma once

#include "host/host.hpp"
#include "pictures/catalogue.hpp"
#include "ramino/rules.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/game.hpp"
#include "toolkit/screens.hpp"
#include "toolkit/scroll_bar.hpp"

namespace tombolario::ramino {

/// The screens of ramino: `frame6`, its options and its rules, and `Frame6bis`, the table.
class Table : public Game {
 public:
  Table(Form& owner, Host& host);

  Frame& entrance() override { return frame6; }
  Button& wayBack() override { return MENURAM; }

  /// The start-up: no hand won, and the first one dealt.
  void start() override;

  Form& form;

  // clang-format off
  Frame frame6{form, "frame6", kFullSize, screenLook(kRed)};
  Label ramETIC{frame6, "ramETIC", kTitleBar, "RAMINO", stripLook(kYellow, kBlue)};
  PictureBox Picram{frame6, "Picram", {2490, 1020, 7020, 2130}, {.back = 0xC0C0C0, .picture = pictures::Picram}};
  Frame rancentrale{frame6, "rancentrale", {4320, 3480, 3375, 1455}, groupLook(), "DIFFICOLTA'"};
  OptionButton Opram1{rancentrale, "Opram1", {480, 360, 2415, 375}, "principante", false, optionLook()};
  OptionButton Opram2{rancentrale, "Opram2", {480, 840, 2415, 375}, "esperto", true, optionLook()};
  Button MENURAM{frame6, "MENURAM", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button GIOCORAM{frame6, "GIOCORAM", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};

  Frame Frame6bis{form, "Frame6bis", kFullSize, screenLook(SystemColour::Window)};
  Frame Rancarte{Frame6bis, "Rancarte", {4680, 2160, 2655, 3255}, {.back = 0xC0FFFF, .border = Border::Etched}};
  PictureBox PicRAM3{Rancarte, "PicRAM3", {480, 600, 600, 885}, {.back = kYellow, .picture = pictures::PicRAM3}};
  Frame Frame19b{Rancarte, "Frame19b", {1320, 240, 1095, 1560}, takenLook()};
  PictureBox cartatr{Rancarte, "cartatr", {1560, 600, 630, 915}, cardLook(true)};
  Button mazzoram{Rancarte, "mazzoram", {120, 1800, 1215, 375}, "MAZZO", buttonLook(kYellow)};
  Button tavoloram{Rancarte, "tavoloram", {1320, 1800, 1215, 375}, "TAVOLO", buttonLook(0x80FF80)};
  // 0 to 8 are the player's; 9 lies about a card drawn from the stock.
  ControlArray<Frame, 0, kInPlay> Ramfr{[this](int k) {
    if (k == kInPlay) return Frame{Rancarte, {"Ramfr", k}, {240, 240, 1095, 1560}, takenLook()};
    return Frame{Frame6bis, {"Ramfr", k}, {1080 + 1080 * k, 5880, 1095, 2295},
                 {.back = SystemColour::Light3d, .border = Border::Etched}}; }};
  ControlArray<Button, 0, kPlayerCards - 1> ramCom{[this](int k) {
    return Button{Ramfr[k], {"ramCom", k}, {120, 1680, 855, 375}, "", buttonLook(kRed, pictures::rampul1)}; }};

  Frame ramscar{Frame6bis, "ramscar", {1680, 2160, 1815, 3255}, {.back = 0xC0FFFF, .border = Border::Etched}};
  Label Lscarram{ramscar, "Lscarram", {180, 420, 990, 255}, "Scarti", {.back = 0xC0FFFF, .font = kButtonFont}};
  ControlArray<PictureBox, 0, kListPlaces - 1> visualram{[this](int i) {
    return PictureBox{ramscar, {"visualram", i}, {360, 1080, 630, 915}, cardLook(false)}; }};
  ScrollBar VScrollram1{ramscar, "VScrollram1", {1200, 360, 375, 2295}, ScrollBar::Direction::Vertical};

  Frame avvram{Frame6bis, "avvram", {2640, 0, 6975, 1695}, shownLook()};
  Frame ramcomp{Frame6bis, "ramcomp", {5040, 0, 1815, 1695}, shownLook()};
  Label lcpram{ramcomp, "lcpram", {120, 150, 1575, 255}, "Carta pescata", {.back = 0xC0C0C0, .font = kButtonFont}};
  // By position: the player's hand, the card in play, the computer's hand, the card that it considers.
  ControlArray<PictureBox, 0, kConsidered> ramin{[this](int position) {
    const Name name{"ramin", position};
    if (position < kPlayerCards) return PictureBox{Ramfr[position], name, {240, 480, 630, 915}, cardLook(true)};
    if (position == kInPlay) return PictureBox{Ramfr[kInPlay], name, {240, 360, 630, 915}, cardLook(true)};
    if (position == kConsidered) return PictureBox{ramcomp, name, {600, 570, 630, 915}, cardLook(false)};
    return PictureBox{avvram, name, {600 * (position - kComputerFirst + 1), 390, 630, 915}, cardLook(false)}; }};

  Button ramturncom{Frame6bis, "ramturncom", {4800, 4320, 2415, 375}, "TURNO DEL COMPUTER", buttonLook(0xFF8080)};
  Button ramlas{Frame6bis, "ramlas", {4800, 4680, 2415, 375}, "", buttonLook(kBlue, pictures::ramlas)};
  Button scambiaram{Frame6bis, "scambiaram", {10920, 6840, 735, 495}, "", buttonLook(kYellow, pictures::scambiaram)};
  Button ramesc{Frame6bis, "ramesc", {8400, 2280, 2475, 495}, "ESCI", buttonLook(0xFFC0C0)};
  Button ALTRORAM{Frame6bis, "ALTRORAM", {8400, 2760, 2475, 495}, "ALTRA PARTITA", buttonLook(0x00E0E0)};
  Button Continuaramino{Frame6bis, "Continuaramino", {8400, 4920, 2475, 375}, "CONTINUA",
                        {.back = 0xFFC080, .font = kButtonFont, .visible = false}};
  PictureBox RAMRESULT{Frame6bis, "RAMRESULT", {8400, 3480, 2475, 1215},
                       {.back = kWhite, .picture = pictures::RAMRESULT}};
  PictureBox rampar{RAMRESULT, "rampar", kNames, {.back = kBlack, .picture = pictures::rampar, .visible = false}};
  PictureBox ramvin{RAMRESULT, "ramvin", kNames, {.back = kBlack, .picture = pictures::ramvin, .visible = false}};
  PictureBox ramper{RAMRESULT, "ramper", kNames, {.back = kBlack, .picture = pictures::ramper, .visible = false}};
  Label PRAMC{RAMRESULT, "PRAMC", {1680, 400, 615, 255}, "", {.back = kTotal, .font = {.bold = true}}};
  Label PRAMH{RAMRESULT, "PRAMH", {1680, 840, 615, 255}, "", {.back = kTotal, .font = {.bold = true}}};
  // clang-format on

 private:
  void ALTRORAM_Click();
  void Continuaramino_Click();
  void GIOCORAM_Click();
  void VScrollram1_Change();
  void avvioRAM();
  void mazzoram_Click();
  void ramCom_Click(int card);
  void ramesc_Click();
  void ramlas_Click();
  void ramturncom_Click();
  void scambiaram_Click();
  void tavoloram_Click();

  void begin();
  void clearTable();
  void drawn();
  void placed();
  void endHand();
  void showTurn();
  void showCards();
  void showDiscards(int listed);
  void showComputersTris();
  void showButtons(const PictureId& picture, Colour back);
  void enableButtons(bool enabled);
  Level level() const { return Opram2.Value == 1 ? Level::Expert : Level::Beginner; }

  static constexpr Colour kTotal = 0x0080FF;
  static constexpr Box kNames{0, 0, 1515, 1215};
  static constexpr Look cardLook(bool visible) {
    return {.back = kWhite, .border = Border::Single, .visible = visible};
  }
  static constexpr Look takenLook() { return {.back = 0xFFFFC0, .border = Border::Etched, .visible = false}; }
  static constexpr Look shownLook() { return {.back = 0xC0C0C0, .border = Border::Etched, .visible = false}; }

  Host& host_;
  Ramino game_;
};

}  // namespace tombolario::ramino
