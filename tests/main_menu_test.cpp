#include <set>

#include "session.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

class MainMenuTest : public testing::Test {
 protected:
  /// The links and game buttons that show their hover colour.
  std::string hovered() {
    std::string names;
    for (const Control* control : room.driver.form().controls()) {
      const bool game = control->name().base == "commpr";
      if (!game && control->name().base != "CLINK") continue;
      const bool lit = control->BackColor == Colour(game ? 0x0000FF : 0xFF8000);
      if (lit) names += control->name().text() + ' ';
      EXPECT_TRUE(lit || control->BackColor == Colour(game ? 0x00FFFF : 0xFFFF00)) << control->name().text();
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
  EXPECT_EQ(room("screen"), kMenu) << "no way leads back from the last screen";
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
  EXPECT_EQ(hovered(), "CLINK(2) commpr(3) ") << "each row minds its own";
  room.play({"over Label9"});
  EXPECT_EQ(hovered(), "CLINK(2) commpr(3) ") << "a label is not the ground";
  room.play({"at 3000 5000"});
  EXPECT_EQ(hovered(), "");
}

TEST_F(MainMenuTest, AnEdgeCountsAsInside) {
  // The last game's; right on its edge the point is already the ground's.
  Form& form = room.driver.form();
  const Control* last = nullptr;
  for (const Control* control : form.controls())
    if (control->name().base == "commpr") last = control;
  const Point middle = last->origin() + Point{last->Width / 2, last->Height / 2};
  const Point corner = last->origin() + Point{last->Width, last->Height};
  for (const Point edge : {Point{corner.x, last->origin().y}, Point{corner.x, middle.y},
                           Point{last->origin().x, corner.y}, Point{middle.x, corner.y}}) {
    form.mouseMove(middle);
    form.mouseMove(edge);
    EXPECT_EQ(hovered(), last->name().text() + ' ');
    form.mouseMove(edge + Point{1, 1});
    EXPECT_EQ(hovered(), "");
  }
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

}  // namespace
}  // namespace tombolario
