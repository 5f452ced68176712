#include "core/PlainMove.h"

namespace brastel {

namespace {

bool IsPathEmpty(int from, int to, int step) {
    for (int square = from + step; square != to; square += step) {
        if (Pos.Board[square] != Empty) return false;
    }
    return true;
}

bool IsSlide(int from, int to) {
    if (Column(from) != Column(to)) return false;
    const int step = to > from ? Down : Up;
    return Pos.Board[to + step] == Pos.SideToMove && IsPathEmpty(from, to, step);
}

bool IsStep(int from, int to) {
    const PathGuards guards = GuardsOf(Column(to) - Column(from), Row(to) - Row(from));
    return guards.Count >= 0 && AreEmpty(guards, from);
}

}  // namespace

bool AreEmpty(const PathGuards& guards, int square) {
    for (int i = 0; i < guards.Count; ++i) {
        if (Pos.Board[square + guards.Offset[static_cast<std::size_t>(i)]] != Empty) return false;
    }
    return true;
}

bool CheckPlainMove(int from, int to) {
    if (!BothRingsPlaced() || !InField(from) || !InField(to)) return false;
    if (Pos.Board[from] != Pos.SideToMove || Pos.Board[to] != Empty) return false;
    return IsSlide(from, to) || IsStep(from, to);
}

void ApplyPlainMove(Piece piece, int to) {
    Int16& square = SquaresOf(piece.Side)[piece.Index];
    const Int16 from = square;
    const Int16 target = ToInt16(to);
    square = target;
    Pos.LastHit = {};
    Pos.Board[target] = Pos.SideToMove;
    Pos.Board[from] = Empty;
    for (Int16& ring : Pos.RingSquare) {
        if (ring == from) ring = target;
    }
}

}  // namespace brastel
