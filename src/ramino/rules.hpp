#pragma once

#include <cstdint>

#include "pieces/cards.hpp"
#include "pieces/chance.hpp"
#include "ramino/analysis.hpp"
#include "ramino/positions.hpp"

namespace tombolario::ramino {

inline constexpr int kListPlaces = 37;  ///< of the list of discards, more than a hand can fill
inline constexpr int kHandsToWin = 9;

/// The beginner always draws from the stock; the expert takes the table card where it makes a `tris`.
enum class Level { Beginner, Expert };

enum class Phase { ToDraw, InPlay, Placed, Over };

/// How a hand has ended.
enum class Result { None, Won, Lost, Drawn };

enum class FrameState { Free, Selected, Locked };

/// Everything that a hand of ramino and its match have come to.
struct State {
  Numbers<0, kPack - 1> mazzoRam{};  ///< the card at each position, as dealt and as moved since
  Marking marking;                   ///< of the computer's positions
  Slots<FrameState, 0, kPlayerCards - 1> frames{};
  int selRam = 0;  ///< how many frames are selected, up to 3
  int cimaRam = kStockFirst;
  Phase phase = Phase::ToDraw;
  Result result = Result::None;
  Numbers<0, kListPlaces - 1> scarti{};  ///< covered table cards, to look at
  int nScartiRam = 0;
  std::int16_t vintiUmanoRam = 0;
  std::int16_t vintiCompRam = 0;
};

/// A match of ramino against the computer.
class Ramino {
 public:
  /// A new match, with no hand won.
  void begin();
  /// Deals a hand. The frames stay as they are.
  void avvioRAM(UniformSource& uniform);
  void freeFrames();

  /// The player draws the next card of the stock; with the last one the hand is drawn.
  void drawFromStock();
  /// The player takes the table card.
  void takeFromTable();
  /// The player leaves the card in play on the table.
  void leave();
  /// The player presses a card's button: exchanges it for the card in play, or selects it or not. Three
  /// that are selected and pass lock as a `tris`; the third `tris` wins the hand.
  void press(int card);
  /// Exchanges the places of two selected cards.
  void swapSelected();

  /// The computer's whole turn. True if it took the table card for a `tris`.
  bool computerTurn(Level level);

  /// Whether a hand can follow in this match.
  bool goesOn() const { return s_.vintiUmanoRam < kHandsToWin && s_.vintiCompRam < kHandsToWin; }
  int card(int position) const { return s_.mazzoRam[position]; }
  const State& state() const { return s_; }

 private:
  void takeInHand();
  void list(std::int16_t card);
  void exchange(int card);
  void lockTris();
  bool selectedAreTris() const;
  void analyse();
  void consider(int position);
  bool place();
  bool fitIn();
  void end(Result result);

  State s_;
};

}  // namespace tombolario::ramino
