#pragma once

#include <cstdint>
#include <optional>

#include "pieces/cards.hpp"
#include "pieces/chance.hpp"
#include "videopoker/scoring.hpp"

namespace tombolario::videopoker {

inline constexpr int kCards = kPack + 1;  ///< with the joker, the last card number
inline constexpr int kSlots = 2 * kHandSize;
inline constexpr std::int16_t kFirstBalance = 10;
inline constexpr int kRunDeals = 10;  ///< the deal that ends a run of hands

/// What the player has in sight.
enum class Place { Menu, Table, Summary };

/// How far the hand on the table is, in sight or not.
enum class Phase { NoHand, Dealt, Scored };

/// A game of video poker: the balance, the run of hands, and the hand on the table. What the place or the
/// phase does not allow is refused: it changes nothing.
class VideoPoker {
 public:
  /// A new game, from anywhere but the table: the first balance, a new run, a hand.
  void begin(UniformSource& uniform);
  /// The same from a stored balance, which costs the fee. A balance that does not exceed the fee is refused,
  /// and so is any other after it, until a run begins.
  void load(std::int16_t stored, UniformSource& uniform);
  /// From the summary to another run for the fee; the hand that waits is its first. At too low a balance the
  /// summary is closed, yet a new run counts from here all the same.
  void goOn();
  /// Whether the balance of the summary is to be stored. At too low a balance the summary is closed.
  bool save();
  /// Leaves the table, with no summary. A hand that is not scored is thrown away.
  void end();
  /// Leaves the summary for good.
  void leave();

  /// After a scored hand on the table, the next. The deal that ends the run leads to the summary, and its
  /// hand waits.
  void newHand(UniformSource& uniform);
  /// Marks a card of the dealt hand on the table for the change, or takes the mark back.
  void toggleMark(int position);
  /// Changes the marked cards of the dealt hand on the table, from left to right, for the replacements in
  /// their order; scores the hand and pays for it. The last of the credit leads to the summary, which is
  /// closed.
  void change();

  Place place() const { return place_; }
  Phase phase() const { return phase_; }
  /// The card in a slot: the hand, then its replacements.
  int card(int slot) const { return mazzoVP[slot]; }
  bool isMarked(int position) const { return marked_[position]; }
  Group group(int position) const { return groups_[position]; }
  /// The row of the pay table that is lit, from the scoring until the next deal or the end of the game.
  std::optional<Row> litRow() const { return litRow_; }

  std::int16_t balance() const { return saldoVP; }
  /// Gain or loss over the run, the fee counted as a loss.
  int gain() const { return saldoVP - saldoInizioVP; }
  bool spent() const { return saldoVP <= 0; }
  bool runOver() const { return maniVP == kRunDeals; }
  /// Whether the summary lets the player go on or save, as far as he has tried.
  bool isOpen() const { return open_; }
  bool mayLoad() const { return mayLoad_; }

 private:
  void startRun(std::int16_t balance, int fee);
  void avvioVIDEO(UniformSource& uniform);

  Place place_ = Place::Menu;
  Phase phase_ = Phase::NoHand;
  bool open_ = true;
  bool mayLoad_ = true;
  std::int16_t saldoVP = 0;
  std::int16_t saldoInizioVP = 0;    ///< balance at the start of the run, before its fee
  std::int16_t maniVP = 0;           ///< deals of the run
  Numbers<0, kCards - 1> mazzoVP{};  ///< card numbers in dealt order; one of the 53 stays out
  Marks marked_{};
  OfHand<Group> groups_{};
  std::optional<Row> litRow_;
};

}  // namespace tombolario::videopoker
