#pragma once

#include "core/Numbers.h"

namespace brastel {

/// A move that wins at once.
constexpr Int16 WinValue = 10000;
/// A move that leaves an enemy carrier in front of its goal standing.
constexpr Int16 LossValue = -10000;

/// The immediate value of a candidate on the position before it, as the side to move sees it: the
/// higher, the better. A hand-tuned sum of small bonuses, overridden by WinValue, LossValue and the
/// verdict of GoalFrontCheck. Both squares are board squares of a candidate of the side to move;
/// the position is the same after the call.
Int16 ScoreMove(int origin, int destination);

/// What becomes of carriers in front of a goal after a move of the side to move, as Blue sees it:
/// 10000 and -10000 for an unstoppable Blue or Red carrier, 9000 and -9000 for one that is covered,
/// 0 otherwise. The position is the same after the call.
Int16 GoalFrontCheck(int origin, int destination);

}  // namespace brastel
