#pragma once

#include <cstdint>

#include "pieces/cards.hpp"
#include "pieces/chance.hpp"
#include "ramino/analysis.hpp"
#include "ramino/positions.hpp"

namespace tombolario::ramino {

inline constexpr int kListPlaces = 37;  ///< of the list of discards, more than a hand can fill

/// The beginner always draws from the stock; the expert takes the table card where it makes a `tris`.
enum class Level { Beginner, Expert };

/// Nothing before the first deal; then the player's turn up to the computer's, or how the hand has ended.
enum class Phase { NoHand, ToDraw, InPlay, Placed, Won, Lost, StockOut };

/// Where the card in play is from, if there is one.
enum class Pile { None, Stock, Table };

enum class FrameState { Free, Selected, Locked };

/// A match of ramino against the computer. What the phase does not allow does nothing.
class Ramino {
 public:
  /// Deals the first hand of a match, at any moment.
  void newMatch(UniformSource& uniform);
  /// Deals the next hand, after one that has ended, where the match goes on.
  void nextHand(UniformSource& uniform);

  /// The player, who has drawn nothing yet, draws the next card of the stock; the last one ends the hand.
  void drawFromStock();
  /// The player, who has drawn nothing yet, takes the table card.
  void takeFromTable();
  /// The card in play goes to the table.
  void leave();
  /// The player presses the button of a card, 0 to 8, as long as the hand lasts: exchanges it for the card in
  /// play, or else selects it or not. Three that are selected and pass lock as a `tris`; the third `tris`
  /// wins the hand.
  void press(int card);
  /// Exchanges the places of two selected cards, also when the hand is over; nothing unless two are.
  void swapSelected();
  /// The computer's whole turn, when the player's is done.
  void computerTurn(Level level);

  Phase phase() const { return phase_; }
  bool isOver() const { return phase_ > Phase::Placed; }
  /// Whether the hand is over and another can follow in this match.
  bool goesOn() const;
  /// Stays on the stock when its last card has ended the hand.
  Pile inPlayFrom() const { return inPlayFrom_; }
  /// Whether the player sees the table card that completes a `tris` of the expert's: until the computer's
  /// next turn, or until a side wins.
  bool tableCardShown() const { return tableCardShown_; }
  int card(int position) const { return mazzoRam[position]; }
  FrameState frame(int card) const { return frames_[card]; }
  /// How many cards the player has selected, up to 3.
  int selRam() const;
  const Marking& marking() const { return marking_; }
  /// The table cards that were covered, to look at.
  int discards() const { return nScartiRam; }
  int discard(int place) const { return scarti_[place]; }
  int wonByPlayer() const { return vintiUmanoRam; }
  int wonByComputer() const { return vintiCompRam; }

 private:
  void avvioRAM(UniformSource& uniform);
  void takeInHand(Pile from);
  void unlock(int card);
  bool selectedAreTris() const;
  void lockTris();
  bool lookAtTable();
  void playFromStock();
  void consider(int position);
  bool place();
  bool fitIn();
  void list(std::int16_t card);
  void end(Phase how);

  Numbers<0, kPack - 1> mazzoRam{};  ///< the card at each position, as dealt and as moved since
  Marking marking_;                  ///< of the computer's positions
  Slots<FrameState, 0, kPlayerCards - 1> frames_{};
  std::int16_t cimaRam = kStockFirst;  ///< the next position of the stock
  Phase phase_ = Phase::NoHand;
  Pile inPlayFrom_ = Pile::None;
  bool tableCardShown_ = false;
  Numbers<0, kListPlaces - 1> scarti_{};
  std::int16_t nScartiRam = 0;
  std::int16_t vintiUmanoRam = 0;
  std::int16_t vintiCompRam = 0;
};

}  // namespace tombolario::ramino
