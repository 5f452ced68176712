#pragma once

#include "core/Position.h"

/// Rule 6, ring passes: a ring goes from its carrier to a friendly piece at a diagonal or
/// knight's-move distance, over any pieces between.
namespace brastel {

/// True for a diagonal or knight's-move distance.
constexpr bool IsPassDistance(int columns, int rows) {
    return columns != 0 && rows != 0 && columns * columns + rows * rows <= 5;
}

/// True if the passer may pass a ring to the receiver: both of the side to move, the receiver in
/// the field and without a ring. The passer may wait outside. Pieces that do not exist are refused.
bool CheckRingPass(Piece passer, Piece receiver);

/// Gives the passer's ring to the receiver and forgets the last hit. If both rings lie on the
/// passer's square, ring 0 is given.
void ApplyRingPass(Piece passer, Piece receiver);

}  // namespace brastel
