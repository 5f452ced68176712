#include "core/Consistency.h"

#include "core/Position.h"

#include <cstdlib>

namespace brastel {

namespace {

/// Each piece outside counts one. Each entry of a game can add one more: a goal entry puts a piece
/// outside without a push.
constexpr int MaxOutsideBalance = 300;

/// Marks the squares of a side's pieces; false if one is off the board, shared, or its cell says
/// something else. A piece that found no place stands on NoSquare.
bool PiecesFitBoard(int side, BoardCells& expected) {
    for (int i = 1; i <= PieceCount(side); ++i) {
        const int square = SquaresOf(side)[i];
        if (square == NoSquare) continue;
        if (!IsOnBoard(square) || expected[square] != Empty) return false;
        expected[square] = ToInt16(side);
    }
    return true;
}

bool RingsInRange() { return IsOnBoard(Pos.RingSquare[0]) && IsOnBoard(Pos.RingSquare[1]); }

bool LastHitInRange() {
    return std::ranges::all_of(Pos.LastHit, [](int i) { return i >= 0 && i <= MaxPieces; });
}

bool PlacedInRange() {
    return Pos.RedPlaced >= 0 && Pos.RedPlaced <= MaxPieces && Pos.BluePlaced >= 0 &&
           Pos.BluePlaced <= MaxPieces;
}

}  // namespace

std::string FirstInconsistency() {
    // This comes first: the squares are read up to these counts.
    if (!PlacedInRange()) return "more pieces placed than a side has";
    BoardCells expected;
    if (!PiecesFitBoard(Red, expected) || !PiecesFitBoard(Blue, expected)) {
        return "a piece stands off the board or shares its square";
    }
    if (expected != Pos.Board) return "the cells differ from the squares of the pieces";
    if (!RingsInRange()) return "a ring lies off the board";
    if (!LastHitInRange()) return "the last hit names no piece";
    if (std::abs(Pos.OutsideBalance) > MaxOutsideBalance)
        return "the outside balance is out of range";
    if (Pos.SideToMove != Red && Pos.SideToMove != Blue) return "nobody is to move";
    if (Pos.MoveCount < 1) return "the move count is below 1";
    return {};
}

}  // namespace brastel
