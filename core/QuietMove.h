#pragma once

#include "core/Action.h"
#include "core/Position.h"

/// Any action: whether it is allowed, and what it makes of the position alone, without view, record
/// and win test.
namespace brastel {

/// False if the action would break the position: it lays a ring off the board, moves a piece of the
/// other side, leaves the board, or hits a piece that has no room to be pushed. No other rule is
/// tested. Any numbers may be passed.
bool ActionFits(const Action& action);

/// True if people may take the action once both rings are placed: a plain move, a ring pass or a
/// hit that its own check accepts. Any numbers may be asked for.
bool IsAccepted(const Action& action);

/// The changes of an action without the returns from outside and without the turn. Precondition:
/// ActionFits.
void ApplyAction(const Action& action);

/// Applies the action, brings back pieces that it lets in, and passes the turn. The search calls
/// this for every candidate, so only cells near changed squares are checked: a piece that was
/// placed outside by hand and could come back at once stays there until a square near it changes.
/// MoveCount stays. Precondition: ActionFits.
void ApplyMoveQuiet(const Action& action);

}  // namespace brastel
