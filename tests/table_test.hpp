#pragma once

#include <map>
#include <random>
#include <string_view>

#include "session.hpp"

namespace tombolario {

/// A started room whose controls are at hand by name and index, to be clicked and looked at without words:
/// what plays thousands of games has no time for the commands of the driver.
class TableTest : public testing::Test {
 protected:
  TableTest() {
    EXPECT_EQ(room("start"), "ok");
    for (Control* control : form().controls())
      controls_[control->name().base][control->name().index] = control;
  }

  Form& form() { return room.driver.form(); }
  Control& control(std::string_view name) { return element(name, 0); }
  template <class Index>
  Control& element(std::string_view name, Index index) {
    return *controls_.at(name).at(static_cast<int>(index));
  }

  static Point middleOf(const Control& target) {
    return target.origin() + Point{target.Width / 2, target.Height / 2};
  }
  void press(Point at, MouseButton button = MouseButton::Left) {
    form().mouseMove(at);
    form().mouseDown(button);
  }
  /// A press and a release at a point, whatever lies there.
  void click(Point at) {
    press(at);
    form().mouseUp(MouseButton::Left);
  }
  void click(const Control& target) { click(middleOf(target)); }
  void click(const char* name) { click(control(name)); }

  /// A number of 0 to n - 1.
  int pick(std::size_t n) { return static_cast<int>(engine() % n); }

  Session room;
  std::mt19937 engine{20261123};

 private:
  std::map<std::string_view, std::map<int, Control*>> controls_;
};

}  // namespace tombolario
