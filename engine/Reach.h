#pragma once

#include "engine/PositionTerms.h"

/// Where pieces can go: the patterns of the candidate generator as bitboards and windows.
namespace brastel {

// ---- Around a field square ----

/// The eight nearest squares.
extern const Window NearWindow;
/// Where an enemy must stand to be hit.
extern const Window HitWindow;
/// Where a ring can be passed to.
extern const Window PassWindow;

/// Squares that a piece without a ring reaches in one step or two, from the window of free squares
/// around it.
Window StepsInto(Window free);

/// The squares of the same column above and below a square.
extern const BitboardTable ColumnAbove;
extern const BitboardTable ColumnBelow;

/// Where a slide up or down the column ends: in front of the first piece, if that is a friend and
/// the slide is at least so many steps long. Otherwise NoSquare.
inline int SlideTarget(const PositionTerms& terms, int square, int direction, int leastSteps) {
    const Bitboard& column = direction == Up ? ColumnAbove[square] : ColumnBelow[square];
    const Bitboard pieces = (terms.Own | terms.Enemy) & column;
    if (pieces.IsEmpty()) return NoSquare;
    const int first = direction == Up ? LastIn(pieces) : FirstIn(pieces);
    const bool isFarEnough = (first - square) * direction > leastSteps * direction * direction;
    return isFarEnough && Holds(terms.Own, first) ? first - direction : NoSquare;
}

/// All squares that a piece on a square could reach in any position, but for the goal.
extern const BitboardTable Reach;

// ---- Hits ----

/// Enemy pieces in the field by the direction in which they can be pushed: up, left, right, down.
using PushableTargets = std::array<Bitboard, 4>;
void FindPushable(const PositionTerms& terms, PushableTargets& pushable);

/// What the pieces of a set can hit if no hit is refused as a push-back.
Bitboard HitsFrom(const PositionTerms& terms, const PushableTargets& pushable, Bitboard hitters);

}  // namespace brastel
