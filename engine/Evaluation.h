#pragma once

#include "core/Action.h"
#include "engine/Values.h"

namespace brastel {

/// The immediate value of a candidate on the position before it, as the side to move sees it: the
/// higher, the better. It is a hand-tuned sum of small bonuses, unless one of these decides:
/// WinValue, LossValue or the result of GoalFrontCheck. The move must be a candidate of the side to
/// move. The position is the same after the call.
Int16 ScoreMove(const Action& move);

/// What becomes of carriers in front of a goal after a move of the side to move, as Blue sees it:
/// WinValue and LossValue for an unstoppable Blue or Red carrier, CoveredValue and -CoveredValue
/// for a covered one, 0 otherwise. The position is the same after the call.
Int16 GoalFrontCheck(const Action& move);

}  // namespace brastel
