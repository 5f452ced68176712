#pragma once

#include "engine/CandidateSet.h"
#include "engine/PlySave.h"

/// The search below the root: principal variation search (negamax alpha-beta with null windows)
/// over the beams, with a transposition table. SEARCH.md describes it and what a change must keep.
namespace brastel {

/// The depth of the search in plies, 2 to MaxPly. Set before a search. A table entry serves deeper
/// searches of the same root; for another root ClearTable must be called first.
extern int TreeDepth;

/// Positions whose candidates the last search valued.
extern std::uint64_t SearchedPositions;

/// The value of a candidate of the position at a ply, in units: exact between the bounds, otherwise
/// a bound itself (fail-soft). `saved` is the position, which is the same after the call.
int ValueOf(int ply, const Candidate& candidate, int low, int high, const PlySave& saved);

/// The same, by a null window first: for a candidate that is probably not better than `low`.
int NullWindowValue(int ply, const Candidate& candidate, int low, int high, const PlySave& saved);

}  // namespace brastel
