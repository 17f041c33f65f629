#include <memory>
#include <string>

#include "chain/game.hpp"
#include "chain/rules.hpp"
#include "host/record_file.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/screens.hpp"

namespace tombolario::chain {

namespace {

constexpr Colour kNoSubstitution = SystemColour::ActiveBorder;
constexpr Colour kSubstituted = 0xFFFF80;
constexpr Colour kNoExchange = kBlack;
constexpr Colour kExchanged = kRed;
constexpr Colour kOrange = 0xFF8000;

constexpr Colour kUnarmed = SystemColour::ToolTip;
constexpr Colour kArmed = kYellow;

constexpr const char* kSubstitution = "SOSTITUZIONE";

constexpr Look hidden(Look look) {
  look.visible = false;
  return look;
}

// clang-format off
struct Modes : Frame {
  explicit Modes(Control& parent)
      : Frame(parent, "framescelta", {960, 1800, 4455, 1935},
                                          {.border = Border::Etched, .about = "scambi e sostituzioni"}) {}

  OptionButton Optca1{*this, "Optca1", {360, 420, 3975, 375}, "1 SCAMBIO - 2 SOSTITUZIONI", true,
                      optionLook()};
  OptionButton Optca2{*this, "Optca2", {360, 1020, 3975, 375}, "2 SCAMBI - 1 SOSTITUZIONE", false,
                      optionLook()};
};

/// What the last level has come to.
struct LevelResult : Frame {
  explicit LevelResult(Control& parent)
      : Frame(parent, "Framevis", {960, 3600, 4455, 1575}, {.border = Border::Etched}) {}

  Label Label16ca{*this, "Label16ca", {240, 210, 2295, 375}, " PUNTEGGIO",
                  stripLook(kYellow, kBlue, Align::Left)};
  Label Label3ca{*this, "Label3ca", {2535, 210, 1680, 375}, "", stripLook(kYellow, kBlue)};
  Label Label11ca{*this, "Label11ca", {240, 600, 2295, 375}, " LIVELLO",
                  stripLook(kWhite, kRed, Align::Left)};
  Label Label10ca{*this, "Label10ca", {2535, 600, 1680, 375}, "", stripLook(kWhite, kRed)};
  Label Label13ca{*this, "Label13ca", {240, 990, 2295, 375}, " EN PLEIN",
                  hidden(stripLook(kWhite, kOrange, Align::Left))};
  Label Label14ca{*this, "Label14ca", {2535, 990, 1680, 375}, "", hidden(stripLook(kWhite, kOrange))};
};

struct Menu : Frame {
  explicit Menu(Form& form) : Frame(form, "Frame4", kFullSize, screenLook(0xFFFF80, "Domino/poker")) {}

  Label LCATENA{*this, "LCATENA", kTitleBar, "MISTO DOMINO/POKER", stripLook(kYellow, kBlue)};
  Modes framescelta{*this};
  LevelResult Framevis{*this};
  TextBox Text1{*this, "Text1", {1080, 6480, 4215, 1095},
                "In questo gioco, tramite sostituzioni e scambi di \n"
                "pedine simildomino, si deve formare una catena \n"
                "con queste pedine correlate tra loro come nel \n"
                "domino. Ogni legame vale 1 punto.\n",
                {.back = SystemColour::Window, .font = {.points = 9}, .align = Align::Left}};
  Button INICAT{*this, "INICAT", {6600, 1560, 3975, 855}, "", buttonLook(kRed, pictures::INICAT)};
  Button CoNTCAT{*this, "CoNTCAT", {6600, 2400, 3975, 855}, "", buttonLook(kRed, pictures::CoNTCAT)};
  Button CARCAT{*this, "CARCAT", {6600, 3240, 3975, 855}, "", buttonLook(kRed, pictures::CARCAT)};
  Button SALVACAT{*this, "SALVACAT", {6600, 4080, 3975, 855}, "", buttonLook(kRed, pictures::SALVACAT)};
  Button menucat{*this, "menucat", {6600, 4920, 3975, 495}, "MENU'", buttonLook(0xFF8080)};
};

struct LevelScore : Frame {
  explicit LevelScore(Control& parent)
      : Frame(parent, "Framevis2", {7320, 5760, 4335, 1815}, {.border = Border::Etched}) {}

  Label Lok{*this, "Lok", {120, 120, 4095, 375}, "OK", hidden(stripLook(kWhite, kOrange))};
  Label Lpunca{*this, "Lpunca", {120, 540, 2655, 375}, " PUNTEGGIO", stripLook(kYellow, kBlue, Align::Left)};
  Label Lpuca{*this, "Lpuca", {2775, 540, 1440, 375}, "", stripLook(kYellow, kBlue)};
  Label Lmanca{*this, "Lmanca", {120, 930, 2655, 375}, " MANI DA GIOCARE",
               stripLook(kBlack, kYellow, Align::Left)};
  Label Lmacatpu{*this, "Lmacatpu", {2775, 930, 1440, 375}, "", stripLook(kBlack, kYellow)};
  Label Llivca{*this, "Llivca", {120, 1320, 2655, 375}, " LIVELLO", stripLook(kWhite, kRed, Align::Left)};
  Label Llivpuca{*this, "Llivpuca", {2775, 1320, 1440, 375}, "", stripLook(kWhite, kRed)};
};

struct Row : Frame {
  explicit Row(Form& form) : Frame(form, "Frame4BIS", kFullSize, screenLook(0xE0E0E0, "Domino/poker, il tavolo")) {}

  ControlArray<Shape, 1, kRow> Sh{[this](int i) {
    return Shape{*this, {"Sh", i}, {leftOf(i) - 360, 2280, 2175, 2775}, 5,
                 {.back = kNoSubstitution, .fore = kNoExchange}}; }};
  // 0 and 8 are never used, 6 and 7 the reserve.
  ControlArray<Image, 0, 8> pictca{[this](int i) {
    const bool onTable = i >= 1 && i <= kRow;
    return Image{*this, {"pictca", i}, {onTable ? leftOf(i) : leftOf(1), 2760, 1380, 780},
                 {pictures::pictca, i}, onTable}; }};
  ControlArray<Button, 1, kRow> Comscam{[this](int i) {
    return Button{*this, {"Comscam", i}, {leftOf(i) - 120, 1800, 1620, 375}, "SCAMBIO",
                  buttonLook(0xFFC0C0)}; }};
  ControlArray<Button, 1, kRow> Comsost{[this](int i) {
    return Button{*this, {"Comsost", i}, {leftOf(i) - 120, 4200, i == 1 ? 1665 : 1620, 495}, kSubstitution,
                  buttonLook(0xFFFF80)}; }};
  Button SCAMBIA{*this, "SCAMBIA", {3000, 960, 6135, 495}, "", buttonLook(0xC0C0C0, pictures::SC1)};
  Label SCALABELCAT{*this, "SCALABELCAT", {9240, 960, 855, 495}, "", saying("scambi fatti", hidden(stripLook(kBlue, kYellow)))};
  Button SOSTITCAT{*this, "SOSTITCAT", {480, 5400, 2535, 615}, kSubstitution, buttonLook(kUnarmed)};
  Button nmcat{*this, "nmcat", {480, 6600, 2295, 495}, "NUOVA MANO", buttonLook(kOrange)};
  Button FINECA{*this, "FINECA", {480, 7080, 2295, 495}, "", buttonLook(kRed, pictures::FINECA)};
  LevelScore Framevis2{*this};
  // The links of the row, for nobody to see.
  Label Lll1{*this, "Lll1", {480, 6120, 495, 255}, "", {.visible = false}};

  static constexpr int leftOf(int position) { return 840 + 2280 * (position - 1); }
};
// clang-format on

class Table : public Game {
 public:
  Table(Form& form, Host& host)
      : uniform_(host.uniform()), file_(host.dataFiles(), "CATENA.dat"), menu_(form), row_(form) {
    menu_.INICAT.onClick = [this] {
      game_.begin(uniform_);
      openRow();
    };
    menu_.CoNTCAT.onClick = [this] {
      game_.nextLevel(uniform_);
      openRow();
    };
    menu_.CARCAT.onClick = [this] {
      const auto [score, level] = file_.read().items;
      game_.resume(score, level);
      showMenu();
    };
    menu_.SALVACAT.onClick = [this] {
      if (game_.mayStore()) file_.write({game_.score(), game_.level()});
    };
    for (int i = 1; i <= kRow; ++i) {
      row_.Comsost[i].onClick = [this, i] {
        game_.markSubstitution(i, mode());
        showHand();
      };
      row_.Comscam[i].onClick = [this, i] {
        game_.markExchange(i, mode());
        showHand();
      };
    }
    row_.SOSTITCAT.onClick = [this] {
      game_.substitute();
      showHand();
    };
    row_.SCAMBIA.onClick = [this] {
      game_.exchange();
      showHand();
    };
    row_.nmcat.onClick = [this] {
      game_.endHand(uniform_);
      showLevel();
      showHand();
      if (game_.phase() != Phase::InLevel) closeRow();
    };
    row_.FINECA.onClick = [this] {
      game_.giveUp(uniform_);
      showHand();
      closeRow();
    };
  }

  Frame& entrance() override { return menu_; }
  Button& wayBack() override { return menu_.menucat; }
  /// No hand is dealt.
  void start() override { showMenu(); }
  /// The way to the main menu closes the way on.
  void leave() override {
    game_.leave();
    showMenu();
  }

 private:
  Mode mode() const { return menu_.framescelta.Optca1.Value == 1 ? Mode::OneExchange : Mode::TwoExchanges; }

  /// The row at the start of a level.
  void openRow() {
    showLevel();
    showHand();
    showMenu();
    changeScreen(menu_, row_);
  }

  /// The level is over, or given up.
  void closeRow() {
    showMenu();
    changeScreen(row_, menu_);
  }

  /// The ways on, and what the last level has come to; what was told before stays as long as one is played.
  /// What is given up is no game to store, and has no row of full chains.
  void showMenu() {
    menu_.CoNTCAT.Enabled = game_.phase() == Phase::LevelPassed;
    menu_.SALVACAT.Enabled = game_.mayStore();
    menu_.CARCAT.Enabled = game_.mayResume();
    LevelResult& result = menu_.Framevis;
    result.Label13ca.Visible = result.Label14ca.Visible = game_.hasLevel();
    if (game_.phase() == Phase::InLevel) return;
    result.Label3ca.Caption = game_.score();
    result.Label10ca.Caption = game_.level();
    if (game_.hasLevel()) result.Label14ca.Caption = game_.fullChains();
  }

  void showLevel() {
    row_.nmcat.Enabled = game_.phase() == Phase::InLevel;
    row_.Framevis2.Lpuca.Caption = game_.score();
    row_.Framevis2.Lmacatpu.Caption = game_.handsLeft();
    row_.Framevis2.Llivpuca.Caption = game_.level();
  }

  void showHand() {
    for (int i = 1; i <= kDrawn; ++i) row_.pictca[i].Picture = {pictures::Picture2, game_.tile(i)};
    const bool exchangesLeft = game_.exchangesLeft(mode());
    for (int i = 1; i <= kRow; ++i) {
      giveCursor(pictures::Label13, {&row_.Comsost[i], &row_.Comscam[i]});
      row_.Comsost[i].Enabled = !game_.substituted();
      row_.Comscam[i].Enabled = exchangesLeft;
      row_.Sh[i].FillColor = game_.isToSubstitute(i) ? kSubstituted : kNoSubstitution;
      row_.Sh[i].BorderColor = game_.isToExchange(i) ? kExchanged : kNoExchange;
    }
    row_.SOSTITCAT.Enabled = !game_.substituted();
    row_.SOSTITCAT.BackColor = game_.nsostcat() > 0 ? kArmed : kUnarmed;
    row_.SCALABELCAT.Visible = mode() == Mode::TwoExchanges;
    row_.SCALABELCAT.Caption = game_.exchanges();
    row_.SCAMBIA.Visible = exchangesLeft;
    row_.Lll1.Caption = game_.links();
    row_.Framevis2.Lok.Visible = game_.links() == kFullChain;
    // What is done keeps its look until the next hand: the button of the substitution its number, that of the
    // exchange, out of sight, its face.
    if (!game_.substituted()) row_.SOSTITCAT.Caption = substitution();
    if (exchangesLeft) row_.SCAMBIA.Picture = game_.canExchange() ? pictures::SC2 : pictures::SC1;
  }

  /// With two tiles to a substitution the button tells how many are marked.
  std::string substitution() const {
    const bool tells = mode() == Mode::OneExchange && game_.nsostcat() > 0;
    return tells ? kSubstitution + std::to_string(game_.nsostcat()) : kSubstitution;
  }

  UniformSource& uniform_;
  RecordFile<2> file_;  // the score and the level
  Menu menu_;
  Row row_;
  Chain game_;
};

}  // namespace

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::chain
