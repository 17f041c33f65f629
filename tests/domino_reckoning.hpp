#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

/// Domino against the computer by its plain description, to hold the game against.
namespace tombolario::reckoning {

using Pair = std::pair<int, int>;
using Slot = int;

/// The 28 tiles in their order.
inline const std::vector<Pair>& set() {
  static const std::vector<Pair> tiles = [] {
    std::istringstream in(
        "00 01 02 03 04 05 06 11 12 13 14 15 16 22 23 24 25 26 33 34 35 36 44 45 46 55 56 66");
    std::vector<Pair> read;
    for (std::string tile; in >> tile;) read.emplace_back(tile[0] - '0', tile[1] - '0');
    return read;
  }();
  return tiles;
}

/// A way to lay a tile: where, how it then lies, what it leaves open.
struct Move {
  Slot slot = 0;
  bool left = false;
  bool reversed = false;
  int leaves = 0;
};

/// All ways to lay the tiles of a hand, by slot; a tile goes right before left, as it lies before reversed.
inline std::vector<Move> moves(const std::map<Slot, Pair>& hand, int sx, int dx) {
  std::vector<Move> found;
  for (const auto& [slot, tile] : hand) {
    const auto [a, b] = tile;
    if (a == dx) found.push_back({slot, false, false, b});
    if (b == sx) found.push_back({slot, true, false, a});
    if (b == dx) found.push_back({slot, false, true, a});
    if (a == sx) found.push_back({slot, true, true, b});
  }
  return found;
}

/// The computer's: the beginner's first; the expert's that leaves open the number that the player holds
/// least.
inline std::optional<Move> choice(const std::map<Slot, Pair>& hand, int sx, int dx,
                                  const std::array<int, 7>& held, bool expert) {
  const auto all = moves(hand, sx, dx);
  if (all.empty()) return std::nullopt;
  if (!expert) return all.front();
  return *std::min_element(all.begin(), all.end(), [&](const Move& a, const Move& b) {
    return std::pair(held.at(static_cast<std::size_t>(a.leaves)), a.leaves) <
           std::pair(held.at(static_cast<std::size_t>(b.leaves)), b.leaves);
  });
}

inline std::array<int, 7> countsOf(const std::map<Slot, Pair>& hand) {
  std::array<int, 7> counts{};
  for (const auto& [slot, tile] : hand) {
    for (int n = 0; n < 7; ++n) counts.at(static_cast<std::size_t>(n)) += tile.first == n || tile.second == n;
  }
  return counts;
}

}  // namespace tombolario::reckoning
