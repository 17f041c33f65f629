#pragma once

#include <cstdint>
#include <optional>

#include "pieces/cards.hpp"
#include "pieces/chance.hpp"
#include "poker/award.hpp"
#include "poker/classification.hpp"
#include "poker/draw.hpp"

namespace tombolario::poker {

// The pack in dealt order: the player's hand and its replacements, then the computer's hand and its next
// card.
inline constexpr int kComputerSlot = 2 * kHandSize;
inline constexpr int kNextCardSlot = kComputerSlot + kHandSize;
inline constexpr int kSlots = kNextCardSlot + 1;

/// A match of poker against the computer: the scores, and the two hands on the table.
class Poker {
 public:
  /// A new match, with no score.
  void begin();

  /// Shuffles and deals both hands; what the last hand was is forgotten.
  void avvioPOKER(UniformSource& uniform);
  /// Changes the player's marked cards, from left to right, for the replacements in their order, and
  /// classifies the hand. Gives the slot that each position has its card from.
  OfHand<int> changePlayer(const Marks& marked);
  /// Lets the computer draw. Gives the position whose card it changes, if any.
  std::optional<int> changeComputer();
  /// Adds the hand to the score of the side that wins it.
  Side award(Level level, Counting counting);
  /// Who has won the match, if it is over.
  Side matchWinner(Counting counting) const;

  /// The number of the card in a slot, 0 to 15.
  int card(int slot) const { return mazzopok[slot]; }
  const Classification& player() const { return classehum; }
  const Classification& computer() const { return classecom; }
  int playerScore() const { return playerScore_; }
  int computerScore() const { return computerScore_; }

 private:
  Cards handAt(int slot) const;

  Numbers<0, kPack - 1> mazzopok{};  ///< card numbers in dealt order; the last is not dealt
  Classification classehum;
  Classification classecom;
  std::int16_t playerScore_ = 0;
  std::int16_t computerScore_ = 0;
};

}  // namespace tombolario::poker
