#include <memory>

#include "pictures/catalogue.hpp"
#include "poker/game.hpp"
#include "poker/rules.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/marks.hpp"
#include "toolkit/screens.hpp"

namespace tombolario::poker {

namespace {

constexpr Colour kFirstGroup = kGreen;
constexpr Colour kSecondGroup = 0xC0FFC0;
constexpr Colour kTop = kYellow;
constexpr Colour kWonHand = kYellow;

// clang-format off
/// What a won hand counts.
struct CountingOptions : Frame {
  explicit CountingOptions(Control& parent)
      : Frame(parent, "Framepun", {720, 1560, 3375, 2895}, groupLook(), "TIPI DI PUNTEGGIO") {}

  OptionButton Op1{*this, "Op1", {480, 960, 2415, 375}, "Per mano", false, optionLook()};
  OptionButton Op2{*this, "Op2", {480, 1560, 2415, 375}, "Per configurazione", true, optionLook()};
};

/// How hard the computer is.
struct LevelOptions : Frame {
  explicit LevelOptions(Control& parent)
      : Frame(parent, "Framescpok", {4320, 1560, 3375, 2895}, groupLook(), "DIFFICOLTA'") {}

  OptionButton Option3{*this, "Option3", {480, 960, 2415, 375}, "Normale", false, optionLook()};
  OptionButton Option4{*this, "Option4", {480, 1560, 2415, 375}, "Alta", true, optionLook()};
};

/// The points of the classes.
struct Combinations : Frame {
  explicit Combinations(Control& parent)
      : Frame(parent, "Framecomb", {7920, 1560, 3375, 2895}, groupLook(), "COMBINAZIONI") {}

  PictureBox Pictcompok{*this, "Pictcompok", {570, 510, 2250, 2055},
                        {.back = kBlue, .picture = pictures::Pictcompok}};
};

struct Options : Frame {
  explicit Options(Form& form) : Frame(form, "Frame2", {0, 0, 12000, 8775}, screenLook(kCyan, "Poker, le opzioni")) {}

  Label LPOKER{*this, "LPOKER", {0, 0, 12015, 375}, "POKER", stripLook(kYellow, kBlue)};
  CountingOptions Framepun{*this};
  LevelOptions Framescpok{*this};
  Combinations Framecomb{*this};
  Button menupok{*this, "menupok", {4320, 5160, 3375, 495}, "MENU'", buttonLook(0xFF8080)};
  Button Command44{*this, "Command44", {4320, 5640, 3375, 495}, "GIOCO", buttonLook(kYellow)};

  Level level() const { return Framescpok.Option3.Value == 1 ? Level::Normal : Level::High; }
  Counting counting() const { return Framepun.Op1.Value == 1 ? Counting::ByHand : Counting::ByClass; }
};

constexpr Look frameLook() { return {.back = kAtRest, .border = Border::Etched}; }
constexpr Box kCardInFrame{360, 360, 1080, 1415};
constexpr int leftOf(int position) { return 1560 + 1800 * position; }

struct PlayerCard : Frame {
  PlayerCard(Control& parent, int i)
      : Frame(parent, {"Frame11", i}, {leftOf(i), 5160, 1815, 2775}, frameLook()) {}

  PictureBox Pictt{*this, {"Pictt", name().index}, kCardInFrame, cardLook(true)};
  Button Command22{*this, {"Command22", name().index}, {240, 2160, 1335, 375}, "Segna", buttonLook(0xFFE0C0)};
};

struct ComputerCard : Frame {
  ComputerCard(Control& parent, int i)
      : Frame(parent, {"Frame11", kHandSize + i}, {leftOf(i), 0, 1815, 2175}, frameLook()) {}

  PictureBox Pictt{*this, {"Pictt", kHandSize + name().index}, kCardInFrame, cardLook(true)};
};

struct ScoreBoard : PictureBox {
  explicit ScoreBoard(Control& parent)
      : PictureBox(parent, "Picture5", {8100, 3060, 2475, 1215},
                   {.back = kWhite, .picture = pictures::Picture5}) {}

  Label result{*this, "result", {0, 0, 1510, 310}, "",
               {.back = kYellow, .fore = kRed, .font = {.bold = true}, .border = Border::Single,
                .visible = false}};
  Label comp1{*this, "comp1", {1680, 410, 615, 255}, "",
              {.back = kWhite, .font = {.bold = true}, .about = "COMPUTER"}};
  Label hum1{*this, "hum1", {1680, 840, 615, 255}, "",
             {.back = kWhite, .font = {.bold = true}, .about = "HUMAN"}};
};

struct Screen : Frame {
  explicit Screen(Form& form) : Frame(form, "Frame2BIS", {0, 0, 12120, 8655}, screenLook(kWhite, "Poker, il tavolo")) {}

  ControlArray<PlayerCard, 0, kHandSize - 1> playerCards{[this](int i) { return PlayerCard{*this, i}; }};
  ControlArray<ComputerCard, 0, kHandSize - 1> computerCards{
      [this](int i) { return ComputerCard{*this, i}; }};
  // By slot of the pack; they are never seen.
  ControlArray<PictureBox, kHandSize, kComputerSlot - 1> replacements{[this](int slot) {
    return PictureBox{*this, {"Pictt", slot}, unseen(slot), cardLook(false)}; }};
  PictureBox nextCard{*this, {"Pictt", kNextCardSlot}, unseen(kNextCardSlot), cardLook(false)};
  Label comres{*this, "comres", {1560, 2160, 9015, 495}, "", saying("COMPUTER", resultLook())};
  Label humres{*this, "humres", {1560, 4680, 9015, 495}, "", saying("HUMAN", resultLook())};
  ScoreBoard Picture5{*this};
  Button Command11{*this, "Command11", {240, 5640, 1095, 615}, "NUOVA MANO", buttonLook(0xFF8000)};
  Button Command33{*this, "Command33", {240, 6240, 1095, 615}, "CAMBIA CARTE", buttonLook(0xFFFF80)};
  Button Command55{*this, "Command55", {10800, 5880, 975, 495}, "EXIT", buttonLook(0xFFC0C0)};
  Button Command15{*this, "Command15", {10800, 6360, 975, 495}, "INIZIO", buttonLook(0x80FF80)};

  static constexpr Look resultLook() {
    return {.back = kRed, .fore = kYellow, .font = {.points = 18, .bold = true}};
  }
  static constexpr Box unseen(int slot) { return {leftOf(slot % kHandSize) + 360, 2955, 1080, 1415}; }
};
// clang-format on

class Table : public Game {
 public:
  Table(Form& form, Host& host) : uniform_(host.uniform()), options_(form), screen_(form) {
    for (PlayerCard& card : screen_.playerCards) {
      card.Command22.onClick = [this, &card] {
        game_.toggleMark(card.name().index);
        show();
      };
    }
    options_.Command44.onClick = [this] {
      changeScreen(options_, screen_);
      begin();
    };
    screen_.Command15.onClick = [this] { begin(); };
    screen_.Command11.onClick = [this] {
      game_.newHand(uniform_);
      show();
    };
    screen_.Command33.onClick = [this] {
      game_.showDown(options_.level(), options_.counting());
      show();
    };
    screen_.Command55.onClick = [this] { leaveMatch(); };
  }

  Frame& entrance() override { return options_; }
  Button& wayBack() override { return options_.menupok; }
  /// No score, and no hand to follow; the table is empty.
  void start() override { showScore(); }

 private:
  /// "GIOCO" and "INIZIO": a new match, whatever the present one has come to.
  void begin() {
    game_.newMatch(uniform_);
    show();
  }

  /// "EXIT": back to the options, the match forgotten. Out of sight, "CAMBIA CARTE" and the result stay as
  /// they were until the next match.
  void leaveMatch() {
    game_.leave(uniform_);
    changeScreen(screen_, options_);
    screen_.Command55.Visible = false;
    showCards();
    showScore();
  }

  void show() {
    showCards();
    showScore();
    screen_.Command33.Enabled = game_.phase() == Phase::Dealt;
    screen_.Command55.Visible = true;
    const bool over = game_.phase() == Phase::MatchOver;
    Label& result = screen_.Picture5.result;
    result.Visible = over;
    if (over) result.Caption = game_.handWinner() == Side::Player ? "HAI VINTO" : "HAI PERSO";
  }

  /// The cards and what they make; the computer's lie face down until the showdown.
  void showCards() {
    for (PlayerCard& card : screen_.playerCards) {
      const int slot = card.Pictt.name().index;
      card.Pictt.Picture = face(slot);
      card.BackColor = game_.isMarked(slot) ? kMarked : colourOf(game_.playerClass(), slot);
      card.Command22.Visible = !game_.cardsAreOpen();
      giveCursor(pictures::Label13, {&card.Command22});
    }
    for (ComputerCard& card : screen_.computerCards) {
      const int slot = card.Pictt.name().index;
      card.Pictt.Picture = game_.cardsAreOpen() ? face(slot) : PictureId{pictures::ufo};
      card.BackColor = colourOf(game_.computerClass(), slot);
    }
    for (PictureBox& picture : screen_.replacements) picture.Picture = face(picture.name().index);
    screen_.nextCard.Picture = face(kNextCardSlot);
    screen_.humres.Caption = game_.playerClass().text();
    screen_.comres.Caption = game_.computerClass().text();
  }

  /// The score, lit for the side that has won the hand until the next deal, and whether another may follow.
  void showScore() {
    ScoreBoard& board = screen_.Picture5;
    board.hum1.Caption = game_.playerScore();
    board.hum1.BackColor = game_.handWinner() == Side::Player ? kWonHand : kWhite;
    board.comp1.Caption = game_.computerScore();
    board.comp1.BackColor = game_.handWinner() == Side::Computer ? kWonHand : kWhite;
    screen_.Command11.Enabled = game_.mayDeal();
  }

  /// The colour of the frame of a card in a hand of that class.
  Colour colourOf(const Classification& found, int slot) const {
    switch (found.roleOf(game_.card(slot))) {
      case Role::None: break;
      case Role::FirstGroup: return kFirstGroup;
      case Role::SecondGroup: return kSecondGroup;
      case Role::Top: return kTop;
    }
    return kAtRest;
  }

  PictureId face(int slot) const { return {pictures::Picture11, game_.card(slot)}; }

  UniformSource& uniform_;
  Options options_;
  Screen screen_;
  Poker game_;
};

}  // namespace

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::poker
