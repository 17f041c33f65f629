#include <sstream>

#include "session.hpp"

namespace tombolario {
namespace {

TEST(Driver, TellsWhatIsOnViewAndTheCatalogue) {
  Session room;
  EXPECT_EQ(room("get Nobody Caption").substr(0, 7), "error: ");
  EXPECT_EQ(room("  ").substr(0, 7), "error: ");
  EXPECT_EQ(room("start"), "ok") << "nothing of the above has started the room";
  room.play({"click commpr(2)"});
  const std::string told = room("dump") + room("pictures");
  for (const char* line : {"\nMENUVP Visible=1 Enabled=1 BackColor=0xFF8080 ", " Caption=NUOVA PARTITA\n",
                           "\n.commpr(1) 166x18\n", "\nPicture1(52) 70x93\n", "\nsegn(3) 167x20\n"})
    EXPECT_NE(told.find(line), std::string::npos) << line;
  EXPECT_EQ(told.find("Command4"), std::string::npos);
  EXPECT_EQ(told.find("Command1 "), std::string::npos);
  EXPECT_EQ(told.substr(told.size() - 2), "\n.");
}

TEST(Driver, RefusesALongLineRepeatsNotMuchAndEndsOnItsLastCommand) {
  Session room;
  const std::string most = "get " + std::string((64 << 10) - 4, 'x');
  std::string wide = "x";
  for (int i = 0; i < 60; ++i) wide += "\xC3\xA8";
  std::istringstream in(most + "x\n" + most + '\n' + wide + "\nover " + most.substr(4, 300) +
                        "\nquit\nscreen");
  std::ostringstream out;
  room.driver.run(in, out);
  EXPECT_EQ(out.str(), "error: a line of more than 64 KiB\nerror: wrong number of words: get\n" +
                           ("error: unknown command: " + wide.substr(0, 79)) +
                           "\nerror: unknown control: " + std::string(80, 'x') + "\nok\n");
}

}  // namespace
}  // namespace tombolario
