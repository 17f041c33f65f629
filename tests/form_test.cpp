#include "toolkit/form.hpp"

#include <gtest/gtest.h>

#include <string>

#include "null_canvas.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/scroll_bar.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

class FormTest : public testing::Test {
 protected:
  static constexpr Point kOnFirst{200, 200}, kOnGround{100, 900};

  Form form{"Form1", {0, 0, 3000, 2000}, kBlue, "test"};
  Frame ground{form, "ground", {0, 0, 3000, 2000}, {}};
  Button first{ground, "first", {100, 100, 515, 300}, "1", {}};
  OptionButton option{ground, "option", {0, 600, 500, 200}, "", false, {}};
  Shape shape{ground, "shape", {0, 0, 3000, 2000}, 5, {}};
};

TEST_F(FormTest, AMouseThatIsLostIsReleased) {
  std::string log;
  first.onClick = [&] { log += "click "; };
  first.onMouseUp = [&](MouseButton button) { log += button == MouseButton::Left ? "left " : "other "; };
  form.mouseMove(kOnFirst);
  form.mouseDown(MouseButton::Left);
  form.mouseDown(MouseButton::Forward);
  EXPECT_TRUE(form.holdsDown(first));
  form.mouseLost();
  EXPECT_FALSE(form.holdsDown(first));
  form.mouseUp(MouseButton::Left);
  EXPECT_EQ(log, "left other ");
}

TEST_F(FormTest, WhatAPressHidesIsNotHeldDown) {
  first.onMouseDown = [this](MouseButton) { first.Visible = false; };
  form.mouseMove(kOnFirst);
  form.mouseDown(MouseButton::Left);
  EXPECT_FALSE(form.holdsDown(first));
  int heard = 0;
  option.onMouseDown = [&](MouseButton) { ++heard; };
  form.mouseMove(option.origin());
  form.mouseDown(MouseButton::Right);
  EXPECT_EQ(heard, 1) << "nor does it hear what comes next";
  first.Visible = true;
  form.mouseMove(kOnFirst);
  EXPECT_FALSE(form.holdsDown(first));
}

TEST_F(FormTest, ABorderSetsOffWhatLiesInsideAPictureBox) {
  PictureBox box{ground, "box", {1500, 500, 900, 900}, {.border = Border::Single}};
  Label inner{box, "inner", {0, 0, 900, 900}, "", {}};
  EXPECT_EQ(inner.origin(), (Point{1515, 515}));
  EXPECT_EQ(form.at({1510, 600}), &box);
  EXPECT_EQ(form.at({1515, 600}), &inner);
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
  option.Value = 1;
  EXPECT_TRUE(drawn());
  form.mouseDown(MouseButton::Left);
  EXPECT_TRUE(drawn()) << "the button sinks";
  form.mouseMove(kOnFirst + Point{15, 15});
  EXPECT_FALSE(drawn());
  EXPECT_TRUE(form.holdsDown(first));
  form.mouseMove(kOnGround);
  EXPECT_TRUE(drawn());
  EXPECT_FALSE(form.holdsDown(first));
  form.mouseMove(kOnFirst);
  EXPECT_TRUE(drawn()) << "and sinks again";
  form.mouseLost();
  EXPECT_TRUE(drawn());
  form.mouseDown(MouseButton::Left);
  drawn();
  form.mouseUp(MouseButton::Left);
  EXPECT_TRUE(drawn());
  form.mouseMove(kOnGround);
  form.mouseDown(MouseButton::Left);
  EXPECT_FALSE(drawn()) << "the ground looks the same";
  view.fit(800, 600);
  EXPECT_TRUE(drawn()) << "the window has another size";
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
  first.Enabled = true;
  EXPECT_TRUE(form.cursor());
  ground.Enabled = false;
  EXPECT_FALSE(form.cursor()) << "what lies on it is out of use, too";
}

TEST_F(FormTest, ACursorIsToldOnceForEachSizeOfTheWindow) {
  View view(form);
  EXPECT_TRUE(view.newCursor());
  EXPECT_FALSE(view.newCursor());
  view.fit(800, 600);
  EXPECT_TRUE(view.newCursor());
}

TEST_F(FormTest, AScrollBarTellsOfAnotherValueOnly) {
  ScrollBar bar{ground, "bar", {1000, 0, 255, 900}, ScrollBar::Direction::Vertical, ""};
  std::string log;
  bar.onChange = [&] { log += std::to_string(bar.Value) + ' '; };
  bar.Max = 9;
  bar.Value = 5;
  bar.Value = 5;
  bar.Enabled = false;
  bar.Max = 7;
  bar.Max = 3;
  bar.Value = -1;
  EXPECT_EQ(log, "5 3 0 ");
  bar.Enabled = true;
  form.mouseMove(bar.origin() + Point{100, 255});
  form.mouseDown(MouseButton::Left);
  form.mouseMove(bar.origin() + Point{100, 800});
  EXPECT_EQ(log, "5 3 0 3 ") << "the thumb begins where the arrow ends";
}

TEST_F(FormTest, TwoControlsOfOneNameStopTheStart) {
  EXPECT_THROW((Button{ground, "first", {0, 0, 1, 1}, "", {}}), std::logic_error);
}

}  // namespace
}  // namespace tombolario
