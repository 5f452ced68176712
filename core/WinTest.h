#pragma once

#include "core/Position.h"

/// Rule 1, the win: a side wins when its ring carrier stands before its goal and cannot be stopped.
namespace brastel {

/// The four squares in front of a side's goal, by the first of them: 11 to 14 for Red, 99 to 102
/// for Blue.
constexpr int GoalFrontWidth = 4;
constexpr int GoalFront(int side) { return side == Red ? 11 : 99; }
constexpr bool IsGoalFront(int side, int square) {
    return square >= GoalFront(side) && square < GoalFront(side) + GoalFrontWidth;
}

/// True if a ring carrier of the side on one of its goal front squares cannot be hit away by the
/// opponent's next move: nobody beside or behind it can push it, or only a ring carrier, or only
/// the piece that it has just hit. Precondition: the side's carrier stands there.
bool IsUnstoppable(int side, int square);

/// True if the side has an unstoppable carrier on one of its goal front squares.
bool HasUnstoppableCarrier(int side);

/// The side that has carried a ring into its goal, Red before Blue, or 0.
Int16 FindWinner();

}  // namespace brastel
