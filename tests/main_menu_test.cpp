#include <set>

#include "session.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

class MainMenuTest : public testing::Test {
 protected:
  /// The game buttons and links that show their hover colour.
  std::string hovered() {
    std::string names;
    for (const char* name : {"commpr(1)", "commpr(2)", "commpr(3)", "commpr(4)", "commpr(5)", "commpr(6)"}) {
      const std::string colour = room.get(name, "BackColor");
      if (colour == "0x0000FF") names += std::string(name) + ' ';
      EXPECT_TRUE(colour == "0x0000FF" || colour == "0x00FFFF") << colour;
    }
    for (const char* name : {"CLINK(1)", "CLINK(2)"}) {
      const std::string colour = room.get(name, "BackColor");
      if (colour == "0xFF8000") names += std::string(name) + ' ';
      EXPECT_TRUE(colour == "0xFF8000" || colour == "0xFFFF00") << colour;
    }
    return names;
  }
  void expectScreen(const std::string& wanted) {
    EXPECT_EQ(room("screen"), wanted);
    for (const Control* screen : screens()) {
      EXPECT_EQ(screen->Visible, screen->name().text() == wanted) << screen->name().text();
    }
  }

  const std::vector<Control*>& screens() { return room.driver.form().children(); }

  static constexpr const char* kMenu = "Frameprincipale";
  Session room;
};

TEST_F(MainMenuTest, EveryScreenIsReachedAndLeft) {
  expectScreen(kMenu);
  struct Way {
    const char* control;
    const char* screen;
  };
  std::set<std::string> seen{kMenu};
  for (const auto& [control, screen] : std::initializer_list<Way>{
           {"commpr(1)", "Frame2"}, {"Command44", "Frame2BIS"}, {"Command55", "Frame2"}, {"menupok", kMenu},
           {"commpr(2)", "Frame3"}, {"Command8", "Frame3BIS"},  {"Command5", "Frame3"},  {"MENUVP", kMenu},
           {"commpr(3)", "FRAME5"}, {"giocodom", "Frame5BIS"},  {"FINEDOM", "FRAME5"},   {"MENUDOM", kMenu},
           {"commpr(4)", "Frame4"}, {"INICAT", "Frame4BIS"},    {"FINECA", "Frame4"},    {"menucat", kMenu},
           {"commpr(5)", "frame6"}, {"GIOCORAM", "Frame6bis"},  {"ramesc", "frame6"},    {"MENURAM", kMenu},
           {"commpr(6)", "Frame7"}, {"Command17", kMenu}}) {
    room.play({(std::string("click ") + control).c_str()});
    expectScreen(screen);
    EXPECT_EQ(room.get(control, "MousePointer"), "99") << control;
    EXPECT_EQ(room.get(control, "MouseIcon"), "Label13") << control;
    EXPECT_EQ(hovered(), "") << "after " << control;
    seen.insert(screen);
  }
  for (const Control* screen : screens()) {
    EXPECT_TRUE(seen.contains(screen->name().text())) << "no way leads to " << screen->name().text();
  }
}

TEST_F(MainMenuTest, EveryScreenHasItsSize) {
  room.expect({"LPOKER Width=12015", "LCATENA Width=12120", "Label10 Width=12120", "LVIDPOK Width=12120"});
  for (const Control* screen : screens()) {
    const std::string name = screen->name().text();
    EXPECT_EQ(screen->Width, name == "Frame2" ? 12000 : name == "Frame2BIS" ? 12120 : 12015) << name;
    EXPECT_EQ(screen->Height, name == "Frame2" ? 8775 : 8655) << name;
  }
}

TEST_F(MainMenuTest, OnlyTheButtonUnderTheMouseTakesTheHoverColour) {
  room.play({"over commpr(2)"});
  EXPECT_EQ(hovered(), "commpr(2) ");
  room.play({"over commpr(3)"});
  EXPECT_EQ(hovered(), "commpr(3) ");
  room.play({"over CLINK(2)"});
  EXPECT_EQ(hovered(), "commpr(3) CLINK(2) ") << "each row minds its own";
  room.play({"over Label9"});
  EXPECT_EQ(hovered(), "commpr(3) CLINK(2) ") << "a label is not the ground";
  room.play({"at 3000 5000"});
  EXPECT_EQ(hovered(), "");
}

TEST_F(MainMenuTest, AnEdgeCountsAsInside) {
  // commpr(6) ends at 7815 and 5055; the point there is already the ground's.
  room.play({"over commpr(6)", "at 7815 4700"});
  EXPECT_EQ(hovered(), "commpr(6) ");
  room.play({"at 7816 4700"});
  EXPECT_EQ(hovered(), "");
  room.play({"over commpr(6)", "at 6000 5055"});
  EXPECT_EQ(hovered(), "commpr(6) ");
  room.play({"at 6000 5056"});
  EXPECT_EQ(hovered(), "");
  room.play({"over CLINK(1)", "at 4079 6800"});
  EXPECT_EQ(hovered(), "");
}

TEST_F(MainMenuTest, AnyButtonOpensAGameAndItsReleaseClicksNothingThere) {
  for (const char* button : {"left", "right", "middle"}) {
    const std::string down = std::string("down ") + button;
    const std::string up = std::string("up ") + button;
    // MENUVP lies right under this point of commpr(2).
    room.play({"at 6000 2200", down.c_str()});
    EXPECT_EQ(room("screen"), "Frame3") << button;
    room.play({"at 6001 2201", up.c_str()});
    EXPECT_EQ(room("screen"), "Frame3") << button;
    room.play({"click MENUVP"});
    EXPECT_EQ(room("screen"), "Frameprincipale");
    EXPECT_EQ(hovered(), "");
  }
}

TEST_F(MainMenuTest, TheLinksGoToTheDesktopAtAPressOfAnyButton) {
  EXPECT_EQ(room("links"), "none");
  room.play({"over CLINK(1)", "down right"});
  EXPECT_EQ(hovered(), "");
  EXPECT_EQ(room("links"), "mailto:info@tombolario.example");
  room.play({"up right", "click CLINK(2)", "over CLINK(2)", "down middle", "up middle"});
  EXPECT_EQ(room("links"), "https://www.tombolario.example/ https://www.tombolario.example/");
  EXPECT_EQ(room("links"), "none");
  EXPECT_EQ(room("screen"), "Frameprincipale");
  room.play({"over CLINK(2)", "down", "click commpr(2)"});  // the browser has had the release
  EXPECT_EQ(room("screen"), "Frame3");
}

TEST_F(MainMenuTest, AReleaseWithoutAMoveLeavesALinkAtRest) {
  Form& form = room.driver.form();
  View view(form);
  view.fit(1000, 600);
  room.play({"start"});
  const double x = view.marginX() + 500.0 * view.scale(), y = 460 * view.scale();
  view.mouseAt(x, y);
  EXPECT_EQ(hovered(), "CLINK(1) ");
  form.mouseDown(MouseButton::Left);
  view.mouseAt(x, y);
  form.mouseUp(MouseButton::Left);
  EXPECT_EQ(hovered(), "");
  view.mouseAt(x + 1, y);
  EXPECT_EQ(hovered(), "CLINK(1) ");
}

TEST_F(MainMenuTest, LeavingTheChainGameDisablesItsWayOn) {
  room.play({"click commpr(4)", "click CoNTCAT"});
  EXPECT_EQ(room("screen"), "Frame4");
  room.play({"click menucat"});
  room.expect({"CoNTCAT Enabled=0"});
}

}  // namespace
}  // namespace tombolario
