#pragma once

#include "core/Numbers.h"

namespace brastel {

/// The ply being searched; 1 between searches, where row 1 keeps the candidates of the last one.
extern Int16 SearchPly;

/// Candidates kept at the second ply and the amount by which that falls from ply to ply. The search
/// changes them on its way down and puts them back on its way up.
extern Int16 BeamWidth;
extern Int16 BeamShrink;

/// The widths with which every new game begins.
void ResetBeam();

/// Positions whose candidates the last search valued.
extern std::uint64_t SearchedPositions;

/// Chooses a move for the side to move by looking `depth` plies ahead, 1 to MaxPly. Returns its
/// index in row 1 of MoveList, where all candidates stand with their final values, or 0 when there
/// is no candidate. Exact ties are broken by RandomBelow. The position is the same after the call.
Int16 ChooseCandidate(Int16 depth);

}  // namespace brastel
