#pragma once

#include "engine/MoveCode.h"
#include "engine/Values.h"

/// The candidate tables, the generator that fills them one candidate after another, and the sort.
/// They are what a search begins with and where it leaves its result; inside, it has faster means.
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
/// The computer does not ask the checks of people's actions. Its candidates are what these accept
/// but for the following, which brastel-soak holds them to:
/// - A ring carrier in front of the goal may enter it, whatever stands there. People's pieces never
///   leave the field.
/// - A ring carrier does not go two steps at once, straight, diagonally or like a knight, unless
///   that is a slide up or down to a friend. People's carriers do.
/// - A ring carrier that waits outside does nothing. People may pass its ring on.
/// - The ring goes to a piece that starts in the player's own half. People may choose any of pieces
///   1 to 8, in a free setup any piece at all.
/// - The squares for the ring are those of the start layout with as many pieces, even when pieces
///   placed by hand stand elsewhere; then the ring can come to lie under any piece, or none.
///   People's rings go to pieces of their own.
/// Besides, a side without a candidate passes, for which people have only the hint.
void GenerateMoves(int ply);

/// Orders a row by value, highest first, by selection: equal values can change places, and which of
/// them stays in the beam follows from these exact swaps.
void SortCandidates(int ply);

}  // namespace brastel
