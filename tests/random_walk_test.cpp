#include <random>

#include "pictures/catalogue.hpp"
#include "session.hpp"
#include "walk.hpp"

namespace tombolario {
namespace {

class RandomWalk : public testing::TestWithParam<int> {};

TEST_P(RandomWalk, NeverLeavesTheRulesOfTheRoom) {
  std::mt19937 engine(20261123);
  std::vector<std::uint8_t> choices(400'000);
  for (std::uint8_t& choice : choices) choice = static_cast<std::uint8_t>(engine());
  const TemporaryDirectory directory;
  Walk walk(choices, directory.path());
  walk.enter(GetParam());
  ASSERT_NO_THROW(walk.play()) << "after " << walk.events() << " events";
  EXPECT_GT(walk.events(), 150'000);
  EXPECT_GE(walk.invariants().ends(GetParam()), 4) << "the walk should get somewhere";
}

INSTANTIATE_TEST_SUITE_P(Games, RandomWalk, testing::Range(1, pictures::commpr.count + 1));

}  // namespace
}  // namespace tombolario
