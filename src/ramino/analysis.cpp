#include "ramino/analysis.hpp"

#include "pieces/cards.hpp"
#include "ramino/tris.hpp"

namespace tombolario::ramino {

namespace {

/// Makes a `tris` of every three loose cards that pass the test. A test does not depend on their order, so
/// ascending positions find what any order of looking would find first.
template <class Test>
void markTris(const ComputerCards& cards, Marking& marking, Test isTris) {
  const auto loose = [&](int position) { return marking.segnoRam[position] != Mark::Tris; };
  for (int p = kComputerFirst; p <= kConsidered; ++p) {
    for (int q = p + 1; q <= kConsidered; ++q) {
      for (int r = q + 1; r <= kConsidered; ++r) {
        if (!loose(p) || !loose(q) || !loose(r) || !isTris(cards[p], cards[q], cards[r])) continue;
        for (const int position : {p, q, r}) {
          marking.segnoRam[position] = Mark::Tris;
          marking.grupRam[position] = marking.nGrupRam;
        }
        ++marking.nGrupRam;
      }
    }
  }
}

void markPairs(const ComputerCards& cards, Marking& marking) {
  for (int p = kComputerFirst; p <= kConsidered; ++p) {
    for (int q = p + 1; q <= kConsidered; ++q) {
      const bool free = marking.segnoRam[p] == Mark::Free && marking.segnoRam[q] == Mark::Free;
      if (free && cardValue(cards[p]) == cardValue(cards[q])) {
        marking.segnoRam[p] = marking.segnoRam[q] = Mark::Pair;
      }
    }
  }
}

}  // namespace

void clearPairs(Marking& marking) {
  for (int position = kComputerFirst; position <= kComputerLast; ++position) {
    Mark& mark = marking.segnoRam[position];
    if (mark == Mark::Pair) mark = Mark::Free;
  }
}

void analyse(const ComputerCards& cards, Marking& marking) {
  markTris(cards, marking, isSet);
  markTris(cards, marking, isRun);
  markPairs(cards, marking);
}

bool allMarked(const Marking& marking) {
  for (int position = kComputerFirst; position <= kComputerLast; ++position) {
    if (marking.segnoRam[position] == Mark::Free) return false;
  }
  return true;
}

int countInTris(const Marking& marking) {
  int count = 0;
  for (int position = kComputerFirst; position <= kComputerLast; ++position) {
    if (marking.segnoRam[position] == Mark::Tris) ++count;
  }
  return count;
}

}  // namespace tombolario::ramino
