#include "session.hpp"
#include "toolkit/view.hpp"

namespace tombolario {
namespace {

TEST(MainMenu, AReleaseWithoutAMoveLeavesALinkAtRest) {
  Session room;
  room.play({"start"});
  Form& form = room.driver.form();
  View view(form);
  view.fit(1000, 600);
  const auto expectLit = [&](bool lit) {
    EXPECT_EQ(room.get("CLINK(1)", "BackColor"), lit ? "0xFF8000" : "0xFFFF00");
  };
  const double x = view.marginX() + 500.0 * view.scale(), y = 460 * view.scale();
  view.mouseAt(x, y);
  expectLit(true);
  form.mouseDown(MouseButton::Left);
  view.mouseAt(x, y);
  form.mouseUp(MouseButton::Left);
  expectLit(false);
  view.mouseAt(x + 1, y);
  expectLit(true);
}

}  // namespace
}  // namespace tombolario
