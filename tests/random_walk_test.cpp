#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <regex>

#include "session.hpp"

namespace tombolario {
namespace {

constexpr int kEvents = 60'000;

/// A player without sense: presses anything with any button, drags off it, and now and then plays on. It
/// seldom presses what leaves a game or drops a match, so that games come to their end.
class RandomPlayer {
 public:
  explicit RandomPlayer(Form& room) : form_(room) {
    for (const char* name : {"Command5", "Command15", "Command55", "FINEDOM", "ramesc", "ALTRORAM", "FINECA",
                             "MENUVP", "menupok", "MENUDOM", "MENURAM", "menucat", "Command17"})
      leaves_.push_back(room.find(name));
    for (const Control* control : room.controls()) {
      const Control* screen = control;
      while (screen->parent() != &room) screen = screen->parent();
      if (control->sinks()) buttons_[screen].push_back(control);
    }
  }

  void step() {
    switch (pick(8)) {
      case 0: form_.mouseMove({pick(12400) - 250, pick(9000) - 200}); break;
      case 1: form_.mouseMove(centreOfSomething()); break;
      case 2: form_.mouseDown(anyButton()); break;
      case 3: form_.mouseUp(anyButton()); break;
      default:
        form_.mouseMove(centreOfSomething());
        form_.mouseDown(MouseButton::Left);
        form_.mouseUp(MouseButton::Left);
        break;
    }
  }
  int pick(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }

 private:
  MouseButton anyButton() { return static_cast<MouseButton>(pick(3)); }
  Point centreOfSomething() {
    const auto shown = std::find_if(buttons_.begin(), buttons_.end(),
                                    [](const auto& of) { return of.first->Visible.get(); });
    const auto& choice = shown->second;
    const auto any = [&] { return choice[static_cast<std::size_t>(pick(static_cast<int>(choice.size())))]; };
    const Control* control = any();
    for (int tries = 0; tries < 20 && !attracts(*control); ++tries) control = any();
    return control->origin() + Point{control->Width / 2, control->Height / 2};
  }
  bool attracts(const Control& control) {
    if (!control.onView()) return false;
    return std::find(leaves_.begin(), leaves_.end(), &control) == leaves_.end() || pick(300) == 0;
  }

  Form& form_;
  std::vector<const Control*> leaves_;
  std::map<const Control*, std::vector<const Control*>> buttons_;  // by their screen
  std::mt19937 engine_{20261123};
};

bool visible(const Control* control) { return control->Visible; }

/// What holds in video poker after every event.
class VideoPokerHolds {
 public:
  explicit VideoPokerHolds(Form& form) : change_(form.find("Command3")), table_(form.find("Frame3BIS")) {
    for (int k = 0; k <= 10; ++k) rows_.push_back(form.find("segn(" + std::to_string(k) + ")"));
  }

  void check() {
    const auto lit = std::count_if(rows_.begin(), rows_.end(), visible);
    ASSERT_LE(lit, 1);
    if (!table_->Visible || lit == 0) return;
    ASSERT_FALSE(change_->Enabled);
    ++scored;
  }

  long scored = 0;

 private:
  std::vector<const Control*> rows_;
  const Control* change_;
  const Control* table_;
};

/// What holds in poker after every event.
class PokerHolds {
 public:
  explicit PokerHolds(Form& form)
      : change_(form.find("Command33")),
        next_(form.find("Command11")),
        mark_(form.find("Command22(0)")),
        result_(form.find("result")),
        table_(form.find("Frame2BIS")) {}

  void check() {
    if (!table_->Visible) return;
    ASSERT_EQ(change_->Enabled.get(), mark_->Visible.get()) << "a hand is changed while it can be marked";
    if (!result_->Visible) return;
    ASSERT_FALSE(change_->Enabled || next_->Enabled) << "a match that is over goes on";
    ++over;
  }

  long over = 0;

 private:
  const Control* change_;
  const Control* next_;
  const Control* mark_;
  const Control* result_;
  const Control* table_;
};

/// What holds in domino after every event.
class DominoHolds {
 public:
  explicit DominoHolds(Form& form)
      : pass_(form.find("passadomban")),
        computer_(form.find("Commdomban")),
        result_(form.find("NUOVAPARDOM")),
        bar_(form.find("HScrolldom")) {
    for (int box = 0; box <= 60; ++box) line_.push_back(form.find("VISUAL(" + std::to_string(box) + ")"));
  }

  void check() {
    ASSERT_LE(pass_->Enabled + computer_->Enabled + result_->Visible, 1) << "whose turn is it?";
    ASSERT_TRUE(bar_->Min >= 4 && bar_->Max <= 56);
    ASSERT_EQ(std::count_if(line_.begin(), line_.end(), visible), 1);
    ASSERT_TRUE(line_[static_cast<std::size_t>(bar_->Value)]->Visible);
    over += result_->Visible;
  }

  long over = 0;

 private:
  const Control* pass_;
  const Control* computer_;
  const Control* result_;
  const Control* bar_;
  std::vector<const Control*> line_;
};

/// What holds in ramino after every event.
class RaminoHolds {
 public:
  explicit RaminoHolds(Form& form)
      : draw_(form.find("mazzoram")),
        leave_(form.find("ramlas")),
        computer_(form.find("ramturncom")),
        button_(form.find("ramCom(0)")) {
    for (const char* name : {"ramvin", "ramper", "rampar"}) ends_.push_back(form.find(name));
    for (int i = 0; i < 37; ++i) list_.push_back(form.find("visualram(" + std::to_string(i) + ")"));
  }

  void check() {
    const auto ended = std::count_if(ends_.begin(), ends_.end(), visible);
    ASSERT_LE(ended, 1);
    ASSERT_EQ(draw_->Enabled + leave_->Enabled + computer_->Enabled, 1 - ended) << "whose turn is it?";
    ASSERT_EQ(button_->Enabled, ended == 0);
    ASSERT_LE(std::count_if(list_.begin(), list_.end(), visible), 1);
    over += ended;
  }

  long over = 0;

 private:
  const Control* draw_;
  const Control* leave_;
  const Control* computer_;
  const Control* button_;
  std::vector<const Control*> ends_;
  std::vector<const Control*> list_;
};

/// What holds in the chain game after every event.
class ChainHolds {
 public:
  explicit ChainHolds(Form& form)
      : full_(form.find("Lok")),
        links_(form.find("Lll1")),
        count_(form.find("nmcat")),
        left_(form.find("Lmacatpu")) {
    for (int i = 1; i <= 5; ++i) marks_.push_back(form.find("Sh(" + std::to_string(i) + ")"));
  }

  void check() {
    const auto exchanged = [](const Control* mark) { return mark->BorderColor == Colour(kRed); };
    const auto substituted = [](const Control* mark) { return mark->FillColor == Colour(0xFFFF80); };
    ASSERT_LE(std::count_if(marks_.begin(), marks_.end(), exchanged), 2);
    ASSERT_LE(std::count_if(marks_.begin(), marks_.end(), substituted), 2);
    ASSERT_EQ(full_->Visible, links_->Caption == "4");
    over += !count_->Enabled && left_->Caption == "10";
  }

  long over = 0;

 private:
  const Control* full_;
  const Control* links_;
  const Control* count_;
  const Control* left_;
  std::vector<const Control*> marks_;
};

/// What holds in mahjongg after every event.
class MahjonggHolds {
 public:
  explicit MahjonggHolds(Form& form)
      : search_(form.find("CERPEDMAH")), remove_(form.find("ELPEDMAH")), screen_(form.find("Frame7")) {
    for (int i = 1; i <= 120; ++i) cells_.push_back(form.find("Commah(" + std::to_string(i) + ")"));
  }

  void check() {
    if (!screen_->Visible) return;
    const auto selected = [](const Control* cell) { return cell->BackColor == Colour(kRed); };
    const auto chosen = std::count_if(cells_.begin(), cells_.end(), selected);
    ASSERT_EQ(search_->Enabled, chosen == 1);
    ASSERT_EQ(remove_->Enabled, chosen == 2);
    ASSERT_EQ(std::count_if(cells_.begin(), cells_.end(), visible) % 2, 0);
    over += chosen == 2;
  }

  long over = 0;

 private:
  const Control* search_;
  const Control* remove_;
  const Control* screen_;
  std::vector<const Control*> cells_;
};

class RandomWalk : public testing::TestWithParam<int> {};

TEST_P(RandomWalk, NeverLeavesTheRulesOfTheRoom) {
  const int game = GetParam();
  Session room;
  ASSERT_EQ(room("click commpr(" + std::to_string(game) + ")"), "ok");
  Form& form = room.driver.form();
  std::vector<const Control*> screens;
  for (const Control* control : form.controls()) {
    if (control->parent() == &form) screens.push_back(control);
  }
  ASSERT_EQ(screens.size(), 12U);
  std::vector<const Control*> numbers;
  for (const char* name : {"Label2", "Label5", "Label6", "hum1", "comp1", "scoredom1", "domcont2",
                           "peddom(13)", "PRAMC", "PRAMH", "Lpuca", "Label10ca"})
    numbers.push_back(form.find(name));
  const std::regex number("-?[0-9]+|");

  VideoPokerHolds videoPoker(form);
  PokerHolds poker(form);
  DominoHolds domino(form);
  RaminoHolds ramino(form);
  ChainHolds chain(form);
  MahjonggHolds mahjongg(form);
  RandomPlayer player(form);
  for (int event = 0; event < kEvents; ++event) {
    SCOPED_TRACE(event);
    player.step();
    ASSERT_EQ(std::count_if(screens.begin(), screens.end(), visible), 1);
    videoPoker.check();
    poker.check();
    domino.check();
    ramino.check();
    chain.check();
    mahjongg.check();
    if (HasFailure()) return;
    if (event % 50 != 0) continue;
    for (const Control* label : numbers) {
      ASSERT_TRUE(std::regex_match(label->Caption.get(), number))
          << label->name().text() << ": " << label->Caption.get();
    }
  }
  const std::array reached{poker.over, videoPoker.scored, domino.over,
                           chain.over, ramino.over,       mahjongg.over};
  EXPECT_GT(reached.at(static_cast<std::size_t>(game - 1)), 100) << "the walk should get somewhere";
}

INSTANTIATE_TEST_SUITE_P(Games, RandomWalk, testing::Range(1, 7));

}  // namespace
}  // namespace tombolario
