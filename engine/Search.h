#pragma once

#include "core/Action.h"

/// Beam search with iterative deepening: the search at the root, and the choice of a move.
namespace brastel {

/// The row of MoveList in which a search leaves its candidates.
constexpr Int16 SearchPly = 1;

/// Chooses a move for the side to move by looking `depth` plies ahead, 1 to MaxPly. Returns its
/// index in row 1 of MoveList, or 0 when there is no candidate. Row 1 then holds the candidates
/// that were searched: the best with their exact value, the others with some value below it. Exact
/// ties are broken by RandomBelow. The position is the same after the call.
Int16 ChooseCandidate(Int16 depth);

/// The value of an action by a search of `depth` plies, in units: what ChooseCandidate finds for
/// its best candidate. The action need not be a candidate. The position is the same after the call.
/// Preconditions: both rings are placed, and ActionFits.
int ValueOfAction(const Action& action, Int16 depth);

/// Chooses as ChooseCandidate does, by the values in row 1, but only among the candidates that can
/// be played; 0 when there are none. A goal entry cannot be played if an opponent waits in the
/// goal: it counts as a win, but would push the opponent off the board.
Int16 ChoosePlayable();

/// Rule 8, no movable piece: true if the side to move has no candidate that can be played. Lists
/// its candidates in row 1.
bool MustPass();

/// The action of candidate `chosen` of row 1. If it cannot be played, or `chosen` is 0, the action
/// of the candidate from ChoosePlayable.
Action PlayableAction(Int16 chosen);

}  // namespace brastel
