#include <algorithm>
#include <random>
#include <regex>

#include "session.hpp"

namespace tombolario {
namespace {

constexpr int kEvents = 250'000;

/// A player without sense: presses anything with any button, drags off it, and now and then plays on.
class RandomPlayer {
 public:
  explicit RandomPlayer(Form& room) : form_(room) {}

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
    const auto& controls = form_.controls();
    const Control* control = controls[static_cast<std::size_t>(pick(static_cast<int>(controls.size())))];
    for (int tries = 0; tries < 50 && !(control->onView() && control->sinks()); ++tries) {
      control = controls[static_cast<std::size_t>(pick(static_cast<int>(controls.size())))];
    }
    return control->origin() + Point{control->Width / 2, control->Height / 2};
  }

  Form& form_;
  std::mt19937 engine_{20261122};
};

TEST(RandomWalk, NeverLeavesTheRulesOfTheRoom) {
  Session room;
  ASSERT_EQ(room("start"), "ok");
  Form& form = room.driver.form();
  std::vector<const Control*> screens;
  for (const Control* control : form.controls()) {
    if (control->parent() == &form) screens.push_back(control);
  }
  ASSERT_EQ(screens.size(), 12U);
  std::vector<const Control*> numbers;
  for (const char* name : {"Label2", "Label5", "Label6"}) numbers.push_back(form.find(name));
  std::vector<const Control*> rows;
  for (int k = 0; k <= 10; ++k) rows.push_back(form.find("segn(" + std::to_string(k) + ")"));
  const Control* change = form.find("Command3");
  const Control* table = form.find("Frame3BIS");

  const std::regex number("-?[0-9]+|");
  const auto visible = [](const Control* control) { return control->Visible.get(); };
  RandomPlayer player(form);
  long scored = 0;
  for (int event = 0; event < kEvents; ++event) {
    player.step();
    ASSERT_EQ(std::count_if(screens.begin(), screens.end(), visible), 1) << "event " << event;
    const auto lit = std::count_if(rows.begin(), rows.end(), visible);
    ASSERT_LE(lit, 1) << "event " << event;
    if (table->Visible && lit == 1) {
      ASSERT_FALSE(change->Enabled) << "event " << event;
      ++scored;
    }
    if (event % 50 != 0) continue;
    for (const Control* label : numbers) {
      ASSERT_TRUE(std::regex_match(label->Caption.get(), number))
          << label->name().text() << ": " << label->Caption.get();
    }
  }
  EXPECT_GT(scored, 1000) << "the walk should get somewhere";
}

}  // namespace
}  // namespace tombolario
