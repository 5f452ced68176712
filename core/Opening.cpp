#include "core/Opening.h"

#include "core/Consistency.h"
#include "core/StartPosition.h"

namespace brastel {

void LayRing(int square) {
    const bool isRed = IsPlacingRing(Red);
    Pos.RingSquare[isRed ? 0 : 1] = ToInt16(square);
    if (isRed) {
        Pos.RedCount = std::max(Pos.RedCount, Pos.RedPlaced);
    } else {
        Pos.BlueCount = std::max(Pos.BlueCount, Pos.BluePlaced);
    }
}

bool MayPlaceRing(Piece piece) {
    return IsPlacingRing(piece.Side) && SquareOf(piece) != NoSquare &&
           (InFreeSetup() || piece.Index <= LastRingPiece);
}

bool PlaceRing(Piece piece) {
    if (!MayPlaceRing(piece)) return false;
    const bool isSetup = InFreeSetup();
    const int square = SquareOf(piece);
    LayRing(square);
    if (isSetup) (piece.Side == Red ? RedStart : BlueStart)[0] = ToInt16(square);
    return true;
}

bool SetupAddPiece(int x, int y) {
    if (!InFreeSetup() || !IsBoardPoint(SnapX(x), SnapY(y))) return false;
    const int side = IsPlacingRing(Red) ? Red : Blue;
    const Int16 square = SquareFromPoint(SnapX(x), SnapY(y));
    const int index = PieceCount(side) + 1;
    if (index > MaxPieces || Pos.Board[square] != Empty) return false;
    (side == Red ? Pos.RedPlaced : Pos.BluePlaced) = ToInt16(index);
    (side == Red ? RedStart : BlueStart)[index] = square;
    SquaresOf(side)[index] = square;
    Pos.Board[square] = ToInt16(side);
    assert(PositionIsConsistent());
    return true;
}

}  // namespace brastel
