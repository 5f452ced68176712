#include "core/Position.h"

namespace brastel {

Position Pos;

Int16 SquareOf(Piece piece, const Position& position) {
    const bool exists = piece.Index >= 1 && piece.Index <= PieceCount(piece.Side, position);
    return exists ? SquaresIn(position, piece.Side)[piece.Index] : ToInt16(NoSquare);
}

Piece PieceOn(int square, const Position& position) {
    if (!IsOnBoard(square) || position.Board[square] == Empty) return {};
    const Int16 side = position.Board[square];
    return {side, FindAt(side, square, position)};
}

bool IsPieceAt(int x, int y) {
    if (!IsBoardPoint(x, y) || SnapX(x) != x || SnapY(y) != y) return false;
    const int square = SquareFromPoint(x, y);
    return FindRedAt(square) != 0 || FindBlueAt(square) != 0;
}

}  // namespace brastel
