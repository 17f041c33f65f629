#pragma once

#include <array>
#include <cstdlib>
#include <vector>

/// Ramino by its plain description, step by step, to hold the game against.
namespace tombolario::reckoning {

inline int value(int card) { return card % 13; }
inline int suit(int card) { return card / 13; }

/// The computer's twelve positions, 10 to 21, as it marks them: 0 free, 1 paired, 2 in a `tris`.
struct Twelve {
  std::array<int, 22> card{}, mark{}, group{};
  int nextGroup = 0;

  void clearPairs() {
    for (std::size_t p = 10; p <= 20; ++p) {
      if (mark[p] == 1) mark[p] = 0;
    }
  }
  void look() {
    for (const bool runs : {false, true}) {
      for (std::size_t p = 10; p <= 21; ++p)
        for (std::size_t q = 10; q <= 21; ++q)
          for (std::size_t r = 10; r <= 21; ++r) tryTris(p, q, r, runs);
    }
    for (std::size_t p = 10; p <= 21; ++p) {
      for (std::size_t q = 10; q <= 21; ++q) {
        if (p == q || mark[p] != 0 || mark[q] != 0 || value(card[p]) != value(card[q])) continue;
        mark[p] = mark[q] = 1;
      }
    }
  }
  bool handAllMarked() const {
    for (std::size_t p = 10; p <= 20; ++p) {
      if (mark[p] == 0) return false;
    }
    return true;
  }
  int inTris() const {
    int count = 0;
    for (std::size_t p = 10; p <= 20; ++p) count += mark[p] == 2;
    return count;
  }

 private:
  void tryTris(std::size_t p, std::size_t q, std::size_t r, bool run) {
    if (p == q || q == r || p == r || mark[p] == 2 || mark[q] == 2 || mark[r] == 2) return;
    const int a = card[p];
    const int b = card[q];
    const int c = card[r];
    const bool equal = value(a) == value(b) && value(b) == value(c);
    const bool consecutive =
        suit(a) == suit(b) && suit(b) == suit(c) &&
        std::abs(value(a) - value(b)) + std::abs(value(b) - value(c)) + std::abs(value(a) - value(c)) == 4;
    if (run ? !consecutive : !equal) return;
    mark[p] = mark[q] = mark[r] = 2;
    group[p] = group[q] = group[r] = nextGroup++;
  }
};

/// Whether the player may lock the three.
inline bool playersTris(int a, int b, int c) {
  if (value(a) == value(b) && value(b) == value(c)) return true;
  if (suit(a) != suit(b) || suit(b) != suit(c)) return false;
  std::array<bool, 14> there{};
  for (const int card : {a, b, c}) there.at(static_cast<std::size_t>(value(card))) = true;
  there[13] = there[0];
  for (std::size_t low = 0; low + 2 < there.size(); ++low) {
    if (there[low] && there[low + 1] && there[low + 2]) return true;
  }
  return false;
}

}  // namespace tombolario::reckoning
