#include "toolkit/scroll_bar.hpp"

#include <gtest/gtest.h>

#include "toolkit/form.hpp"

namespace tombolario {
namespace {

/// A lying and a standing bar, 1000 twips long with arrows of 100.
class ScrollBarTest : public testing::TestWithParam<ScrollBar::Direction> {
 protected:
  ScrollBarTest() {
    bar.onChange = [this] { changes += std::to_string(bar.Value) + ' '; };
    bar.Max = 8;
  }
  bool lying() const { return GetParam() == ScrollBar::Direction::Horizontal; }
  Point on(int along) const { return lying() ? Point{500 + along, 550} : Point{550, 500 + along}; }
  void click(int along) {
    form.mouseMove(on(along));
    form.mouseDown(MouseButton::Left);
    form.mouseUp(MouseButton::Left);
  }

  Form form{"Form1", {0, 0, 3000, 3000}, kBlue, ""};
  ScrollBar bar{form, "bar", lying() ? Box{500, 500, 1000, 100} : Box{500, 500, 100, 1000}, GetParam(),
                "bar"};
  std::string changes;
};

TEST_P(ScrollBarTest, KeepsItsValueInsideAndTellsEachChange) {
  bar.Value = 5;
  bar.Value = 5;
  bar.Value = 99;
  bar.Value = -1;
  EXPECT_EQ(changes, "5 8 0 ");
  changes.clear();
  bar.Min = 3;
  EXPECT_EQ(changes, "3 ");
  bar.Max = 5;
  bar.Value = 4;
  bar.Max = 3;
  EXPECT_EQ(changes, "3 4 3 ");
  bar.Max = 1;
  EXPECT_EQ(bar.Value, 3) << "at Min where Max is below it";
}

TEST_P(ScrollBarTest, ArrowsAndTrackMoveByOne) {
  click(950);
  click(950);
  EXPECT_EQ(bar.Value, 2);
  click(50);
  EXPECT_EQ(bar.Value, 1);
  click(880);
  EXPECT_EQ(bar.Value, 2);
  click(110);
  EXPECT_EQ(bar.Value, 1);
  click(50);
  click(50);
  EXPECT_EQ(bar.Value, 0);
  EXPECT_EQ(changes, "1 2 1 2 1 0 ");
}

TEST_P(ScrollBarTest, TheThumbFollowsADragEvenOutside) {
  form.mouseMove(on(120));
  form.mouseDown(MouseButton::Left);
  EXPECT_EQ(changes, "");
  form.mouseMove(on(120 + 350));
  EXPECT_EQ(bar.Value, 4);
  form.mouseMove(on(5000));
  EXPECT_EQ(bar.Value, 8);
  form.mouseMove(on(120));
  EXPECT_EQ(bar.Value, 0);
  form.mouseMove(on(-5000));
  form.mouseUp(MouseButton::Left);
  form.mouseMove(on(800));
  EXPECT_EQ(bar.Value, 0) << "released";
}

TEST_P(ScrollBarTest, OtherButtonsAndADisabledBarDoNothing) {
  form.mouseMove(on(950));
  form.mouseDown(MouseButton::Right);
  form.mouseUp(MouseButton::Right);
  bar.Enabled = false;
  click(950);
  bar.Enabled = true;
  bar.Max = 0;
  click(500);
  click(950);
  EXPECT_EQ(changes, "");
}

INSTANTIATE_TEST_SUITE_P(Directions, ScrollBarTest,
                         testing::Values(ScrollBar::Direction::Horizontal, ScrollBar::Direction::Vertical),
                         [](const auto& direction) {
                           return direction.param == ScrollBar::Direction::Horizontal ? "Lying" : "Standing";
                         });

}  // namespace
}  // namespace tombolario
