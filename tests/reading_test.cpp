#include "toolkit/reading.hpp"

#include <algorithm>
#include <array>

#include "pictures/catalogue.hpp"
#include "recording_canvas.hpp"
#include "session.hpp"
#include "toolkit/controls.hpp"

namespace tombolario {
namespace {

/// Of what can be used.
std::string stateOf(const Reading& reading) {
  const Control& control = *reading.control;
  const bool used = reading.role >= Role::Button;
  std::string state = used && !control.operable() ? " off" : "";
  if (reading.role == Role::Option && control.Value == 1) state += " chosen";
  if (reading.role == Role::Bar) {
    state += control.Width > control.Height ? " horizontal" : " vertical";
    for (const int number : {control.Value.get(), control.Min.get(), control.Max.get()})
      state += ' ' + std::to_string(number);
  }
  return state;
}

/// All that is heard of a window, a line each: where it is, what it is and how, its name, and what a press
/// says of it.
std::string heard(const Form& form) {
  constexpr std::array kRoles{"ground", "group", "text", "picture", "button", "tile", "option", "bar"};
  std::string lines = std::string("screen \"") + form.inSight().about() + "\"\n";
  for (const Reading& reading : readingOf(form)) {
    const Box& box = reading.box;
    for (const int number : {box.left, box.top, box.width, box.height}) lines += std::to_string(number) + ' ';
    lines += kRoles.at(static_cast<std::size_t>(reading.role)) + stateOf(reading) + " \"" + reading.name +
             "\" \"" + reading.news + '"';
    if (reading.control->MousePointer == kCustomPointer)
      lines += ' ' + reading.control->MouseIcon.get().name();
    if (reading.group != nullptr) lines += " of " + reading.group->name().text();
    lines += '\n';
  }
  return lines;
}

TEST(Reading, IsWhatIsRecordedOfEveryScreen) {
  std::map<std::string, std::string> told;
  Session room;
  for (const char* command : {"start",
                              "click commpr(1)",
                              "click Command44",
                              "click Command22(1)",
                              "click Command33",
                              "click Command55",
                              "click menupok",
                              "click commpr(2)",
                              "click Command8",
                              "click Command2(1)",
                              "click Command3",
                              "click Command5",
                              "click MENUVP",
                              "click commpr(3)",
                              "click giocodom",
                              "click LEF(2)",
                              "click Commdomban",
                              "click FINEDOM",
                              "click MENUDOM",
                              "click commpr(4)",
                              "click INICAT",
                              "click Comsost(2)",
                              "click Comscam(2)",
                              "click FINECA",
                              "click menucat",
                              "click commpr(5)",
                              "click GIOCORAM",
                              "click mazzoram",
                              "click ramlas",
                              "click ramCom(3)",
                              "click ramturncom",
                              "click ramesc",
                              "click MENURAM",
                              "click commpr(6)",
                              "click Commah(81)"}) {
    EXPECT_EQ(room(command), "ok") << command;
    told[std::to_string(told.size() + 100).substr(1) + ' ' + command] = heard(room.driver.form());
  }
  expectAsRecorded("reading.txt", told);
}

/// A mark is told by the word of its colour: round the circle of colours, full and light, and from black to
/// white.
TEST(Reading, HasTheWordsOfTheColours) {
  Form form("Form1", {0, 0, 3000, 3000}, kBlue, "");
  Frame screen(form, "screen", {0, 0, 3000, 3000}, {});
  Label label(screen, "label", {0, 0, 900, 900}, "text", {.back = 0x010203});
  std::map<std::string, std::string> told;
  std::string before;
  const auto look = [&](const std::string& row, int at, int red, int green, int blue) {
    label.BackColor = static_cast<Rgb>(red << 16 | green << 8 | blue);
    const std::string name = readingOf(form).front().name;
    if (name != before) told[row] += std::to_string(at) + ' ' + name + '\n';
    before = name;
  };
  for (const int low : {0, 0x72, 0xE0}) {
    const int high = low == 0 ? 240 : low == 0x72 ? 254 : 255;
    for (int hue = 0; hue < 360; ++hue) {
      const int up = low + (high - low) * (hue % 60) / 60;
      const int down = low + high - up;
      const std::array<std::array<int, 3>, 6> parts{{{high, up, low},
                                                     {down, high, low},
                                                     {low, high, up},
                                                     {low, down, high},
                                                     {up, low, high},
                                                     {high, low, down}}};
      const auto& [red, green, blue] = parts.at(static_cast<std::size_t>(hue / 60));
      look("from " + std::to_string(low), hue, red, green, blue);
    }
  }
  for (int grey = 0; grey < 256; ++grey) look("grey", grey, grey, grey, std::max(0, grey - 15));
  for (int light = 0; light < 0xFF; ++light) look("red", light, 0xFF, light, light);
  expectAsRecorded("colour-words.txt", told);
}

/// What is covered is not heard, nor what lies outside; rows go by their tops, and numbers by what is beside
/// them.
TEST(Reading, GoesByPlace) {
  Form form("Form1", {0, 0, 3000, 3000}, kBlue, "");
  const auto add = [&](Control& parent, Name name, Box box, const char* caption) {
    return std::make_unique<Label>(parent, name, box, caption, Look{});
  };
  Frame screen{form, "screen", {0, 0, 3000, 3000}, {.about = "the screen"}};
  Frame titled{screen, "titled", {0, 2000, 900, 900}, {}, "a title"};
  const auto right = add(screen, "right", {900, 100, 300, 300}, "right"),
             left = add(screen, "left", {0, 249, 300, 300}, "left"),
             below = add(screen, "below", {0, 251, 300, 300}, " below\n it "),
             number = add(screen, "number", {1230, 100, 300, 300}, "7"),
             twin = add(screen, "twin", {0, 260, 400, 300}, "twin"),
             far = add(screen, "far", {1561, 100, 300, 300}, "8"),
             over = add(screen, "over", {2900, 600, 300, 300}, "over the edge"),
             outside = add(screen, "outside", {3000, 600, 300, 300}, "outside"),
             covered = add(screen, "covered", {600, 600, 300, 300}, "covered"),
             partly = add(screen, "partly", {590, 600, 300, 300}, "partly"),
             empty = add(screen, "empty", {0, 900, 90, 90}, "  ");
  Frame cover{screen, "cover", {600, 600, 300, 300}, {.back = kRed}};
  const auto inside = add(cover, "inside", {0, 0, 300, 300}, "inside"),
             inTitled = add(titled, "inTitled", {10, 10, 90, 90}, "in it");
  PictureBox near{screen, "near", {1500, 1500, 300, 300}, {.picture = pictures::ELPEDMAH}};
  PictureBox away{screen, "away", {1500, 2500, 300, 300}, {.picture = pictures::CERPEDMAH}};
  const auto count = add(screen, {"count", 1}, {1900, 1990, 100, 100}, "3"),
             other = add(screen, {"count", 2}, {1900, 2200, 100, 100}, "4");
  std::map<std::string, std::string> told{{"at rest", heard(form)}};
  cover.BackColor = kYellow;
  near.BackColor = kGreen;
  right->BackColor = kRed;
  left->Visible = false;
  told["marked"] = heard(form);
  expectAsRecorded("places.txt", told);
}

}  // namespace
}  // namespace tombolario
