#pragma once

#include "core/Position.h"

/// The terms of an immediate value: what each is worth, and the squares on which it depends.
/// ScoreMove adds them up for one candidate, PositionTerms for all candidates at once.
namespace brastel {

// ---- Weights ----

namespace Weight {

/// A piece moves level with an advanced enemy carrier, or between it and the goal.
constexpr int CarrierAnswered = 4;
/// The enemy has CrowdSurplus pieces more than the side to move around its advanced carrier.
constexpr int Crowd = -12;
constexpr int CrowdSurplus = 2;
/// The destination is one to which an own carrier can pass its ring two rows forward.
constexpr int PassPrepared = 1;
/// For each row that a carrier comes nearer to its goal.
constexpr int RowForward = 4;
/// A carrier leaves a corner of its goal's row by one row backward.
constexpr int CornerLeft = 5;
constexpr int CornerEntered = -1;
/// A friend stands beside the square to which a ring comes.
constexpr int RingBesideFriend = 1;
constexpr int Hit = 2;
/// The destination has a ring: its carrier is hit, or the ring lies on an empty square.
constexpr int RingTaken = 5;
constexpr int BesideRing = 2;
constexpr int DiagonalToRing = 1;
/// For each piece that the enemy has more outside.
constexpr int PieceOutside = 3;
/// Added for a destination in a goal column, taken off for an origin there.
constexpr int GoalColumn = 1;
/// For each neighbour of the destination that is on the same side as the piece that stands there.
constexpr int Contact = 1;

}  // namespace Weight

// ---- Squares ----

/// Inclusive bounds of square numbers.
struct SquareRange {
    int First;
    int Last;

    constexpr bool Holds(int square) const { return square >= First && square <= Last; }
};

/// What differs between the sides to move.
struct SideTerms {
    /// Squares of an enemy carrier that is so far advanced that an answer is worth more, and the
    /// origins from which a move counts as an answer.
    SquareRange AdvancedCarrier;
    SquareRange AnswerOrigins;
    /// Squares of an enemy carrier around which the enemy can crowd, and the four field rows in
    /// which the pieces are counted.
    SquareRange CrowdCarrier;
    SquareRange Crowd;
};

constexpr SideTerms RedTerms{{66, LastSquare}, {FirstSquare, 87}, {74, 79}, {74, 103}};
constexpr SideTerms BlueTerms{{FirstSquare, 47}, {26, LastSquare}, {34, 39}, {10, 39}};

constexpr const SideTerms& TermsOf(int side) { return side == Red ? RedTerms : BlueTerms; }

constexpr bool InCrowd(int side, int square) {
    return InField(square) && TermsOf(side).Crowd.Holds(square);
}

/// True if a destination is level with an enemy carrier on `ring` or on the goal's side of it. A
/// carrier right of the field, where only a free setup can place it, counts as one row lower.
constexpr bool AnswersCarrier(int side, int ring, int destination) {
    return (Row(destination) - Row(ring + 1)) * side <= 0;
}

/// True if an own carrier can pass its ring two rows forward to the destination.
constexpr bool PreparesPass(int side, int carrier, int destination) {
    const int ahead = carrier + 2 * Forward(side);
    return destination == ahead + Left || destination == ahead + Right;
}

constexpr std::array<int, 4> BesideOffsets{Right, Left, Down, Up};
constexpr std::array<int, 4> DiagonalOffsets{Up + Left, Up + Right, Down + Left, Down + Right};

/// True if the destination is one of the four squares around a ring at these offsets. Written out,
/// because clang limits the steps of a computation at compile time.
constexpr bool IsNear(const std::array<int, 4>& offsets, int ring, int destination) {
    const int step = destination - ring;
    return step == offsets[0] || step == offsets[1] || step == offsets[2] || step == offsets[3];
}

constexpr bool IsFieldCorner(int square) {
    return square == 10 || square == 15 || square == 98 || square == 103;
}

}  // namespace brastel
