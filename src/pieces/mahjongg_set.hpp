#pragma once

namespace tombolario {

/// The tiles of mahjongg: 30 kinds, four of each. The set runs four times through its first kinds, then four
/// times through the others.
inline constexpr int kKinds = 30;
inline constexpr int kFirstKinds = 20;
inline constexpr int kOfAKind = 4;
inline constexpr int kPieces = kOfAKind * kKinds;

/// The kind, 0 to 29, of a tile of the set, 0 to 119.
constexpr int kindOfPiece(int piece) {
  constexpr int kFirstPieces = kOfAKind * kFirstKinds;
  if (piece < kFirstPieces) return piece % kFirstKinds;
  return kFirstKinds + (piece - kFirstPieces) % (kKinds - kFirstKinds);
}

}  // namespace tombolario
