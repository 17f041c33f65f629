#pragma once

#include <cstdint>

#include "pieces/slots.hpp"
#include "ramino/positions.hpp"

namespace tombolario::ramino {

/// What a position of the computer is good for.
enum class Mark : std::int16_t { Free, Pair, Tris };

/// What the computer makes of its hand and of the card that it considers. It lasts from turn to turn.
struct Marking {
  Slots<Mark, kComputerFirst, kConsidered> segnoRam{};
  Numbers<kComputerFirst, kConsidered> grupRam{};  ///< the number of the `tris` that holds a position
  std::int16_t nGrupRam = 0;                       ///< of the next one
};

/// Card numbers, 0 to 51, of the computer's hand and of the card that it considers.
using ComputerCards = Numbers<kComputerFirst, kConsidered>;

/// Forgets the pairs in the hand. The considered position keeps its mark for the card that comes there.
void clearPairs(Marking& marking);

/// Marks sets of three, then runs of three in a suit (the ace below the two only), then pairs of equal
/// value; each as first found from the lowest positions. What is in a `tris` stays in it.
void analyse(const ComputerCards& cards, Marking& marking);

/// Whether every card in the hand has a mark.
bool allMarked(const Marking& marking);

/// How many cards of the hand are in a `tris`.
int countInTris(const Marking& marking);

}  // namespace tombolario::ramino
