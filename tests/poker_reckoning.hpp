#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// Poker against the computer by its plain description, to hold the game against. Cards are numbers, 0 to 51.
namespace tombolario::reckoning {

using Five = std::array<int, 5>;

struct PlainHand {
  int kind = 0;
  std::string text = " ";
  std::vector<int> compared;  // what two hands of the kind are compared by, the first number first
  std::array<std::string, 5> frames{"3d-light", "3d-light", "3d-light", "3d-light", "3d-light"};
};

inline std::string letter(int card) {
  const std::vector<std::string> letters{"A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"};
  return letters[static_cast<std::size_t>(card % 13)];
}

/// The card on top of five in sequence, or -1. The ace stands at both ends of the row of values.
inline int topOfSequence(const Five& cards) {
  std::string row(14, '.');
  for (const int card : cards) row[static_cast<std::size_t>(card % 13)] = 'x';
  row[13] = row[0];
  const auto low = row.find("xxxxx");
  return low == std::string::npos ? -1 : static_cast<int>(low + 4) % 13;
}

inline PlainHand reckon(const Five& cards) {
  std::map<int, int> copies;  // of each rank
  std::set<int> suits;
  const auto rank = [](int card) { return card % 13 == 0 ? 13 : card % 13; };
  for (const int card : cards) {
    ++copies[rank(card)];
    suits.insert(card / 13);
  }
  std::vector<std::pair<int, int>> groups;  // the greater, then the higher first
  for (const auto& [of, count] : copies) groups.emplace_back(count, of);
  std::sort(groups.begin(), groups.end(), std::greater<>());
  std::string shape;
  for (const auto& group : groups) shape += std::to_string(group.first);

  PlainHand hand;
  const std::map<std::string, std::pair<int, std::string>> kinds{
      {"2111", {1, "coppia   "}}, {"221", {2, "doppia coppia   "}}, {"311", {3, "tris   "}},
      {"32", {5, "full   "}},     {"41", {7, "poker   "}},
  };
  if (const auto found = kinds.find(shape); found != kinds.end()) {
    const bool two = shape == "221" || shape == "32";
    hand.kind = found->second.first;
    hand.text = found->second.second + letter(groups[0].second) + (two ? "/" + letter(groups[1].second) : "");
    hand.compared = {groups[0].second};
    if (two) hand.compared.push_back(groups[1].second);
    if (shape == "221") hand.compared.push_back(groups[2].second);
    for (std::size_t i = 0; i < 5; ++i) {
      if (rank(cards[i]) == groups[0].second) hand.frames[i] = "0x00FF00";
      if (two && rank(cards[i]) == groups[1].second) hand.frames[i] = "0xC0FFC0";
    }
    return hand;
  }
  const bool flush = suits.size() == 1;
  const int top = shape == "11111" ? topOfSequence(cards) : -1;
  if (flush) {
    hand.kind = 6;
    hand.text = "colore";
  }
  if (top >= 0) {
    hand.kind = flush ? 8 : 4;
    hand.text = flush ? "scala reale" : "scala";
    hand.compared = {top};
    for (std::size_t i = 0; i < 5; ++i) {
      if (cards[i] % 13 == top) hand.frames[i] = "0xFFFF00";
    }
  }
  return hand;
}

/// The five cards that the computer keeps of those dealt to it, when it would receive that one.
inline Five draw(const Five& dealt, int next) {
  std::vector<Five> choices(6, dealt);
  for (std::size_t i = 0; i < 5; ++i) choices[i + 1][i] = next;
  const auto worse = [](const Five& a, const Five& b) { return reckon(a).kind < reckon(b).kind; };
  return *std::max_element(choices.begin(), choices.end(), worse);
}

/// 'P' for the player, 'C' for the computer, '-' for nobody.
inline char winner(const PlainHand& player, const PlainHand& computer, bool high) {
  if (player.kind != computer.kind) return player.kind > computer.kind ? 'P' : 'C';
  if (player.kind == 0) return '-';
  if (high) return 'C';
  if (player.compared == computer.compared) return '-';
  return player.compared > computer.compared ? 'P' : 'C';
}

}  // namespace tombolario::reckoning
