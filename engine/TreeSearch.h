#pragma once

#include "core/QuietMove.h"
#include "engine/CandidateSet.h"

/// The search below the root: what a candidate is worth when both sides answer as well as they can.
///
/// It finds the same values as trying all candidates of all beams, and leaves out what cannot
/// change them:
/// - Bounds from the whole line above: each side has been promised something there, and a reply
///   worth more than the opponent can allow ends the position (`low` and `high` of ValueOf).
/// - No room between the bounds for all replies but the first: mostly it is enough to know that
///   they are no better; only one that is gets searched again (ValueOfLater).
/// - Memory of positions: bounds for one reached before, the reply to begin with (SearchMemory).
/// - Shallower searches first, which fill that memory (the root, in Search).
/// - Replies that are likely best come before the beam is even known (Replies).
/// - Candidates many at a time and only as far as they are asked for (CandidateSet, Beam).
namespace brastel {

/// Begins a search to a depth of 2 to MaxPly. Needs both rings placed. Positions remembered from
/// shallower searches of the same root serve it; those of another root must be forgotten first,
/// since the side to move counts from there.
void BeginTree(int depth);

/// The value of a candidate of the position at a ply, in units: exact between the bounds, at or
/// beyond them a bound itself. `saved` is the position, which is the same after the call.
int ValueOf(int ply, const Candidate& candidate, int low, int high, const PlySave& saved);

/// The same for a candidate that is probably not better than `low`.
int ValueOfLater(int ply, const Candidate& candidate, int low, int high, const PlySave& saved);

/// The value of a candidate as plain arithmetic rounds it, when its exact value is known: the
/// division and the subtraction of every ply in floating point, and the highest result of all lines
/// that are equally good. At or below `least` it is any bound from above, so that not all of these
/// lines, which can be very many, are followed.
double RoundedValueOf(int ply, const Candidate& candidate, int value, double least,
                      const PlySave& saved);

/// The value of a root candidate where all are worth less than NoScore, because the opponent can
/// leave the side without a candidate: they are measured against NoScore alone, so that the first
/// reply which shows one to be worth less decides, and not the best. Needs a depth of 3 at least;
/// at 2 nothing is worth so little.
double HopelessValueOf(const Candidate& candidate, const PlySave& saved);

}  // namespace brastel
