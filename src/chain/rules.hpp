#pragma once

#include <cstdint>

#include "pieces/chain_set.hpp"
#include "pieces/chance.hpp"
#include "pieces/slots.hpp"

namespace tombolario::chain {

inline constexpr int kRow = 5;    ///< tiles on the table, positions 1 to 5
inline constexpr int kDrawn = 7;  ///< with the two in reserve, positions 6 and 7
inline constexpr int kFullChain = 4;
inline constexpr int kHandsOfALevel = 10;

/// What a hand allows besides one substitution: one exchange, with two tiles in the substitution, or two
/// exchanges, with one.
enum class Mode { OneExchange, TwoExchanges };

/// Something for each position on the table.
template <class T>
using OfRow = Slots<T, 1, kRow>;

/// Everything that a chain game has come to.
struct State {
  Numbers<1, kDrawn> pescatecat{};  ///< the tile at each position
  OfRow<bool> segnacat{};           ///< marked for substitution
  OfRow<bool> scambiocat{};         ///< marked for exchange
  int scambicat = 0;                ///< exchanges carried out

  std::int16_t puntcat = 0;   ///< the score
  std::int16_t livcat = 1;    ///< the level
  std::int16_t manicat = 0;   ///< hands counted in this level
  std::int16_t pleincat = 0;  ///< and those with a full chain, which are not counted
  bool dealt = false;         ///< whether there has been a hand at all

  /// How many positions are marked.
  int nsostcat() const;
  int toExchange() const;
  /// How many neighbours in the row are linked, 0 to 4.
  int links() const;
};

/// A chain game: five tiles in a row, improved once or twice, a point for each link; ten hands a level.
class Chain {
 public:
  /// Draws a hand; every mark is gone.
  void avviocatena(UniformSource& uniform);

  /// Marks a position, 1 to 5, or takes its mark back; nothing where all marks of the mode are used.
  void markSubstitution(int position, Mode mode);
  void markExchange(int position);
  /// Gives the marked positions the reserve tiles, from left to right. False, and nothing, without a mark.
  bool substitute();
  /// Exchanges the two marked positions. False, and nothing, with fewer.
  bool exchange();
  /// Whether the hand allows another exchange.
  bool exchangesLeft(Mode mode) const;
  /// Counts the hand. True if the level is over.
  bool endHand();

  /// A new game, at the first level.
  void begin();
  /// The next level, for thirty points.
  void nextLevel();
  /// The game and its level are given up; the score stays out of sight.
  void giveUp();
  /// Takes a stored score and level up.
  void resume(std::int16_t score, std::int16_t level);
  bool levelPassed() const;
  int handsLeft() const { return kHandsOfALevel - s_.manicat; }

  const State& state() const { return s_; }

 private:
  State s_;
};

}  // namespace tombolario::chain
