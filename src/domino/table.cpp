#include <algorithm>
#include <cstdint>
#include <memory>

#include "domino/game.hpp"
#include "domino/rules.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/screens.hpp"
#include "toolkit/scroll_bar.hpp"

namespace tombolario::domino {

namespace {

/// A tile tells its numbers by the size of its box too: the first by the width, the second by the height.
constexpr Numbers<0, kNumbers - 1> kWidths =
    slots<0, std::int16_t>({1380, 1370, 1375, 1385, 1390, 1383, 1377});
constexpr Numbers<0, kNumbers - 1> kHeights = slots<0, std::int16_t>({780, 779, 781, 778, 782, 777, 783});

/// The slot after all faces holds the blank tile.
constexpr int kBlankSlot = kFaces;

constexpr Colour kTable = 0x00C0C0;
constexpr Colour kNothing = 0x808080;
constexpr Colour kIdle = SystemColour::ToolTip;
constexpr Colour kToLay = kYellow;
constexpr Colour kMatchGoesOn = 0xFFFF80;
constexpr Colour kMatchOver = kRed;

PictureId blank() { return {pictures::domin, kBlankSlot}; }

Look tileLook(bool visible, const PictureId& picture = {}) {
  return {.back = kWhite, .border = Border::Single, .picture = picture, .visible = visible};
}

Colour colourOf(Signal signal, End end) {
  switch (signal) {
    case Signal::Nothing: break;
    case Signal::LaidLeft: return end == End::Left ? kYellow : kNothing;
    case Signal::LaidRight: return end == End::Right ? kYellow : kNothing;
    case Signal::ComputerPassed: return kRed;
    case Signal::NoTileFits: return 0xFF8000;
  }
  return kNothing;
}

const char* wordOf(Result result) {
  switch (result) {
    case Result::None: break;
    case Result::Won: return "HAI VINTO";
    case Result::Lost: return "HAI PERSO";
    case Result::Drawn: return "UN PARI";
  }
  return "";
}

// clang-format off
struct ScoringOptions : Frame {
  explicit ScoringOptions(Control& parent)
      : Frame(parent, "pundom", {2400, 1560, 3375, 2895}, groupLook(), "PUNTEGGIO") {}

  OptionButton Opdom1{*this, "Opdom1", {480, 960, 2415, 375}, "Per partita", true, optionLook()};
  OptionButton Opdom2{*this, "Opdom2", {480, 1560, 2415, 375}, "Per pedina", false, optionLook()};
};

struct LevelOptions : Frame {
  explicit LevelOptions(Control& parent)
      : Frame(parent, "difdom", {6240, 1560, 3375, 2895}, groupLook(), "LIVELLO DI DIFFICOLTA'") {}

  OptionButton Opdom3{*this, "Opdom3", {480, 960, 2415, 375}, "Principiante", false, optionLook()};
  OptionButton Opdom4{*this, "Opdom4", {480, 1560, 2415, 375}, "Esperto", true, optionLook()};
};

struct OptionScreen : Frame {
  explicit OptionScreen(Form& form) : Frame(form, "FRAME5", kFullSize, screenLook(kGreen, "Domino, le opzioni")) {}

  Label DOMETIC{*this, "DOMETIC", kTitleBar, "DOMINO", stripLook(kYellow, kBlue)};
  Label domgi{*this, "domgi", {0, 375, 12120, 375}, "OPZIONI DI GIOCO", stripLook(kWhite, kRed)};
  ScoringOptions pundom{*this};
  LevelOptions difdom{*this};
  Button MENUDOM{*this, "MENUDOM", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button giocodom{*this, "giocodom", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};
};

/// The tiles in both hands by number, a row for each.
struct CountPanel : Frame {
  explicit CountPanel(Control& parent)
      : Frame(parent, "bandom", {240, 2520, 2295, 2295}, {.border = Border::Etched}) {}

  Image spagnadom{*this, "spagnadom", placeOfFlag(0), pictures::spagnadom};
  Image brasiledom{*this, "brasiledom", placeOfFlag(1), pictures::brasiledom};
  Image giapponedom{*this, "giapponedom", placeOfFlag(2), pictures::giapponedom};
  Image usadom{*this, "usadom", placeOfFlag(3), pictures::usadom};
  Image sveziadom{*this, "sveziadom", placeOfFlag(4), pictures::sveziadom};
  Image portogallodom{*this, "portogallodom", placeOfFlag(5), pictures::portogallodom};
  Image danimarcadom{*this, "danimarcadom", placeOfFlag(6), pictures::danimarcadom};
  // The player's counters, then the computer's.
  ControlArray<Label, 0, 2 * kNumbers - 1> peddom{[this](int n) {
    return Label{*this, {"peddom", n}, {n < kNumbers ? 720 : 1320, 240 + 240 * (n % kNumbers), 615, 255}, "",
                 {.back = kWhite, .font = {.bold = true}, .border = Border::Single,
                  .about = n < kNumbers ? "HUMAN" : "COMPUTER"}}; }};

  static constexpr Box placeOfFlag(int number) { return {240, 270 + 240 * number, 330, 210}; }
};

struct ScoreBoard : PictureBox {
  explicit ScoreBoard(Control& parent)
      : PictureBox(parent, "tabdom", {4320, 360, 3435, 1215},
                   {.back = kWhite, .picture = pictures::tabdom}) {}

  Label domcont2{*this, "domcont2", {1515, 315, 945, 435}, "", saying("PEDINE, COMPUTER", cellLook(kWhite, kRed))};
  Label domcont1{*this, "domcont1", {1515, 765, 945, 435}, "", saying("PEDINE, HUMAN", cellLook(kWhite, kRed))};
  Label scoredom2{*this, "scoredom2", {2475, 315, 945, 435}, "", saying("SCORE, COMPUTER", cellLook(kYellow, kBlue))};
  Label scoredom1{*this, "scoredom1", {2475, 765, 945, 435}, "", saying("SCORE, HUMAN", cellLook(kYellow, kBlue))};

  static constexpr Look cellLook(Colour fore, Colour back) {
    return {.back = back, .fore = fore, .font = kButtonFont};
  }
};

struct TableScreen : Frame {
  explicit TableScreen(Form& form) : Frame(form, "Frame5BIS", kFullSize, screenLook(kTable, "Domino, il tavolo")) {}

  Shape lecen{*this, "lecen", {4920, 2520, 2055, 2295}, 5, {.back = kTable, .fore = kNothing}};
  Shape lesx{*this, "lesx", {2880, 2520, 2055, 2295}, 5, {.back = kTable, .fore = kNothing}};
  Shape ledx{*this, "ledx", {6960, 2520, 2055, 2295}, 5, {.back = kTable, .fore = kNothing}};
  PictureBox wwwdom2{*this, "wwwdom2", {3240, 2880, 1380, 780},
                     saying("capo sinistro", tileLook(true, blank()))};
  PictureBox wwwdom{*this, "wwwdom", {7320, 2880, 1380, 780},
                    saying("capo destro", tileLook(true, blank()))};
  // The line: the tiles lie on each other, and the bar chooses the one that is seen.
  ControlArray<PictureBox, 0, kBoxes - 1> VISUAL{[this](int box) {
    return PictureBox{*this, {"VISUAL", box}, {5280, 2880, 1380, 780},
                      saying("in mezzo", tileLook(false))}; }};
  ScrollBar HScrolldom{*this, "HScrolldom", {5040, 3960, 1815, 375}, ScrollBar::Direction::Horizontal,
                       "tessere della fila"};
  // By slot; none but the player's are ever seen.
  ControlArray<PictureBox, 0, kBlankSlot> domin{[this](int slot) {
    const bool player = slot >= kFirstOfPlayer && slot <= kLastOfPlayer;
    const Point place = player ? placeInHand(slot) : Point{5280, 2880};
    return PictureBox{*this, {"domin", slot}, {place.x, place.y, 1380, 780},
                      tileLook(player, slot == kBlankSlot ? blank() : PictureId())}; }};
  ControlArray<Button, kFirstOfPlayer, kLastOfPlayer> LEF{[this](int slot) {
    const Point place = placeInHand(slot) + Point{240, 840};
    return Button{*this, {"LEF", slot}, {place.x, place.y, 495, 315}, "sx", buttonLook(kIdle)}; }};
  ControlArray<Button, kFirstOfPlayer, kLastOfPlayer> RIGHT{[this](int slot) {
    const Point place = placeInHand(slot) + Point{720, 840};
    return Button{*this, {"RIGHT", slot}, {place.x, place.y, 495, 315}, "dx", buttonLook(kIdle)}; }};
  CountPanel bandom{*this};
  ScoreBoard tabdom{*this};
  Button NUOVAPARDOM{*this, "NUOVAPARDOM", {9480, 2640, 2295, 495}, "",
                     {.back = kYellow, .fore = kRed, .font = kTitleFont, .visible = false}};
  Button FINEDOM{*this, "FINEDOM", {9480, 3120, 2295, 495}, "FINE", buttonLook(kMatchGoesOn)};
  Button passadomban{*this, "passadomban", {9480, 3600, 2295, 495}, "",
                     buttonLook(kYellow, pictures::passadomban)};
  Button Commdomban{*this, "Commdomban", {9480, 4080, 2295, 495}, "", buttonLook(kRed, pictures::Commdomban)};

  static constexpr Point placeInHand(int slot) {
    return {240 + 1680 * ((slot - 1) % 7), slot <= 7 ? 5520 : 6960};
  }
};
// clang-format on

class Table : public Game {
 public:
  Table(Form& form, Host& host) : uniform_(host.uniform()), options_(form), screen_(form) {
    for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
      giveCursor(pictures::Label13, {&screen_.LEF[slot], &screen_.RIGHT[slot]});
      screen_.LEF[slot].onClick = [this, slot] { lay(slot, End::Left); };
      screen_.RIGHT[slot].onClick = [this, slot] { lay(slot, End::Right); };
    }
    screen_.HScrolldom.onChange = [this] { showMiddle(); };
    screen_.passadomban.onClick = [this] {
      game_.pass();
      show();
    };
    screen_.Commdomban.onClick = [this] {
      game_.computerTurn(level());
      show();
      showHands();
    };
    screen_.NUOVAPARDOM.onClick = [this] {
      game_.next(counting(), uniform_);
      showDeal();
      showHands();
    };
    screen_.FINEDOM.onClick = [this] { FINEDOM_Click(); };
    options_.giocodom.onClick = [this] { giocodom_Click(); };
  }

  Frame& entrance() override { return options_; }
  Button& wayBack() override { return options_.MENUDOM; }
  void start() override { inizioDOMINO(); }

 private:
  /// Deals a game for a match that is still to begin; until then the counters and the buttons of the tiles
  /// stay those of the game before.
  void inizioDOMINO() {
    game_.inizioDOMINO(uniform_);
    showDeal();
  }

  /// "GIOCO": a match, with the game that has been dealt.
  void giocodom_Click() {
    changeScreen(options_, screen_);
    game_.begin();
    showScore();
    showHands();
  }

  /// "FINE": the game is dropped, and the first one of another match dealt.
  void FINEDOM_Click() {
    changeScreen(screen_, options_);
    inizioDOMINO();
  }

  /// "sx" and "dx".
  void lay(int slot, End end) {
    game_.lay(slot, end);
    show();
    showHands();
  }

  /// What stays as it is from one deal to the next: the faces as they were dealt, and the score, which tells
  /// of a game only now.
  void showDeal() {
    for (int slot = 0; slot < kFaces; ++slot) {
      PictureBox& box = screen_.domin[slot];
      const int face = game_.dealt(slot);
      box.Picture = {pictures::dominob, face};
      box.Width = kWidths[kFaceNumbers[face].first];
      box.Height = kHeights[kFaceNumbers[face].second];
    }
    showScore();
    show();
  }

  /// The line, the player's tiles, whose turn it is, and how the game has ended.
  void show() {
    const Phase phase = game_.phase();
    const bool over = phase == Phase::GameOver || phase == Phase::MatchOver;
    showLine();
    for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
      screen_.domin[slot].Picture = {pictures::dominob, game_.shown(slot)};
      screen_.domin[slot].Visible = game_.inHand(slot);
      for (Button* button : {&screen_.LEF[slot], &screen_.RIGHT[slot]})
        button->BackColor = phase == Phase::PlayerToLay ? kToLay : kIdle;
    }
    screen_.Commdomban.Enabled = phase == Phase::ComputerToMove;
    screen_.passadomban.Enabled = phase == Phase::PlayerStuck;
    screen_.NUOVAPARDOM.Caption = wordOf(game_.result());
    screen_.NUOVAPARDOM.Visible = over;
    screen_.FINEDOM.BackColor = phase == Phase::MatchOver ? kMatchOver : kMatchGoesOn;
  }

  /// The ends of the line have viewers of their own, blank until a tile has been laid there. The bar reaches
  /// the tiles between them, and the opening one. Boxes beyond the ends keep what they showed.
  void showLine() {
    const int first = game_.primodom();
    const int last = game_.ultimodom();
    const auto pictureIn = [this](int box) { return PictureId(pictures::dominob, game_.faceIn(box)); };
    screen_.HScrolldom.Min = std::min(first + 1, kOpeningBox);
    screen_.HScrolldom.Max = std::max(last - 1, kOpeningBox);
    for (int box = first; box <= last; ++box) screen_.VISUAL[box].Picture = pictureIn(box);
    screen_.wwwdom2.Picture = first < kOpeningBox ? pictureIn(first) : blank();
    screen_.wwwdom.Picture = last > kOpeningBox ? pictureIn(last) : blank();
    screen_.lesx.BorderColor = colourOf(game_.signal(), End::Left);
    screen_.ledx.BorderColor = colourOf(game_.signal(), End::Right);
    for (int number = 0; number < kNumbers; ++number) {
      const bool open = game_.open().areOf(number);
      Label& count = screen_.bandom.peddom[number];
      count.BackColor = open ? kRed : kWhite;
      count.ForeColor = open ? kWhite : kBlack;
    }
  }

  /// The tile that the bar points at is the one that is seen.
  void showMiddle() {
    for (int box = 0; box < kBoxes; ++box) screen_.VISUAL[box].Visible = box == screen_.HScrolldom.Value;
  }

  /// What each side holds, and the buttons of the player's tiles.
  void showHands() {
    const auto players = game_.contadom(Side::Player);
    const auto computers = game_.contadom(Side::Computer);
    for (int number = 0; number < kNumbers; ++number) {
      screen_.bandom.peddom[number].Caption = players[number];
      screen_.bandom.peddom[number + kNumbers].Caption = computers[number];
    }
    screen_.tabdom.domcont1.Caption = game_.tilesLeft(Side::Player);
    screen_.tabdom.domcont2.Caption = game_.tilesLeft(Side::Computer);
    for (int slot = kFirstOfPlayer; slot <= kLastOfPlayer; ++slot) {
      screen_.LEF[slot].Visible = game_.inHand(slot);
      screen_.RIGHT[slot].Visible = game_.inHand(slot);
    }
  }

  void showScore() {
    const auto [player, computer] = game_.score(counting());
    screen_.tabdom.scoredom1.Caption = player;
    screen_.tabdom.scoredom2.Caption = computer;
  }

  Counting counting() const {
    return options_.pundom.Opdom1.Value == 1 ? Counting::ByGame : Counting::ByTile;
  }
  Level level() const { return options_.difdom.Opdom4.Value == 1 ? Level::Expert : Level::Beginner; }

  UniformSource& uniform_;
  OptionScreen options_;
  TableScreen screen_;
  Domino game_;
};

}  // namespace

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::domino
