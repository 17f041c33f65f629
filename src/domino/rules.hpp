#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "domino/computer.hpp"
#include "domino/line.hpp"
#include "pieces/chance.hpp"

namespace tombolario::domino {

// The line lies in numbered boxes, and grows from the one of its opening tile.
inline constexpr int kBoxes = 61;  ///< far more than a game can lay
inline constexpr int kOpeningBox = 30;

enum class Phase { PlayerToLay, PlayerStuck, ComputerToMove, GameOver, MatchOver };

/// What the ends of the line tell, which is what has happened last. A deal tells nothing, even of a player
/// who is stuck; nor does the player's pass.
enum class Signal { Nothing, LaidLeft, LaidRight, ComputerPassed, NoTileFits };

enum class Result { None, Won, Lost, Drawn };

enum class Side { Player, Computer };

/// What a match counts: the games won up to 9, or the tiles by which they are won up to 30.
enum class Counting { ByGame, ByTile };

struct Score {
  std::int16_t player = 0;
  std::int16_t computer = 0;
};

/// A match of domino against the computer, game by game. What its phase does not allow does nothing.
class Domino {
 public:
  /// Drops game and match, and deals all tiles: one opens the line, fourteen are the player's and thirteen
  /// the computer's. At any time; the score stands until a match begins.
  void inizioDOMINO(UniformSource& uniform);
  /// A new match, with the game that has been dealt: as long as nobody has moved in it.
  void begin();
  /// Lays a tile of the player, slot 1 to 14, at an end, reversed where it must be. Nothing where it does not
  /// fit, has been laid, or the player is not to lay.
  void lay(int slot, End end);
  /// The player passes: only when stuck.
  void pass();
  /// The computer lays a tile or passes: only when it is to move. Where both have passed the game is over.
  void computerTurn(Level level);
  /// After a game that is over: deals the next one, or the match is over too; then nothing more.
  void next(Counting counting, UniformSource& uniform);

  Phase phase() const { return phase_; }
  Signal signal() const { return signal_; }
  /// Of the last game that came to its end; none before the first.
  Result result() const { return result_; }
  /// Of the match: games won, or the tiles by which they were won.
  const Score& score(Counting counting) const {
    return counting == Counting::ByGame ? gamesWon_ : tilesWonBy_;
  }

  /// The face that was dealt to a slot, 0 to 55: slot i + 28 is slot i reversed.
  int dealt(int slot) const;
  /// The face that a tile, slot 0 to 27, shows: as it was dealt, until it is laid reversed.
  int shown(int slot) const { return dealt(reversed_[slot] ? slot + kTiles : slot); }
  /// Whether a tile of either side, slot 1 to 27, is still to be laid.
  bool inHand(int slot) const { return inHand_[slot]; }
  /// How many tiles a side still holds.
  int tilesLeft(Side side) const { return static_cast<int>(hand(side).size()); }
  /// How many of them bear each number; a double counts once.
  Numbers<0, kNumbers - 1> contadom(Side side) const;

  // The line: the boxes of its two ends, the face in a box from the one to the other, and the open numbers.
  int primodom() const { return primodom_; }
  int ultimodom() const { return primodom_ + static_cast<int>(line_.size()) - 1; }
  int faceIn(int box) const { return shown(line_.at(static_cast<std::size_t>(box - primodom_))); }
  OpenEnds open() const { return {tile(line_.front()).first, tile(line_.back()).second}; }

 private:
  const Tile& tile(int slot) const { return kFaceNumbers[shown(slot)]; }
  std::vector<int> hand(Side side) const;
  bool playerFits() const;
  void place(int slot, const Placement& placement);
  void settle();

  Phase phase_ = Phase::MatchOver;  ///< none has begun
  bool playerPassed_ = false;       ///< in the turn before the computer's
  Signal signal_ = Signal::Nothing;
  Result result_ = Result::None;
  Numbers<0, kTiles - 1> mischiadom_{};  ///< the tile in each slot, as dealt
  Slots<bool, 1, kTiles - 1> inHand_{};
  Slots<bool, 0, kTiles - 1> reversed_{};
  std::deque<int> line_{0};  ///< slots, from left to right
  int primodom_ = kOpeningBox;
  Score gamesWon_;
  Score tilesWonBy_;
};

}  // namespace tombolario::domino
