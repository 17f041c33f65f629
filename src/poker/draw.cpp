#include "poker/draw.hpp"

namespace tombolario::poker {

std::optional<int> chooseDraw(const Cards& dealt, int next) {
  HandClass best = classify(dealt).kind;
  std::optional<int> changed;
  for (int i = 0; i < kHandSize; ++i) {
    Cards trial = dealt;
    trial[i] = next;
    const HandClass reached = classify(trial).kind;
    if (reached > best) {
      best = reached;
      changed = i;
    }
  }
  return changed;
}

}  // namespace tombolario::poker
