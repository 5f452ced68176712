#pragma once

#include "core/Action.h"

namespace brastel {

/// Plays an action in front of the user: changes the position, brings back pieces from outside,
/// passes the turn, clears the status line, shows the board, writes the record entry and rebuilds
/// the candidate list. Counting the entry and the win check are the caller's. Preconditions: the
/// action fits the position and the record is not full.
void ApplyMoveShown(const Action& action);

/// Lists the candidates of the side to move, as after every action, and shows their number.
void RefreshCandidates();

}  // namespace brastel
