#pragma once

#include <cstdint>

#include "pieces/cards.hpp"
#include "pieces/chance.hpp"
#include "videopoker/scoring.hpp"

namespace tombolario::videopoker {

inline constexpr int kCards = kPack + 1;  ///< with the joker, the last card number
inline constexpr int kSlots = 2 * kHandSize;
inline constexpr int kFirstBalance = 10;
inline constexpr int kFee = 5;        ///< for going on and for loading; the balance must be above it
inline constexpr int kRunDeals = 10;  ///< the deal that ends a run of hands

/// A game of video poker: the balance, the run of hands, and the hand on the table.
class VideoPoker {
 public:
  /// A new game: the first balance, a new run.
  void begin();
  /// A game from a stored balance, which costs the fee. Refused, with nothing changed but the value read,
  /// where the stored balance does not exceed the fee.
  bool load(std::int16_t stored);
  /// Starts another run for the fee. Refused where the balance does not exceed it; a new run counts from
  /// here all the same.
  bool goOn();
  /// A balance that would be refused on loading is not to be stored.
  bool worthSaving() const { return saldoVP > kFee; }

  /// Shuffles and deals a hand and its replacements. True if this deal ends the run of hands.
  bool avvioVIDEO(UniformSource& uniform);
  /// Changes the marked cards of the hand, from left to right, for the replacements in their order. Gives
  /// the slot that each position has its card from: its own where it was not marked.
  OfHand<int> change(const Marks& marked);
  /// Adds the amount of a lit row to the balance, which never leaves 16 bits.
  void pay(Row row);

  int card(int slot) const { return mazzoVP[slot]; }
  Hand hand() const;
  int balance() const { return saldoVP; }
  /// Gain or loss over the run, the fee counted as a loss.
  int gain() const { return saldoVP - saldoInizioVP; }
  bool spent() const { return saldoVP <= 0; }

 private:
  void fillTables();

  std::int16_t saldoVP = 0;
  std::int16_t saldoInizioVP = 0;  ///< balance at the start of the run
  std::int16_t saldoFileVP = 0;    ///< what was last read from the file
  std::int16_t maniVP = 0;         ///< deals of the run
  Numbers<0, kCards - 1> valoreCartaVP{};
  Numbers<0, kCards - 1> semeCartaVP{};
  Numbers<0, kCards - 1> mazzoVP{};  ///< card numbers in dealt order; one of the 53 stays out
  Numbers<0, kSlots - 1> valoreVP{};
  Numbers<0, kSlots - 1> semeVP{};
};

}  // namespace tombolario::videopoker
