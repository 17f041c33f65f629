#include "ramino/tris.hpp"

#include <cstdlib>

#include "pieces/cards.hpp"

namespace tombolario::ramino {

namespace {

bool inOneSuit(int a, int b, int c) { return cardSuit(a) == cardSuit(b) && cardSuit(b) == cardSuit(c); }

}  // namespace

bool isSet(int a, int b, int c) { return cardValue(a) == cardValue(b) && cardValue(b) == cardValue(c); }

bool isRun(int a, int b, int c) {
  const int x = cardValue(a);
  const int y = cardValue(b);
  const int z = cardValue(c);
  return inOneSuit(a, b, c) && std::abs(x - y) + std::abs(y - z) + std::abs(x - z) == 4;
}

bool isHighRun(int a, int b, int c) {
  const int x = cardValue(a);
  const int y = cardValue(b);
  const int z = cardValue(c);
  // Only 0, 11 and 12 give both.
  return inOneSuit(a, b, c) && x * y * z == 0 && x * y + y * z + x * z == 132;
}

}  // namespace tombolario::ramino
