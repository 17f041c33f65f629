#include <gtest/gtest.h>

#include <array>

#include "pictures/catalogue.hpp"
#include "pictures/icon.hpp"
#include "recording_canvas.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/form.hpp"
#include "toolkit/screens.hpp"
#include "toolkit/scroll_bar.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

constexpr Rgb kGround = 0xC0FFC0;

void drawDot(Painter& painter, int) {
  painter.fillRect({0, 0, 10, 8}, kWhite);
  painter.fillEllipse({2, 1, 6, 6}, kRed);
}
const PictureStore kDot = singlePicture<Size{10, 8}>("dot", ornament, drawDot);

/// Whatever a painter can draw.
void drawAll(Painter& painter, int) {
  constexpr std::array kColours{kRed, kBlue};
  const std::array<Vec, 3> corners{Vec{1, 1}, Vec{9.5, 1}, Vec{5, 7}};
  painter.fillRect({0, 0, 33, 21}, kYellow);
  painter.fillRect({-1, 5, 40, 3}, kBlue);
  painter.fillRect({1, 0, 40, 40}, kBlack);
  painter.fillRect({0, 1, 40, 40}, kRed);
  painter.fillRect({5, -1, 3, 40}, kRed);
  painter.fillRect({0, 0, 3, 21}, kGreen);
  painter.fillRect({0, 0, 33, 3}, kRed);
  painter.fillRect({2, 3, 1, 7}, kBlack);
  painter.fillRect({32, 20, 1, 1}, kBlue);
  painter.fillRect({3, 3, 0.3, 0}, kBlue);
  painter.fillRect({-5, -5, 50, 50}, kWhite);
  painter.bar({5, 1, 2, 9}, kBlack);
  painter.bar({5, 11, 9, 1}, kBlack);
  painter.outlineRect({7, 2, 11, 9}, kRed, 2);
  painter.bevel({8, 4, 13, 11}, 1, kWhite, kBlack);
  painter.fillPolygon(corners, kGreen);
  painter.fillPolygon(corners, {Gradient::Shape::Linear, {1, 2}, {3, 4}, kColours});
  painter.fillPolygon(corners, {Gradient::Shape::Radial, {1, 2}, {3, 4}, kColours});
  painter.outlinePolygon(corners, kBlack, 1.5);
  painter.line({1, 2}, {30, 17.5}, kBlue, 1);
  for (const Align align : {Align::Left, Align::Centre, Align::Right})
    painter.text({3, 2, 27, 19}, "Abc", {.face = Face::Heavy, .points = 6}, kBlack, align);
  painter.picture(kDot, Vec{3, 4});
  painter.picture(kDot, {1, 2, 20, 16});
  painter.picture({}, Vec{});
  painter.drawing(kDot, {11, 3, 5, 4});
  painter.enter({4, 4, 20, 10});
  painter.enterEdged({0, 0, 19, 2}, {});
  painter.fillRect({0, 0, 19, 2}, kBlue);
  painter.leave();
  for (const Sides& sides : {Sides{true, false, false, false}, Sides{false, true, false, false},
                             Sides{false, false, true, false}, Sides{false, false, false, true}}) {
    painter.enterEdged({3, 3, 9, 5}, sides);
    painter.enterInside({1, 1, 7, 3});
    painter.fillRect({0, 0, 5, 1}, kRed);
    painter.leave();
    painter.leave();
  }
  painter.leave();
}
const PictureStore kAll = singlePicture<Size{33, 21}>("all", ornament, drawAll);

/// Every kind of control in every state, as it is drawn. What has changed in recorded/painting-*.txt, and is
/// meant to, is recorded anew.
class Painting : public testing::Test {
 protected:
  void TearDown() override { expectAsRecorded(file, told); }
  void paint(const std::string& heading, std::initializer_list<double> scales = {0.4, 1.5}) {
    for (const double scale : scales) {
      RecordingCanvas canvas;
      Painter painter(canvas, scale, pictures);
      form.repaint(painter);
      told[heading + (scale < 1 ? " at 0.4" : " at 1.5")] = canvas.told();
    }
  }
  void press(const Control& control, const std::string& heading) {
    form.mouseMove(control.origin() + Point{20, 20});
    form.mouseDown(MouseButton::Left);
    paint(heading, {1.5});
    form.mouseMove({-100, -100});
    form.mouseUp(MouseButton::Left);
  }

  std::string file;
  Form form{"Form1", {0, 0, 3000, 1995}, kGround, "test"};
  PictureCache pictures;
  std::map<std::string, std::string> told;
};

TEST_F(Painting, OfWordsAndLines) {
  file = "painting-words.txt";
  Frame titled{form, "titled", {0, 0, 900, 600}, groupLook(), "Title"};
  Frame single{form, "single", {900, 0, 600, 600}, {.fore = kRed, .border = Border::Single}, "off"};
  single.Enabled = false;
  Label hidden{form, "hidden", {0, 0, 900, 900}, "hidden", {.visible = false}};
  Label left{form, "left", {0, 600, 900, 255}, "left", {.back = SystemColour::ToolTip, .align = Align::Left}};
  Label right{form,
              "right",
              {0, 840, 900, 255},
              "right",
              {.back = SystemColour::Window, .align = Align::Right, .border = Border::Single}};
  Label broken{form, "broken", {0, 1110, 900, 825}, "three lines of words", {.border = Border::Etched}};
  Label written{form, "written", {900, 600, 1200, 555}, "one\ntwo of them", {.border = Border::Sunken}};
  Label close{form, "close", {1500, 0, 900, 900}, "noon of once noon", {}};
  Label whole{form, "whole", {2100, 1230, 900, 480}, "three lines of words", {}};
  Label small{form, "small", {900, 1200, 600, 255}, "muchtoolong for it", stripLook(kYellow, kBlue)};
  Label off{form, "off", {1500, 1200, 600, 225}, "off", {.fore = kWhite, .font = {.bold = true}}};
  off.Enabled = false;
  TextBox text{form, "text", {2100, 0, 900, 900}, "first line\nsecond\n", {.align = Align::Left}};
  Shape shape{form, "shape", {2100, 900, 450, 300}, 5, {.back = SystemColour::ActiveBorder, .fore = kBlue}};
  Line line{form, "line", {2100, 1215, 900, 15}, kRed};
  paint("words");
}

TEST_F(Painting, OfWhatLiesTogether) {
  file = "painting-neighbours.txt";
  const auto label = [&](Control& parent, const char* name, Box box) {
    return std::make_unique<Label>(parent, name, box, "", Look{.back = kWhite});
  };
  PictureBox board{form, "board", {1500, 15, 1500, 900}, {.picture = kAll}};
  const auto a = label(form, "a", {150, 150, 300, 300}), b = label(form, "b", {450, 150, 300, 300}),
             c = label(form, "c", {765, 150, 300, 300}), d = label(form, "d", {150, 450, 300, 300}),
             e = label(form, "e", {450, 765, 300, 300}), f = label(form, "f", {150, 765, 285, 300}),
             g = label(form, "g", {735, 1050, 300, 300}), h = label(form, "h", {1050, 450, 300, 300}),
             i = label(form, "i", {1365, 450, 150, 300}), j = label(form, "j", {0, 750, 135, 150}),
             inside = label(board, "inside", {300, 300, 300, 300});
  const auto gone = label(form, "gone", {1050, 750, 300, 300});
  gone->Visible = false;
  paint("neighbours");
}

TEST_F(Painting, OfPictures) {
  file = "painting-pictures.txt";
  const auto box = [&](const char* name, int left, Border border, int more, const PictureId& picture) {
    return std::make_unique<PictureBox>(form, name, Box{left, 0, (33 + more) * 15, (21 + more) * 15},
                                        Look{.back = kRed, .border = border, .picture = picture});
  };
  const auto plain = box("plain", 0, Border::None, 3, kAll), fits = box("fits", 600, Border::None, 2, kAll),
             bordered = box("bordered", 1200, Border::Single, 6, kDot),
             sunken = box("sunken", 1800, Border::Sunken, -10, kDot),
             empty = box("empty", 2400, Border::Etched, 0, {});
  Label onIt{*bordered, "onIt", {150, 150, 150, 150}, "", {.back = kBlue}};
  PictureBox wide{form, "wide", {0, 1200, 525, 480}, {.picture = kAll}};
  Image own{form, "own", {0, 600, 180, 165}, kDot};
  Image smaller{form, "smaller", {300, 600, 150, 60}, kDot};
  Image narrow{form, "narrow", {450, 600, 75, 120}, kDot};
  Image high{form, "high", {1500, 600, 150, 135}, kDot};
  Image none{form, "none", {600, 600, 120, 60}, {}};
  Image off{form, "off", {900, 600, 495, 315}, kAll};
  off.Enabled = false;
  off.BackColor = kYellow;
  paint("pictures");
  paint("pictures that are kept", {1.5});
}

TEST_F(Painting, OfWhatIsPressed) {
  file = "painting-buttons.txt";
  Frame group{form, "group", {1500, 0, 1500, 1995}, {.back = kWhite}};
  Button wide{form, "wide", {0, 795, 900, 405}, "much too long a caption", buttonLook(kRed)};
  Button below{form, "below", {0, 390, 900, 405}, "below", buttonLook(kRed)};
  Button top{form, "top", {0, 0, 900, 390}, "top", buttonLook(kRed)};
  Button apart{form, "apart", {0, 1230, 900, 405}, "apart", buttonLook(kRed)};
  Button other{form, "other", {0, 1635, 900, 360}, "in another font", {.back = kRed}};
  Button beside{form, "beside", {900, 0, 600, 405}, "", buttonLook(kWhite, kDot)};
  Button off{form, "off", {900, 405, 600, 405}, "off", buttonLook(kBlue)};
  Button offPicture{form, "offPicture", {900, 825, 600, 405}, "", buttonLook(kBlue, kAll)};
  TileButton tile{group, "tile", {0, 0, 855, 495}, "", {.back = 0xD0D0D0, .picture = kAll}};
  TileButton offTile{group, "offTile", {840, 0, 645, 495}, "", {.back = 0xD0D0D0, .picture = kDot}};
  OptionButton on{group, "on", {0, 600, 900, 255}, "on", true, optionLook()};
  Button upper{group, "upper", {0, 1500, 600, 165}, "much too long", buttonLook(kRed)};
  Button middle{group, "middle", {0, 1665, 600, 165}, "low", buttonLook(kRed)};
  Button lower{group, "lower", {0, 1830, 450, 165}, "aside", buttonLook(kRed)};
  Frame fellows{group, "fellows", {0, 900, 1500, 600}, {}};
  OptionButton chosen{fellows, "chosen", {0, 0, 900, 255}, "chosen", true, optionLook()};
  OptionButton free{fellows, "free", {0, 300, 900, 255}, "free", false, optionLook()};
  for (Control* control : std::initializer_list<Control*>{&off, &offPicture, &offTile, &chosen, &free})
    control->Enabled = false;
  paint("buttons");
  press(wide, "a button held down");
  press(beside, "a picture held down");
  press(tile, "a tile held down");
  form.mouseMove(wide.origin() + Point{20, 20});
  form.mouseDown(MouseButton::Left);
  form.mouseMove({-100, -100});
  paint("a button left", {1.5});
}

TEST_F(Painting, OfScrollBars) {
  file = "painting-bars.txt";
  ScrollBar lying{form, "lying", {0, 0, 1500, 300}, ScrollBar::Direction::Horizontal, ""};
  ScrollBar standing{form, "standing", {1800, 0, 255, 1200}, ScrollBar::Direction::Vertical, ""};
  ScrollBar narrow{form, "narrow", {2400, 0, 600, 900}, ScrollBar::Direction::Vertical, ""};
  lying.Max = standing.Max = 8;
  lying.Value = 3;
  standing.Min = 2;
  narrow.Max = 1;
  narrow.Enabled = false;
  paint("bars");
  press(lying, "a bar held down");
  form.mouseMove({1810, 1190});
  form.mouseDown(MouseButton::Left);
  paint("the other end of a bar held down", {1.5});
}

TEST_F(Painting, OfAWindow) {
  file = "painting-window.txt";
  Frame screen{form, "screen", {0, 0, 3000, 1995}, {.back = kRed}};
  Button button{screen, "button", {600, 600, 900, 405}, "", buttonLook(kWhite, kDot)};
  View view(form);
  const auto look = [&](const std::string& heading) {
    RecordingCanvas canvas;
    view.paint(canvas);
    told[heading] = canvas.told();
  };
  view.fit(100, 200);
  look("a narrow window");
  view.fit(401, 200);
  look("a low window");
  look("a low window again");
  view.forget();
  look("a low window whose pictures are forgotten");
  view.enlarge(2, {200, 100}, {150, 90});
  look("an enlarged window");
  view.enlarge(9, {200, 100}, {900, -900});
  look("a window enlarged to a corner");
  view.enlarge(0.1, {0, 0}, {0, 0});
  look("a window back in its size");
  view.fit(200, 133);
  look("a window without margins");
  view.fit(3, 3);
  look("the smallest window");
}

std::string digestOf(const RecordingCanvas& canvas) {
  std::uint32_t digest = 2166136261;
  for (const char c : canvas.told()) digest = (digest ^ static_cast<unsigned char>(c)) * 16777619;
  return std::to_string(digest);
}

/// Each picture of the catalogue: its size and words, the words in it, and a digest of what it draws; and of
/// the icon. One that differs is to be looked at, in docs/catalogue-*.png.
TEST(Pictures, AreThoseThatAreRecorded) {
  std::map<std::string, std::string> told;
  for (const PictureStore* store : pictures::catalogue()) {
    std::string& lines = told[std::string(store->name)];
    for (int i = store->first; i < store->first + store->count; ++i) {
      const PictureId picture(*store, i);
      RecordingCanvas canvas;
      drawAlone(picture, canvas, 1.5);
      const auto [width, height] = picture.size();
      lines += picture.name() + ' ' + std::to_string(width) + 'x' + std::to_string(height) + " \"" +
               picture.words() + '"';
      for (const std::string& text : canvas.texts()) lines += ' ' + text + ';';
      lines += ' ' + digestOf(canvas) + '\n';
      EXPECT_EQ(pictures::find(picture.name()), picture);
    }
    lines += "points at " + std::to_string(store->hotSpot.x) + ',' + std::to_string(store->hotSpot.y) + '\n';
  }
  RecordingCanvas canvas;
  PictureCache cache;
  Painter painter(canvas, 1, cache);
  pictures::drawIcon(painter);
  told["icon"] = digestOf(canvas) + '\n';
  expectAsRecorded("pictures.txt", told);
}

}  // namespace
}  // namespace tombolario
