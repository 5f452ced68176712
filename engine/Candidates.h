#pragma once

#include "engine/MoveCode.h"
#include "engine/Values.h"

/// The candidate tables, the generator that fills a row of them, and the sort. The search begins
/// with row 1 and leaves its result there; below the root it uses CandidateSet and Beam instead.
namespace brastel {

// ---- Tables: a row for each ply, 1 to 11; row 0 and entry 0 stay 0 ----

constexpr int MaxPly = 11;
/// Twelve pieces with at most 34 candidates each need 408 entries.
constexpr int MaxCandidates = 450;

template <typename T>
using PlyTable = Table<Table<T, 0, MaxCandidates>, 0, MaxPly>;

extern PlyTable<MoveCode> MoveList;
/// Immediate values, which the search overwrites with those of all plies.
extern PlyTable<double> MoveScores;
/// The candidates of ply p are entries 1 to CandidateCount[p].
extern Table<Int16, 0, MaxPly> CandidateCount;

// ---- Operations ----

/// Lists and scores every candidate of the side to move in row `ply`, 1 to MaxPly, in the fixed
/// order on which every tie-break depends. At MoveCount 1 and 2 these are the ring placements,
/// unscored (NoScore), and none for piece counts other than 2, 4, 6, 8, 10 and 12.
///
/// The generator has its own form of the rules. Its candidates are what people may do, except that
/// (brastel-soak checks this list):
/// - A ring carrier in front of the goal may enter it, whatever stands there. People's pieces never
///   leave the field.
/// - A ring carrier does not go two steps at once, straight, diagonally or like a knight, unless
///   that is a slide up or down to a friend. People's carriers do.
/// - A ring carrier that waits outside does nothing. People may pass its ring on.
/// - The ring goes to a piece that starts in the player's own half. People may choose any of pieces
///   1 to 8, in a free setup any piece.
/// - The squares for the ring are those of the start layout with the same number of pieces, even if
///   the pieces were placed elsewhere by hand. Then the ring can come to lie under any piece, or
///   none. People's rings go to pieces of their own.
/// - A side without a candidate passes. People can do so only with the hint.
void GenerateMoves(int ply);

/// Sorts a row by value, highest first. It is a selection sort, whose swaps change the order of
/// equal values. The beam depends on this order, so the swaps must stay as they are.
void SortCandidates(int ply);

}  // namespace brastel
