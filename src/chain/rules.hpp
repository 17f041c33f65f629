#pragma once

#include <cstdint>

#include "pieces/chain_set.hpp"
#include "pieces/chance.hpp"
#include "pieces/slots.hpp"

namespace tombolario::chain {

inline constexpr int kRow = 5;    ///< tiles on the table, positions 1 to 5
inline constexpr int kDrawn = 7;  ///< with the two in reserve, positions 6 and 7
inline constexpr int kFullChain = 4;

/// What a hand allows besides one substitution: one exchange, with two tiles in the substitution, or two
/// exchanges, with one.
enum class Mode { OneExchange, TwoExchanges };

/// Where a game has come to. Hands are played in a level alone.
enum class Phase { Idle, InLevel, LevelPassed, LevelFailed };

/// Something for each position on the table.
template <class T>
using OfRow = Slots<T, 1, kRow>;

/// A chain game: five tiles in a row, improved once or twice, a point for each link; ten hands a level. What
/// the phase does not allow does nothing.
class Chain {
 public:
  /// A new game, at the first level, unless one is in a level.
  void begin(UniformSource& uniform);
  /// From a level that was passed to the next, for thirty points. It opens with the hand that was dealt last.
  void nextLevel(UniformSource& uniform);
  /// Counts the hand, which may end the level, and deals another.
  void endHand(UniformSource& uniform);
  /// Gives up the game in a level, with all that it has come to.
  void giveUp(UniformSource& uniform);
  /// Leaves a game outside a level: there is no way on with it.
  void leave();
  /// Takes up, outside a level, a stored game, which has passed its level; a score of 0 stands for none, and
  /// then none is looked for again. A negative one does nothing.
  void resume(std::int16_t score, std::int16_t level);

  /// Marks a position, 1 to 5, or takes its mark back; nothing where all marks of the mode are used, or where
  /// the hand's substitution is done.
  void markSubstitution(int position, Mode mode);
  /// Gives the marked positions the reserve tiles, from left to right; nothing without a mark.
  void substitute();
  /// Marks a position, 1 to 5, or takes its mark back; nothing where two are marked, or where the hand's
  /// exchanges are done.
  void markExchange(int position, Mode mode);
  /// Exchanges the two marked positions; nothing with fewer.
  void exchange();

  Phase phase() const { return phase_; }
  /// Whether the game may be stored: from a level that was passed in play until one fails or the game is left
  /// or given up.
  bool mayStore() const { return mayStore_; }
  bool mayResume() const { return mayResume_; }
  /// Whether there is a level to tell of: the present one, or the one before.
  bool hasLevel() const { return hasLevel_; }
  std::int16_t score() const { return puntcat; }
  std::int16_t level() const { return livcat; }
  int handsLeft() const;
  /// Hands of the level with a full chain, which do not count against it.
  int fullChains() const { return pleincat; }

  int tile(int position) const { return pescatecat[position]; }
  /// How many neighbours in the row are linked, 0 to 4.
  int links() const;
  bool isToSubstitute(int position) const { return segnacat[position]; }
  bool isToExchange(int position) const { return exchanging_[position]; }
  /// How many positions are marked for substitution.
  int nsostcat() const;
  bool substituted() const { return substituted_; }
  /// Whether two positions are marked for exchange.
  bool canExchange() const;
  /// Whether the hand allows another exchange.
  bool exchangesLeft(Mode mode) const;
  /// The exchanges of the hand.
  int exchanges() const { return scambicat; }

 private:
  void avviocatena(UniformSource& uniform);
  void openLevel();

  Numbers<1, kDrawn> pescatecat{};  ///< the tile at each position
  bool dealt_ = false;              ///< whether there has been a hand at all
  OfRow<bool> segnacat{};           ///< marked for substitution
  bool substituted_ = false;
  OfRow<bool> exchanging_{};  ///< marked for exchange
  std::int16_t scambicat = 0;

  Phase phase_ = Phase::Idle;
  bool mayStore_ = false;
  bool mayResume_ = true;
  bool hasLevel_ = false;
  std::int16_t puntcat = 0;
  std::int16_t livcat = 0;
  std::int16_t manicat = 0;  ///< hands counted in this level
  std::int16_t pleincat = 0;
};

}  // namespace tombolario::chain
