#include "poker/draw.hpp"

namespace tombolario::poker {

namespace {

// Trials go by the slot of the pack whose card is changed; the one before them is the hand as dealt.
constexpr std::int16_t kAsDealt = 9;
constexpr std::int16_t kFirstSlot = 10;

}  // namespace

Draw chooseDraw(const Hand& dealt, std::int16_t nextValue, std::int16_t nextSuit) {
  Classification classecom;
  std::int16_t sceltacom = kAsDealt;
  for (std::int16_t provacom = kAsDealt; provacom < kFirstSlot + kHandSize; ++provacom) {
    Hand trial = dealt;
    if (provacom != kAsDealt) {
      trial.value[provacom - kFirstSlot] = nextValue;
      trial.suit[provacom - kFirstSlot] = nextSuit;
    }
    const Classification classeprova = classify(trial);
    if (classeprova.kind > classecom.kind) {
      classecom = classeprova;
      sceltacom = provacom;
    }
  }
  if (sceltacom == kAsDealt) return {classecom, std::nullopt};
  return {classecom, sceltacom - kFirstSlot};
}

}  // namespace tombolario::poker
