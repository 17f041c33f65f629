#include <sstream>

#include "session.hpp"

namespace tombolario {
namespace {

TEST(Driver, ABadCommandAnswersAnErrorAndChangesNothing) {
  Session room;
  for (const char* bad : {"",
                          "   ",
                          "zebra",
                          "u",
                          "u 0.1 0.2 zebra",
                          "u 0.5 1",
                          "u -0.1",
                          "u -0.0",
                          "u 1e-400",
                          "u nan",
                          "u 0x1p-1",
                          "u 0.5.5",
                          "seed",
                          "seed x",
                          "seed 1.5",
                          "queued 1",
                          "start now",
                          "over",
                          "over Nobody",
                          "over Pict",
                          "over commpr(99)",
                          "over Command8",
                          "click Command8",
                          "click Framecen",
                          "at 1",
                          "at 1 x",
                          "at 1 2 3",
                          "down both",
                          "up 1",
                          "scroll commpr(1) 3",
                          "scroll Nobody 1",
                          "get Label2",
                          "get Label2 caption",
                          "get Nobody Caption",
                          "shot",
                          "shot x.png -1",
                          "picture CONTPOK1",
                          "picture Nobody x.png",
                          "quit now",
                          "Screen"}) {
    EXPECT_EQ(room(bad).substr(0, 7), "error: ") << bad;
  }
  EXPECT_EQ(room("queued"), "0");
  EXPECT_EQ(room("start"), "ok") << "nothing of the above has started the room";
  EXPECT_EQ(room("start").substr(0, 7), "error: ");
  EXPECT_EQ(room("screen"), "Frameprincipale");
}

TEST(Driver, TheDumpShowsWhatIsOnView) {
  Session room;
  room.play({"click commpr(2)"});
  const std::string dump = room("dump");
  EXPECT_NE(dump.find("\nMENUVP Visible=1 Enabled=1 BackColor=0xFF8080 "), std::string::npos);
  EXPECT_NE(dump.find(" Caption=NUOVA PARTITA\n"), std::string::npos);
  EXPECT_EQ(dump.find("Command4"), std::string::npos);
  EXPECT_EQ(dump.find("Command1 "), std::string::npos);
  EXPECT_EQ(dump.substr(dump.size() - 2), "\n.");
}

TEST(Driver, WithoutACameraNoPictureIsWritten) {
  Session room;
  EXPECT_EQ(room("shot " + (room.data.path() / "x.png").string()).substr(0, 7), "error: ");
  EXPECT_TRUE(std::filesystem::is_empty(room.data.path()));
}

TEST(Driver, ALongLineIsRefusedAndNoAnswerRepeatsMuch) {
  Session room;
  const std::string most = "get " + std::string((64 << 10) - 4, 'x');
  std::string wide = "x";
  for (int i = 0; i < 60; ++i) wide += "\xC3\xA8";
  std::istringstream in(most + "x\n" + most + '\n' + wide + "\nover " + most.substr(4, 300) + "\nscreen");
  std::ostringstream out;
  room.driver.run(in, out);
  EXPECT_EQ(out.str(), "error: a line of more than 64 KiB\nerror: wrong number of words: get\n" +
                           ("error: unknown command: " + wide.substr(0, 79)) +
                           "\nerror: unknown control: " + std::string(80, 'x') + "\nFrameprincipale\n");
}

TEST(Driver, EndsOnItsLastCommand) {
  Session room;
  EXPECT_FALSE(room.driver.ended());
  EXPECT_EQ(room("quit"), "ok");
  EXPECT_TRUE(room.driver.ended());
}

TEST(Driver, ListsTheCatalogue) {
  Session room;
  const std::string list = room("pictures");
  for (const char* line : {"commpr(1) 166x18\n", "\nPicture1(52) 70x93\n", "\nsegn(3) 167x20\n", "\n."}) {
    EXPECT_NE(list.find(line), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace tombolario
