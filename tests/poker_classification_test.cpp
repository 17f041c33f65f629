#include "poker/classification.hpp"

#include <gtest/gtest.h>

#include "poker_reckoning.hpp"
#include "sanitized.hpp"

namespace tombolario::poker {
namespace {

std::string frameOf(Role role) {
  switch (role) {
    case Role::None: return "3d-light";
    case Role::FirstGroup: return "0x00FF00";
    case Role::SecondGroup: return "0xC0FFC0";
    case Role::Top: return "0xFFFF00";
  }
  return {};
}

/// The numbers that the class is compared by, in the way of the reckoning.
std::vector<int> compared(const Classification& found) {
  if (found.kind == kStraight || found.kind == kStraightFlush) return {found.cimapok};
  std::vector<int> ranks(found.confrontopok.begin(), found.confrontopok.end());
  while (!ranks.empty() && ranks.back() == 0) ranks.pop_back();
  return ranks;
}

TEST(PokerClassification, AgreesWithThePlainDescriptionOnEveryHand) {
  constexpr int kStep = kSanitized ? 101 : 1;
  std::array<long, 9> counts{};
  long hands = 0;
  reckoning::Five c{};
  for (c[0] = 0; c[0] < 52; ++c[0])
    for (c[1] = c[0] + 1; c[1] < 52; ++c[1])
      for (c[2] = c[1] + 1; c[2] < 52; ++c[2])
        for (c[3] = c[2] + 1; c[3] < 52; ++c[3])
          for (c[4] = c[3] + 1; c[4] < 52; ++c[4]) {
            if (++hands % kStep != 0) continue;
            auto cards = c;
            std::rotate(cards.begin(), cards.begin() + hands % 5, cards.end());
            const Classification found = classify({cards});
            const reckoning::PlainHand plain = reckoning::reckon(cards);
            ++counts.at(static_cast<std::size_t>(plain.kind));
            bool agrees =
                found.kind == plain.kind && found.text() == plain.text && compared(found) == plain.compared;
            for (std::size_t i = 0; i < cards.size(); ++i) {
              agrees = agrees && frameOf(found.roleOf(cards.at(i))) == plain.frames.at(i);
            }
            ASSERT_TRUE(agrees) << cards[0] << ' ' << cards[1] << ' ' << cards[2] << ' ' << cards[3] << ' '
                                << cards[4] << ": " << found.text() << ", should be " << plain.text;
          }
  EXPECT_EQ(hands, 2'598'960);
  if (kStep == 1) {
    EXPECT_EQ(counts,
              (std::array<long, 9>{1'302'540, 1'098'240, 123'552, 54'912, 10'200, 3'744, 5'108, 624, 40}));
  }
}

struct Example {
  reckoning::Five cards;
  const char* text;
  int top;
};

TEST(PokerClassification, TellsApartTheHandsThatDifferByLittle) {
  const std::array<Example, 12> examples{{
      {{9, 23, 37, 12, 13}, "scala", 0},         // 10 to the ace
      {{9, 10, 11, 12, 0}, "scala reale", 0},    //
      {{13, 1, 28, 3, 4}, "scala", 4},           // the ace low
      {{14, 15, 16, 17, 18}, "scala reale", 5},  // at any height
      {{11, 12, 13, 1, 2}, " ", 0},              // no way round the king
      {{10, 11, 12, 13, 1}, " ", 0},             //
      {{0, 2, 4, 6, 8}, "colore", 0},            //
      {{0, 13, 5, 18, 7}, "doppia coppia   A/6", 0},
      {{12, 25, 0, 13, 7}, "doppia coppia   A/K", 0},
      {{1, 14, 27, 0, 13}, "full   2/A", 0},
      {{12, 25, 38, 0, 13}, "full   K/A", 0},
      {{0, 13, 2, 4, 6}, "coppia   A", 0},
  }};
  for (const auto& [cards, text, top] : examples) {
    const Classification found = classify({cards});
    EXPECT_EQ(found.text(), text);
    EXPECT_EQ(found.cimapok, top) << text;
  }
  EXPECT_EQ(classify({{0, 13, 2, 4, 6}}).confrontopok[0], 13);
}

}  // namespace
}  // namespace tombolario::poker
