#pragma once

#include <cstdint>
#include <optional>

#include "domino/computer.hpp"
#include "domino/line.hpp"
#include "pieces/chance.hpp"

namespace tombolario::domino {

inline constexpr int kBoxes = 61;       ///< room for the line, far more than a game can lay
inline constexpr int kOpeningBox = 30;  ///< of the tile that opens it
inline constexpr int kHand = 14;        ///< tiles of each side, the opening one counted as the computer's

/// What is told of an end of the line.
enum class Signal {
  Nothing,
  LastMove,
  ComputerPassed,
  PlayerStuck,
};

enum class Result { None, Won, Lost, Drawn };

/// What a match counts: the games won up to 9, or the tiles by which they are won up to 30.
enum class Counting { ByGame, ByTile };

/// Everything that a game of domino and its match have come to.
struct State {
  Slots<std::int16_t, 0, kTiles - 1> mischiadom{};  ///< the tile in each slot, as dealt
  Slots<Tile, 0, kFaces - 1> numdom{};              ///< numbers by slot; slot i + 28 is slot i reversed
  Slots<bool, kFirstOfPlayer, kLastOfPlayer> inHand{};
  Slots<bool, kFirstOfComputer, kLastOfComputer> usatacomdom{};  ///< laid by the computer

  OpenEnds open;
  int primodom = kOpeningBox;  ///< the boxes of the line's two ends
  int ultimodom = kOpeningBox;
  Signal lesx = Signal::Nothing;
  Signal ledx = Signal::Nothing;

  std::int16_t posateumdom = 0;             ///< tiles laid by the player
  std::int16_t posatecomdom = 1;            ///< and by the computer
  bool puodom = false;                      ///< whether a tile in the player's hand fits
  Numbers<0, 2 * kNumbers - 1> contadom{};  ///< tiles in hand by number, the computer's from 7 on

  bool playerToLay = false;
  bool playerToPass = false;
  bool computerToMove = false;
  Result result = Result::None;  ///< of the game, once it is over

  std::int16_t partumdom = 0;  ///< games won by the player, by the computer
  std::int16_t partcomdom = 0;
  std::int16_t pedumdom = 0;  ///< tiles by which they were won
  std::int16_t pedcomdom = 0;
};

/// A match of domino against the computer.
class Domino {
 public:
  /// A new match, with the game that has been dealt.
  void begin();
  /// Deals all tiles: one opens the line, fourteen are the player's and thirteen the computer's.
  void inizioDOMINO(UniformSource& uniform);
  /// Lays a tile of the player, slot 1 to 14, at the left or the right end, reversed where it must be.
  /// Gives the slot of the face as it lies; nothing where the tile does not fit or it is not the moment.
  std::optional<int> layLeft(int slot) { return lay(slot, Placement::Left, Placement::LeftReversed); }
  std::optional<int> layRight(int slot) { return lay(slot, Placement::Right, Placement::RightReversed); }
  /// The player passes.
  void pass();

  /// What the computer has laid: the slot of the face as it lies, and whether at the left end.
  struct Laid {
    int slot;
    bool left;
  };
  /// The computer's turn; nothing where it passes.
  std::optional<Laid> computerTurn(Level level);
  /// Counts the tiles in both hands anew.
  void calcoloDOMINO();

  /// The face in a slot, 0 to 55.
  int face(int slot) const {
    return slot < kTiles ? s_.mischiadom[slot] : s_.mischiadom[slot - kTiles] + kTiles;
  }
  bool matchOver(Counting counting) const;
  const State& state() const { return s_; }

 private:
  std::optional<int> lay(int slot, Placement asItLies, Placement reversed);
  int place(int slot, Placement placement);
  void settleBlock();
  void end(Result result, int tiles);
  bool playerFits() const;

  State s_;
};

}  // namespace tombolario::domino
