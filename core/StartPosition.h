#pragma once

#include "core/Position.h"

namespace brastel {

/// Entry 0 holds the side's ring square at the start, entries 1 to the side's count the start
/// squares of its pieces in index order.
using StartTable = Table<Int16, 0, MaxPieces>;
extern StartTable RedStart;
extern StartTable BlueStart;

constexpr int LayoutCount = 7;
/// The layout without pieces: they are placed by hand.
constexpr int FreeSetupLayout = 6;

/// Pieces a side of layout 0 to 6: 2, 4, 6, 8 (the standard game), 10, 12 or 0.
int LayoutPieces(int layout);

/// The start squares of a side in the layout with this number of pieces, in index order, then
/// NoSquare. Only NoSquare if there is no such layout.
const std::array<Int16, MaxPieces>& StartSquares(int side, int pieces);

/// Makes layout 0 to 6 the start of the games to come: sets both counts and the start tables, for
/// FreeSetupLayout only the counts. The board follows at the next SetUpStartPosition. Another
/// number is ignored.
void SelectStartLayout(int layout);

/// Puts the pieces on their start squares, the rings into the goals, Red to move, MoveCount 1. A
/// piece whose table entry lies off the board or on a taken square stands on NoSquare: tables read
/// from a damaged file may hold anything.
void SetUpStartPosition();

}  // namespace brastel
