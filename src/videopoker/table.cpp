#include <memory>

#include "host/record_file.hpp"
#include "pictures/catalogue.hpp"
#include "pieces/pay_tables.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/marks.hpp"
#include "toolkit/screens.hpp"
#include "videopoker/game.hpp"
#include "videopoker/rules.hpp"

namespace tombolario::videopoker {

namespace {

constexpr Colour kFirstGroup = 0x0000C0;
constexpr Colour kSecondGroup = 0x8080FF;

constexpr Colour colourOf(Group group) {
  switch (group) {
    case Group::First: return kFirstGroup;
    case Group::Second: return kSecondGroup;
    case Group::None: break;
  }
  return kAtRest;
}

// clang-format off
/// What a run of hands has brought; from here it goes on or is saved.
struct Summary : Frame {
  explicit Summary(Control& parent) : Frame(parent, "Framecen", {1560, 2880, 9015, 3495},
                                            {.back = 0xC0C0C0, .border = Border::Etched, .visible = false}) {}

  Button Command4{*this, "Command4", {1800, 840, 2535, 735}, "", buttonLook(kRed, pictures::CONTPOK1)};
  Button Command7{*this, "Command7", {4680, 840, 2535, 735}, "", buttonLook(kWhite, pictures::SALVPOK1)};
  Label Label7{*this, "Label7", {2760, 2400, 1575, 375}, " Punteggio",
               stripLook(kYellow, kBlue, Align::Left)};
  Label Label5{*this, "Label5", {4320, 2400, 1935, 375}, "", stripLook(kYellow, kBlue)};
  Label Label8{*this, "Label8", {2760, 2760, 1575, 375}, " Saldo", stripLook(kRed, 0xFFFF80, Align::Left)};
  Label Label6{*this, "Label6", {4320, 2760, 1935, 375}, "", stripLook(kRed, 0xFFFF80)};
};

struct MenuScreen : Frame {
  explicit MenuScreen(Form& form) : Frame(form, "Frame3", kFullSize, screenLook(SystemColour::ToolTip, "Videopoker")) {}

  Label LVIDPOK{*this, "LVIDPOK", {-120, 0, 12120, 375}, "VIDEOPOKER", stripLook(kYellow, kBlue)};
  Button Command8{*this, "Command8", {3840, 960, 4260, 495}, "NUOVA PARTITA", buttonLook(0xFFFF00)};
  Button Command9{*this, "Command9", {3840, 1440, 4260, 495}, "CARICA PARTITA", buttonLook(0x00FF00)};
  Button MENUVP{*this, "MENUVP", {3840, 1920, 4260, 495}, "MENU'", buttonLook(0xFF8080)};
  PictureBox striscie{*this, "striscie", {2760, 3120, 6510, 2970},
                      {.back = kBlack, .border = Border::Single, .picture = pictures::striscie}};
  Line Line1{*this, "Line1", {2760, 2970, 6510, 60}, kBlue};
  Line Line2{*this, "Line2", {2760, 6180, 6510, 60}, kBlue};
  Summary Framecen{*this};
};

/// A card of the hand, on the ground that shows its mark or its group.
struct CardFrame : Frame {
  CardFrame(Control& parent, int position)
      : Frame(parent, {"Frame1", position}, {1560 + 1800 * position, 840, 1815, 3375},
              {.back = kAtRest, .border = Border::Etched}) {}

  PictureBox Pict{*this, {"Pict", name().index}, {360, 840, 1080, 1415}, cardLook(true)};
  Button Command2{*this, {"Command2", name().index}, {240, 2760, 1335, 375}, "Segna", buttonLook(0xFFE0C0)};
};

struct PayTable : PictureBox {
  explicit PayTable(Control& parent)
      : PictureBox(parent, "Pictcomvidpok", {7320, 5040, 2370, 2895},
                   {.back = kRed, .border = Border::Single, .picture = pictures::Pictcomvidpok}) {}

  ControlArray<PictureBox, 0, kFive> segn{[this](int k) {
    const PictureId row(pictures::segn, k);
    const auto [width, height] = row.size();
    return PictureBox{*this, {"segn", k},
                      {0, kPayTable[k].top, width * kTwipsPerPixel, height * kTwipsPerPixel},
                      {.picture = row, .visible = false}}; }};
};

struct TableScreen : Frame {
  explicit TableScreen(Form& form) : Frame(form, "Frame3BIS", kFullSize, screenLook(SystemColour::Window, "Videopoker, il tavolo")) {}

  ControlArray<CardFrame, 0, kHandSize - 1> Frame1{[this](int i) { return CardFrame{*this, i}; }};
  ControlArray<PictureBox, kHandSize, kSlots - 1> replacements{[this](int slot) {
    return PictureBox{*this, {"Pict", slot}, {1920 + 1800 * (slot - kHandSize), 1680, 1080, 1415},
                      cardLook(false)}; }};
  Button Command1{*this, "Command1", {1680, 5280, 2535, 615}, "NUOVA MANO", buttonLook(0xFF8000)};
  Button Command3{*this, "Command3", {1680, 5880, 2535, 615}, "CAMBIA CARTE", buttonLook(0xFFFF80)};
  Button Command5{*this, "Command5", {10200, 7440, 1335, 495}, "TERMINA", buttonLook(0xFFC0C0)};
  Label Label3{*this, "Label3", {1440, 6960, 2055, 375}, " Dotazione", stripLook(kYellow, kRed, Align::Left)};
  Label Label2{*this, "Label2", {3480, 6960, 1575, 375}, "", stripLook(kYellow, kRed)};
  Label Labcomvp{*this, "Labcomvp", {7080, 4800, 2895, 255}, "combinazioni e relativo punteggio",
                 {.back = SystemColour::Window, .font = {.bold = true}}};
  PayTable Pictcomvidpok{*this};
};
// clang-format on

class Table : public Game {
 public:
  Table(Form& form, Host& host)
      : uniform_(host.uniform()), file_(host.dataFiles(), "videopoker.dat"), menu_(form), table_(form) {
    for (CardFrame& card : table_.Frame1)
      onClick(card.Command2, [this, position = card.name().index] { game_.toggleMark(position); });
    onClick(table_.Command1, [this] { game_.newHand(uniform_); });
    onClick(table_.Command3, [this] { game_.change(); });
    onClick(table_.Command5, [this] { game_.end(); });
    onClick(summary_.Command4, [this] { game_.goOn(); });
    onClick(summary_.Command7, [this] {
      if (game_.save()) file_.write({game_.balance()});
    });
    onClick(menu_.Command8, [this] { game_.begin(uniform_); });
    onClick(menu_.Command9, [this] { game_.load(file_.read()[1], uniform_); });
  }

  Frame& entrance() override { return menu_; }
  Button& wayBack() override { return menu_.MENUVP; }
  void start() override { showTable(); }
  void leave() override {
    game_.leave();
    show();
  }

 private:
  /// Whatever a click does to the game is shown at once.
  template <class Act>
  void onClick(Button& button, Act act) {
    button.onClick = [this, act] {
      act();
      show();
    };
  }

  void show() {
    if (game_.place() == Place::Table) {
      changeScreen(menu_, table_);
    } else {
      changeScreen(table_, menu_);
    }
    showSummary();
    menu_.Command9.Enabled = game_.mayLoad();
    showTable();
  }

  /// What can be done at the table, and the hand, if there is one.
  void showTable() {
    table_.Command1.Enabled = game_.phase() == Phase::Scored && !game_.spent();
    table_.Command3.Enabled = game_.phase() == Phase::Dealt && !game_.runOver();
    for (int row = kNothing; row <= kFive; ++row)
      table_.Pictcomvidpok.segn[row].Visible = row == game_.litRow();
    if (game_.phase() != Phase::NoHand) showHand();
  }

  /// Its numbers stay when it goes out of sight.
  void showSummary() {
    const bool open = game_.isOpen();
    summary_.Command4.Enabled = open;
    summary_.Command4.Picture = open ? pictures::CONTPOK1 : pictures::CONTPOK2;
    summary_.Command7.Enabled = open;
    summary_.Command7.Picture = open ? pictures::SALVPOK1 : pictures::SALVPOK2;
    summary_.Visible = game_.place() == Place::Summary;
    if (!summary_.Visible) return;
    summary_.Label5.Caption = game_.balance();
    summary_.Label6.Caption = game_.gain();
  }

  void showHand() {
    for (CardFrame& card : table_.Frame1) {
      const int position = card.name().index;
      card.BackColor = game_.isMarked(position) ? kMarked : colourOf(game_.group(position));
      card.Pict.Picture = {pictures::Picture1, game_.card(position)};
      card.Command2.Visible = game_.phase() == Phase::Dealt;
      giveCursor(pictures::Label13, {&card.Command2});
    }
    for (PictureBox& card : table_.replacements)
      card.Picture = {pictures::Picture1, game_.card(card.name().index)};
    // What a hand has paid is seen at the next deal, unless nothing is left for one.
    if (game_.phase() == Phase::Dealt || game_.spent()) table_.Label2.Caption = game_.balance();
  }

  UniformSource& uniform_;
  RecordFile<1> file_;  // the balance alone is stored
  MenuScreen menu_;
  Summary& summary_ = menu_.Framecen;
  TableScreen table_;
  VideoPoker game_;
};

}  // namespace

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::videopoker
