#include <random>

#include "session.hpp"
#include "walk.hpp"

namespace tombolario {
namespace {

struct Goals {
  int game;
  std::vector<const char*> ends;

  friend void PrintTo(const Goals& goals, std::ostream* out) { *out << goals.game; }
};

class RandomWalk : public testing::TestWithParam<Goals> {};

TEST_P(RandomWalk, NeverLeavesTheRulesOfTheRoom) {
  std::mt19937 engine(20261123);
  const TemporaryDirectory directory;
  Reached reached;
  const int nextFile = dup(0);
  close(nextFile);
  for (int room = 0; room < 5; ++room) {
    std::vector<std::uint8_t> choices(50'000);
    for (std::uint8_t& choice : choices) choice = static_cast<std::uint8_t>(engine());
    Walk walk(choices, directory.path());
    walk.enter(GetParam().game);
    ASSERT_NO_THROW(walk.play()) << "in room " << room << " after " << walk.events() << " events";
    EXPECT_GT(walk.events(), 15'000);
    for (const auto& [end, times] : walk.reached()) reached[end] += times;
  }
  EXPECT_EQ(dup(0), nextFile) << "a file is still open";
  close(nextFile);
  for (const char* end : GetParam().ends) EXPECT_TRUE(reached.contains(end) && reached.at(end) > 0) << end;
}

INSTANTIATE_TEST_SUITE_P(
    Games, RandomWalk,
    testing::Values(
        Goals{1, {"poker match won", "poker match lost"}},
        Goals{2,
              {"videopoker run won", "videopoker run lost", "videopoker.dat saved", "videopoker.dat loaded"}},
        Goals{3,
              {"domino game won", "domino game lost", "domino game drawn", "domino match won",
               "domino match lost"}},
        Goals{4, {"chain level won", "chain level lost", "CATENA.dat saved", "CATENA.dat loaded"}},
        Goals{5, {"ramino hand won", "ramino hand lost", "ramino match won", "ramino match lost"}},
        Goals{6, {"mahjongg board won"}}));

}  // namespace
}  // namespace tombolario
