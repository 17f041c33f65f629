#include "toolkit/form.hpp"

#include <gtest/gtest.h>

#include <string>

#include "null_canvas.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

/// A window with a frame, two buttons that touch, and a label, a shape and an overlapping frame.
class FormTest : public testing::Test {
 protected:
  FormTest() {
    first.onClick = [this] { log += "first "; };
    second.onClick = [this] { log += "second "; };
    hidden.onClick = [this] { log += "hidden "; };
    for (Control* control : form.controls()) {
      control->onMouseDown = [this, control](MouseButton button) { note("down", *control, button); };
      control->onMouseUp = [this, control](MouseButton button) { note("up", *control, button); };
    }
  }
  void note(const char* what, const Control& control, MouseButton button) {
    if (quiet) return;
    log += what + std::string("(") + control.name().text() + (button == MouseButton::Left ? ") " : "*) ");
  }
  void press(Point at, MouseButton button = MouseButton::Left) {
    form.mouseMove(at);
    form.mouseDown(button);
  }
  void release(Point at, MouseButton button = MouseButton::Left) {
    form.mouseMove(at);
    form.mouseUp(button);
  }
  std::string taken() { return std::exchange(log, ""); }

  static constexpr Point kOnFirst{200, 200}, kOnSecond{700, 200}, kOnGround{100, 900}, kOutside{-50, 20};

  Form form{"Form1", {0, 0, 3000, 2000}, kBlue, "test"};
  Frame ground{form, "ground", {0, 0, 3000, 2000}, {}};
  Button first{ground, "first", {100, 100, 515, 300}, "1", {}};
  Button second{ground, "second", {600, 100, 500, 300}, "2", {}};
  Button hidden{ground, "hidden", {100, 100, 500, 300}, "3", {.visible = false}};
  Shape shape{ground, "shape", {0, 0, 3000, 2000}, 5, {}};
  std::string log;
  bool quiet = true;
};

TEST_F(FormTest, AClickIsAPressAndAReleaseInsideTheSameButton) {
  press(kOnFirst);
  release({610, 399});
  EXPECT_EQ(taken(), "") << "what is made later lies above: the shared strip is the second button's";
  press(kOnFirst);
  release({590, 390});
  EXPECT_EQ(taken(), "first ");
  press(kOnFirst);
  release(kOnSecond);
  press(kOnGround);
  release(kOnFirst);
  press(kOutside);
  release(kOnFirst);
  EXPECT_EQ(taken(), "");
  press(kOnFirst);
  form.mouseMove(kOnGround);
  release(kOnFirst);
  EXPECT_EQ(taken(), "first ") << "away and back again";
  form.mouseUp(MouseButton::Left);
  EXPECT_EQ(taken(), "");
}

TEST_F(FormTest, OnlyTheLeftButtonClicksAndAllAreHeardDownAndUp) {
  quiet = false;
  press(kOnFirst, MouseButton::Right);
  release(kOnSecond, MouseButton::Right);
  EXPECT_EQ(taken(), "down(first*) up(first*) ") << "captured";
  for (const MouseButton button : {MouseButton::Middle, MouseButton::Back, MouseButton::Forward}) {
    press(kOnFirst, button);
    release(kOnFirst, button);
    EXPECT_EQ(taken(), "down(first*) up(first*) ");
  }
  press(kOnFirst);
  press(kOnSecond, MouseButton::Right);
  release(kOnFirst);
  release(kOnSecond, MouseButton::Right);
  EXPECT_EQ(taken(), "down(first) down(first*) up(first) first up(first*) ");
  press(kOnFirst, MouseButton::Right);
  press(kOnSecond);
  release(kOnSecond);
  release(kOnSecond, MouseButton::Right);
  EXPECT_EQ(taken(), "down(first*) down(first) up(first) up(first*) ")
      << "no click where another button holds";
  press(kOnFirst, MouseButton::Right);
  release(kOnSecond);
  release(kOnSecond, MouseButton::Right);
  EXPECT_EQ(taken(), "down(first*) up(first*) ") << "a release without a press is nobody's";
}

TEST_F(FormTest, ADisabledControlTakesTheMouseAndDoesNothing) {
  quiet = false;
  first.Enabled = false;
  press(kOnFirst);
  release(kOnFirst);
  press(kOnFirst);
  release(kOnSecond);
  EXPECT_EQ(taken(), "");
  first.Enabled = true;
  ground.Enabled = false;
  press(kOnFirst);
  release(kOnFirst);
  EXPECT_EQ(taken(), "");
}

TEST_F(FormTest, AHiddenControlIsNotThereAndAShapeLetsTheMouseThrough) {
  hidden.Visible = true;
  press(kOnFirst);
  release(kOnFirst);
  EXPECT_EQ(taken(), "hidden ");
  hidden.Visible = false;
  press(kOnFirst);
  release(kOnFirst);
  EXPECT_EQ(taken(), "first ");
}

TEST_F(FormTest, APressThatHidesItsControlKeepsNothing) {
  Frame other{form, "other", {0, 0, 3000, 2000}, {.visible = false}};
  Button below{other, "below", {100, 100, 500, 300}, "", {}};
  below.onClick = [this] { log += "below "; };
  first.onMouseMove = [this](Point) { log += "moved "; };
  first.onMouseDown = [&](MouseButton) {
    other.Visible = true;
    ground.Visible = false;
  };
  press(kOnFirst);
  taken();
  release({210, 210});
  EXPECT_EQ(taken(), "") << "neither the hidden button nor the one in its place";
  press(kOnFirst);
  release(kOnFirst);
  EXPECT_EQ(taken(), "below ");
  other.Visible = false;
  ground.Visible = true;
  press(kOnFirst);
  taken();
  press({210, 210});
  release(kOnFirst);
  EXPECT_EQ(taken(), "below ") << "also where the release never came";
}

TEST_F(FormTest, APressWhoseReleaseNeverCameEndsWithTheNextOne) {
  quiet = false;
  press(kOnFirst);
  press(kOnFirst);
  release(kOnFirst);
  EXPECT_EQ(taken(), "down(first) up(first) down(first) up(first) first ");
  press(kOnFirst);
  press(kOnSecond);
  EXPECT_TRUE(form.holdsDown(second));
  release(kOnSecond);
  EXPECT_EQ(taken(), "down(first) up(first) down(second) up(second) second ");
  press(kOnFirst);
  press(kOnFirst, MouseButton::Forward);
  form.mouseLost();
  EXPECT_FALSE(form.holdsDown(first));
  release(kOnFirst);
  EXPECT_EQ(taken(), "down(first) down(first*) up(first) up(first*) ");
}

TEST_F(FormTest, TheScreenInSightIsTheTopmostOne) {
  Frame other{form, "other", {0, 0, 3000, 2000}, {.back = kRed, .visible = false}};
  EXPECT_EQ(&form.inSight(), &ground);
  other.Visible = true;
  EXPECT_EQ(&form.inSight(), &other);
}

TEST_F(FormTest, MovesGoToTheTopmostControlInItsOwnCoordinates) {
  Point seen{};
  second.onMouseMove = [&](Point at) { seen = at; };
  ground.onMouseMove = [this](Point) { log += "ground "; };
  form.mouseMove({600, 100});
  EXPECT_EQ(seen, (Point{0, 0}));
  form.mouseMove({1099, 399});
  EXPECT_EQ(seen, (Point{499, 299}));
  EXPECT_EQ(taken(), "");
  form.mouseMove({1100, 399});
  EXPECT_EQ(taken(), "ground ");
}

TEST_F(FormTest, ABorderSetsOffWhatLiesInsideAPictureBox) {
  PictureBox box{ground, "box", {1500, 500, 900, 900}, {.border = Border::Single}};
  Label inner{box, "inner", {0, 0, 900, 900}, "", {}};
  EXPECT_EQ(inner.origin(), (Point{1515, 515}));
  EXPECT_EQ(form.at({1510, 600}), &box);
  EXPECT_EQ(form.at({1515, 600}), &inner);
}

TEST_F(FormTest, OptionsOfOneFrameExcludeEachOther) {
  Frame group{form, "group", {0, 1000, 3000, 500}, {}};
  OptionButton one{group, "one", {0, 0, 500, 200}, "1", false, {}};
  OptionButton two{group, "two", {0, 250, 500, 200}, "2", true, {}};
  OptionButton elsewhere{ground, "elsewhere", {0, 600, 500, 200}, "3", true, {}};
  press({10, 1010});
  release({10, 1010});
  EXPECT_EQ(one.Value, 1);
  EXPECT_EQ(two.Value, 0);
  EXPECT_EQ(elsewhere.Value, 1);
  two.Value = 1;
  EXPECT_EQ(one.Value, 0);
  two.Enabled = false;
  one.Value = 1;
  press({10, 1260});
  release({10, 1260});
  EXPECT_EQ(one.Value, 1);
}

TEST_F(FormTest, OnlyAChangeAsksForDrawing) {
  NullCanvas canvas;
  View view(form);
  const auto drawn = [&] {
    const bool needed = form.needsDrawing();
    view.paint(canvas);
    return needed;
  };
  drawn();
  form.mouseMove(kOnGround);
  form.mouseMove(kOnFirst);
  first.Caption = "1";
  first.BackColor = SystemColour::ButtonFace;
  EXPECT_FALSE(drawn());
  first.BackColor = 0xC0C0C0;
  EXPECT_TRUE(drawn()) << "a system colour is not the plain colour that looks the same";
  form.mouseDown(MouseButton::Left);
  EXPECT_TRUE(drawn()) << "the button sinks";
  EXPECT_TRUE(form.holdsDown(first));
  form.mouseMove(kOnGround);
  EXPECT_TRUE(drawn());
  EXPECT_FALSE(form.holdsDown(first));
  form.mouseMove(kOnFirst);
  EXPECT_TRUE(drawn()) << "and sinks again";
  form.mouseLost();
  EXPECT_TRUE(drawn());
  press(kOnFirst);
  drawn();
  form.mouseUp(MouseButton::Left);
  EXPECT_TRUE(drawn());
  press(kOnGround);
  release(kOnGround);
  EXPECT_FALSE(drawn()) << "the ground looks the same";
}

TEST_F(FormTest, TheCursorIsThatOfTheControlThatHasTheMouse) {
  const PictureStore store{"hand", 0, 1, false, ornament, nullptr, nullptr};
  first.MouseIcon = store;
  form.mouseMove(kOnFirst);
  EXPECT_FALSE(form.cursor()) << "the icon alone is not shown";
  first.MousePointer = kCustomPointer;
  EXPECT_EQ(form.cursor(), PictureId(store));
  form.mouseDown(MouseButton::Left);
  form.mouseMove(kOnGround);
  EXPECT_EQ(form.cursor(), PictureId(store));
  form.mouseUp(MouseButton::Left);
  EXPECT_FALSE(form.cursor());
  first.Enabled = false;
  form.mouseMove(kOnFirst);
  EXPECT_FALSE(form.cursor());
}

TEST_F(FormTest, TwoControlsOfOneNameStopTheStart) {
  EXPECT_THROW((Button{ground, "first", {0, 0, 1, 1}, "", {}}), std::logic_error);
}

}  // namespace
}  // namespace tombolario
