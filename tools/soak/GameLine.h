#pragma once

#include "core/Position.h"

#include <vector>

/// The game being played, entry by entry. All operations leave the game itself as it is, and throw
/// Inconsistency at the first fault.
namespace brastel {

/// From the game's start on: Line[k] is the position after k entries.
inline std::vector<Position> Line;

/// False where a piece was placed outside that could come back at once: in play the first action
/// brings it back, on replay an action near it.
inline bool LineIsExact = true;

/// Follows the game from its start to where it stands. `byHand` if its pieces were placed so.
void BeginLine(bool byHand);

/// Follows the entries from `first` on, the first of them played by a person or not, and checks
/// that each leads to the same position however it is played, that the position is in order and
/// that the rules agree there.
void FollowLine(int first, bool byPerson);

/// Goes one step back, which plays the record again from its start, and forward again as if the
/// game had been saved and loaded.
void CheckSteps();

/// Besides what is always checked, no piece was lost.
void RequireConsistent();

}  // namespace brastel
