#pragma once

#include <cstdint>

#include "pieces/cards.hpp"
#include "pieces/chance.hpp"
#include "poker/award.hpp"
#include "poker/classification.hpp"

namespace tombolario::poker {

// The pack in dealt order: the player's hand and its replacements, then the computer's hand and its next
// card.
inline constexpr int kComputerSlot = 2 * kHandSize;
inline constexpr int kNextCardSlot = kComputerSlot + kHandSize;

enum class Phase {
  NoMatch,    ///< before the first one, and after one that was left
  Dealt,      ///< the player marks
  Scored,     ///< the hand is over, the match goes on
  MatchOver,  ///< a score is above the limit
};

/// A match of poker against the computer: the scores, and the two hands on the table. What its phase does not
/// allow does nothing.
class Poker {
 public:
  /// A new match without a score, at any moment, and its first hand.
  void newMatch(UniformSource& uniform);
  /// Deals the next hand, as long as it may be dealt.
  void newHand(UniformSource& uniform);
  /// Leaves a match, which is forgotten. Other cards are dealt, which nobody plays.
  void leave(UniformSource& uniform);
  /// Marks the player's card in a position, 0 to 4, for change, or takes its mark off. Only between a deal
  /// and the showdown.
  void toggleMark(int position);
  /// Changes the player's marked cards, from left to right, for the replacements in their order, lets the
  /// computer draw, and adds what the better hand counts to the score of its side. Only where a hand is
  /// dealt.
  void showDown(Level level, Counting counting);

  Phase phase() const { return phase_; }
  /// Whether the next hand may be dealt: the hand is over and the match goes on. A new match begun then does
  /// not take this back, so its first hand may be dealt once more.
  bool mayDeal() const { return mayDeal_; }
  bool isMarked(int position) const { return marked_[position]; }
  /// Whether the showdown is over; until then the computer's cards lie face down.
  bool cardsAreOpen() const { return phase_ == Phase::Scored || phase_ == Phase::MatchOver; }
  /// The number of the card in a slot, 0 to 15. A card that came into a hand is told at its old slot too.
  int card(int slot) const { return mazzopok[slot]; }
  // Until the showdown neither hand makes anything, and nobody has won.
  const Classification& playerClass() const { return classehum; }
  const Classification& computerClass() const { return classecom; }
  /// Who has won the hand, and with it the match where that is over.
  Side handWinner() const { return handWinner_; }
  int playerScore() const { return playerScore_; }
  int computerScore() const { return computerScore_; }

 private:
  void avvioPOKER(UniformSource& uniform);
  void clearScore() { playerScore_ = computerScore_ = 0; }
  void changePlayer();
  void changeComputer();
  void award(Level level, Counting counting);

  Phase phase_ = Phase::NoMatch;
  bool mayDeal_ = false;
  Numbers<0, kPack - 1> mazzopok{};  ///< card numbers in dealt order; the last is not dealt
  Marks marked_{};
  Classification classehum;
  Classification classecom;
  Side handWinner_ = Side::Nobody;
  std::int16_t playerScore_ = 0;
  std::int16_t computerScore_ = 0;
};

}  // namespace tombolario::poker
