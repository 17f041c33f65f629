#include <algorithm>
#include <memory>

#include "pictures/catalogue.hpp"
#include "ramino/game.hpp"
#include "ramino/rules.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/marks.hpp"
#include "toolkit/screens.hpp"
#include "toolkit/scroll_bar.hpp"

namespace tombolario::ramino {

namespace {

/// Lies about a card that the player has drawn.
constexpr Look takenLook() { return {.back = 0xFFFFC0, .border = Border::Etched, .visible = false}; }
/// Bears cards of the computer's.
constexpr Look shownLook() { return {.back = 0xC0C0C0, .border = Border::Etched, .visible = false}; }

PictureId picture(int card) { return {pictures::ramcar, card}; }

Colour colourOf(FrameState frame) {
  switch (frame) {
    case FrameState::Free: break;
    case FrameState::Selected: return kMarked;
    case FrameState::Locked: return kYellow;
  }
  return kAtRest;
}

// clang-format off
struct Levels : Frame {
  explicit Levels(Control& parent)
      : Frame(parent, "rancentrale", {4320, 3480, 3375, 1455}, groupLook(), "DIFFICOLTA'") {}

  OptionButton Opram1{*this, "Opram1", {480, 360, 2415, 375}, "principante", false, optionLook()};
  OptionButton Opram2{*this, "Opram2", {480, 840, 2415, 375}, "esperto", true, optionLook()};
};

struct Entrance : Frame {
  explicit Entrance(Form& form) : Frame(form, "frame6", kFullSize, screenLook(kRed, "Ramino, le opzioni")) {}

  Label ramETIC{*this, "ramETIC", kTitleBar, "RAMINO", stripLook(kYellow, kBlue)};
  PictureBox Picram{*this, "Picram", {2490, 1020, 7020, 2130},
                    {.back = 0xC0C0C0, .picture = pictures::Picram}};
  Levels rancentrale{*this};
  Button MENURAM{*this, "MENURAM", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button GIOCORAM{*this, "GIOCORAM", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};
};

/// Lies about the card in play where that is from the stock.
struct DrawnCard : Frame {
  explicit DrawnCard(Control& parent)
      : Frame(parent, {"Ramfr", kInPlay}, {240, 240, 1095, 1560}, takenLook()) {}

  PictureBox ramin{*this, {"ramin", kInPlay}, {240, 360, 630, 915},
                   saying("carta presa", cardLook(true, kWhite))};
};

struct Piles : Frame {
  explicit Piles(Control& parent)
      : Frame(parent, "Rancarte", {4680, 2160, 2655, 3255}, {.back = 0xC0FFFF, .border = Border::Etched}) {}

  PictureBox PicRAM3{*this, "PicRAM3", {480, 600, 600, 885}, {.back = kYellow, .picture = pictures::PicRAM3}};
  Frame Frame19b{*this, "Frame19b", {1320, 240, 1095, 1560}, takenLook()};
  PictureBox cartatr{*this, "cartatr", {1560, 600, 630, 915},
                     saying("carta del tavolo", cardLook(true, kWhite))};
  Button mazzoram{*this, "mazzoram", {120, 1800, 1215, 375}, "MAZZO", buttonLook(kYellow)};
  Button tavoloram{*this, "tavoloram", {1320, 1800, 1215, 375}, "TAVOLO", buttonLook(0x80FF80)};
  DrawnCard Ramfr{*this};
};

/// One of the player's nine.
struct PlayerCard : Frame {
  PlayerCard(Control& parent, int k)
      : Frame(parent, {"Ramfr", k}, {1080 + 1080 * k, 5880, 1095, 2295},
              {.back = kAtRest, .border = Border::Etched}) {}

  PictureBox ramin{*this, {"ramin", name().index}, {240, 480, 630, 915}, cardLook(true, kWhite)};
  Button ramCom{*this, {"ramCom", name().index}, {120, 1680, 855, 375}, "",
                buttonLook(kRed, pictures::rampul1)};
};

struct Discards : Frame {
  explicit Discards(Control& parent)
      : Frame(parent, "ramscar", {1680, 2160, 1815, 3255}, {.back = 0xC0FFFF, .border = Border::Etched}) {}

  Label Lscarram{*this, "Lscarram", {180, 420, 990, 255}, "Scarti", {.back = 0xC0FFFF, .font = kButtonFont}};
  ControlArray<PictureBox, 0, kListPlaces - 1> visualram{[this](int i) {
    return PictureBox{*this, {"visualram", i}, {360, 1080, 630, 915},
                      saying("scarti", cardLook(false, kWhite))}; }};
  ScrollBar VScrollram1{*this, "VScrollram1", {1200, 360, 375, 2295}, ScrollBar::Direction::Vertical, "scarti"};
};

/// The computer's hand, which the player sees when it has won.
struct OpenHand : Frame {
  explicit OpenHand(Control& parent) : Frame(parent, "avvram", {2640, 0, 6975, 1695}, shownLook()) {}

  ControlArray<PictureBox, kComputerFirst, kComputerLast> ramin{[this](int position) {
    return PictureBox{*this, {"ramin", position}, {600 * (position - kComputerFirst + 1), 390, 630, 915},
                      cardLook(false, kWhite)}; }};
};

struct ConsideredCard : Frame {
  explicit ConsideredCard(Control& parent) : Frame(parent, "ramcomp", {5040, 0, 1815, 1695}, shownLook()) {}

  Label lcpram{*this, "lcpram", {120, 150, 1575, 255}, "Carta pescata",
               {.back = 0xC0C0C0, .font = kButtonFont}};
  PictureBox ramin{*this, {"ramin", kConsidered}, {600, 570, 630, 915}, cardLook(false, kWhite)};
};

struct Score : PictureBox {
  explicit Score(Control& parent)
      : PictureBox(parent, "RAMRESULT", {8400, 3480, 2475, 1215},
                   {.back = kWhite, .picture = pictures::RAMRESULT}) {}

  PictureBox rampar{*this, "rampar", kNames, {.back = kBlack, .picture = pictures::rampar, .visible = false}};
  PictureBox ramvin{*this, "ramvin", kNames, {.back = kBlack, .picture = pictures::ramvin, .visible = false}};
  PictureBox ramper{*this, "ramper", kNames, {.back = kBlack, .picture = pictures::ramper, .visible = false}};
  Label PRAMC{*this, "PRAMC", {1680, 400, 615, 255}, "",
              {.back = kTotal, .font = {.bold = true}, .about = "COMPUTER"}};
  Label PRAMH{*this, "PRAMH", {1680, 840, 615, 255}, "",
              {.back = kTotal, .font = {.bold = true}, .about = "HUMAN"}};

  static constexpr Colour kTotal = 0x0080FF;
  static constexpr Box kNames{0, 0, 1515, 1215};
};

struct Play : Frame {
  explicit Play(Form& form) : Frame(form, "Frame6bis", kFullSize, screenLook(SystemColour::Window, "Ramino, il tavolo")) {}

  Piles Rancarte{*this};
  ControlArray<PlayerCard, 0, kPlayerCards - 1> Ramfr{[this](int k) { return PlayerCard{*this, k}; }};
  Discards ramscar{*this};
  OpenHand avvram{*this};
  ConsideredCard ramcomp{*this};
  Button ramturncom{*this, "ramturncom", {4800, 4320, 2415, 375}, "TURNO DEL COMPUTER", buttonLook(0xFF8080)};
  Button ramlas{*this, "ramlas", {4800, 4680, 2415, 375}, "", buttonLook(kBlue, pictures::ramlas)};
  Button scambiaram{*this, "scambiaram", {10920, 6840, 735, 495}, "",
                    buttonLook(kYellow, pictures::scambiaram)};
  Button ramesc{*this, "ramesc", {8400, 2280, 2475, 495}, "ESCI", buttonLook(0xFFC0C0)};
  Button ALTRORAM{*this, "ALTRORAM", {8400, 2760, 2475, 495}, "ALTRA PARTITA", buttonLook(0x00E0E0)};
  Button Continuaramino{*this, "Continuaramino", {8400, 4920, 2475, 375}, "CONTINUA",
                        {.back = 0xFFC080, .font = kButtonFont, .visible = false}};
  Score RAMRESULT{*this};
};
// clang-format on

class Table : public Game {
 public:
  Table(Form& form, Host& host) : uniform_(host.uniform()), entrance_(form), play_(form) {
    for (PlayerCard& card : play_.Ramfr) {
      giveCursor(pictures::Label13, {&card.ramCom});
      card.ramCom.onClick = [this, k = card.name().index] {
        game_.press(k);
        show();
      };
    }
    // There is nothing to clear: the way back here deals.
    entrance_.GIOCORAM.onClick = [this] { changeScreen(entrance_, play_); };
    play_.Rancarte.mazzoram.onClick = [this] {
      game_.drawFromStock();
      show();
      showLastDiscard();
    };
    play_.Rancarte.tavoloram.onClick = [this] {
      game_.takeFromTable();
      show();
    };
    play_.ramlas.onClick = [this] {
      game_.leave();
      show();
    };
    play_.scambiaram.onClick = [this] {
      game_.swapSelected();
      show();
    };
    play_.ramturncom.onClick = [this] { ramturncom_Click(); };
    play_.ramscar.VScrollram1.onChange = [this] { showDiscards(); };
    play_.Continuaramino.onClick = [this] {
      game_.nextHand(uniform_);
      showDeal();
    };
    play_.ALTRORAM.onClick = [this] { newMatch(); };
    play_.ramesc.onClick = [this] {
      changeScreen(play_, entrance_);
      newMatch();
    };
  }

  Frame& entrance() override { return entrance_; }
  Button& wayBack() override { return entrance_.MENURAM; }
  void start() override { newMatch(); }

 private:
  Level level() const { return entrance_.rancentrale.Opram2.Value == 1 ? Level::Expert : Level::Beginner; }

  void newMatch() {
    game_.newMatch(uniform_);
    showDeal();
  }

  void showDeal() {
    play_.Rancarte.Ramfr.ramin.Picture = PictureId();
    play_.ramcomp.ramin.Visible = false;
    show();
  }

  /// "TURNO DEL COMPUTER". The card that the expert looks at is face up for the rest of the hand, though its
  /// frame is in sight only while it shows the table card.
  void ramturncom_Click() {
    const int discards = game_.discards();
    game_.computerTurn(level());
    if (level() == Level::Expert) play_.ramcomp.ramin.Visible = true;
    show();
    if (game_.discards() > discards) showLastDiscard();
  }

  void show() {
    showPlayer();
    showPiles();
    showComputer();
    showDiscards();
    showScore();
  }

  /// The buttons of the cards stay blue when the last card of the stock has ended the hand.
  void showPlayer() {
    for (PlayerCard& card : play_.Ramfr) {
      const int k = card.name().index;
      card.BackColor = colourOf(game_.frame(k));
      card.ramin.Picture = picture(game_.card(k));
      card.ramCom.Enabled = !game_.isOver();
      card.ramCom.Picture = game_.phase() == Phase::InPlay ? pictures::rampul2 : pictures::rampul1;
      card.ramCom.BackColor = game_.inPlayFrom() == Pile::None ? kRed : kBlue;
    }
    play_.scambiaram.Enabled = game_.selRam() == 2;
  }

  /// The piles, and what the phase allows to do with them.
  void showPiles() {
    Piles& piles = play_.Rancarte;
    piles.mazzoram.Enabled = piles.tavoloram.Enabled = game_.phase() == Phase::ToDraw;
    play_.ramlas.Enabled = game_.phase() == Phase::InPlay;
    play_.ramturncom.Enabled = game_.phase() == Phase::Placed;
    piles.cartatr.Picture = picture(game_.card(kTable));
    piles.Frame19b.Visible = game_.inPlayFrom() == Pile::Table;
    piles.Ramfr.Visible = game_.inPlayFrom() == Pile::Stock;
    // Out of sight, the last card in play keeps its picture until the next deal.
    if (game_.inPlayFrom() != Pile::None) piles.Ramfr.ramin.Picture = picture(game_.card(kInPlay));
  }

  /// The card that it considers, and what has won the hand: its `tris` side by side, in the order in which it
  /// made them.
  void showComputer() {
    const Marking& marking = game_.marking();
    const bool lost = game_.phase() == Phase::Lost;
    const auto laidOpen = [&](int position) { return lost && marking.segnoRam[position] == Mark::Tris; };
    play_.ramcomp.Visible = game_.tableCardShown();
    play_.ramcomp.ramin.Picture = picture(game_.card(kConsidered));
    play_.avvram.Visible = lost;
    for (PictureBox& card : play_.avvram.ramin) {
      const int position = card.name().index;
      card.Picture = picture(game_.card(position));
      card.Visible = laidOpen(position);
    }
    int left = 0;
    for (int tris = 0; tris < marking.nGrupRam; ++tris) {
      for (PictureBox& card : play_.avvram.ramin) {
        const int position = card.name().index;
        if (laidOpen(position) && marking.grupRam[position] == tris) card.Left = left += 600;
      }
    }
  }

  /// The covered card of the bar's place.
  void showDiscards() {
    Discards& list = play_.ramscar;
    list.VScrollram1.Max = std::max(0, game_.discards() - 1);
    for (PictureBox& entry : list.visualram) {
      const int place = entry.name().index;
      const bool listed = place < game_.discards();
      entry.Visible = listed && place == list.VScrollram1.Value;
      if (listed) entry.Picture = picture(game_.discard(place));
    }
  }

  /// A card that has just been covered comes into view.
  void showLastDiscard() { play_.ramscar.VScrollram1.Value = game_.discards() - 1; }

  void showScore() {
    Score& score = play_.RAMRESULT;
    score.ramvin.Visible = game_.phase() == Phase::Won;
    score.ramper.Visible = game_.phase() == Phase::Lost;
    score.rampar.Visible = game_.phase() == Phase::StockOut;
    score.PRAMC.Caption = game_.wonByComputer();
    score.PRAMH.Caption = game_.wonByPlayer();
    play_.Continuaramino.Visible = game_.goesOn();
  }

  UniformSource& uniform_;
  Entrance entrance_;
  Play play_;
  Ramino game_;
};

}  // namespace

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::ramino
