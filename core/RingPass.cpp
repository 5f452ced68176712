#include "core/RingPass.h"

namespace brastel {

namespace {

/// True if `from` holds the ring and `to` does not hold the other one.
bool CanPass(int ring, int from, int to) {
    const auto& squares = Pos.RingSquare;
    return from == squares[static_cast<std::size_t>(ring)] &&
           to != squares[static_cast<std::size_t>(1 - ring)];
}

}  // namespace

bool CheckRingPass(Piece passer, Piece receiver) {
    const int from = SquareOf(passer);
    const int to = SquareOf(receiver);
    if (!BothRingsPlaced()) return false;
    if (receiver.Side != Pos.SideToMove || passer.Side != Pos.SideToMove) return false;
    if (!InField(to)) return false;
    if (!IsPassDistance(Column(to) - Column(from), Row(to) - Row(from))) return false;
    return CanPass(0, from, to) || CanPass(1, from, to);
}

void ApplyRingPass(Piece passer, Piece receiver) {
    const Int16 from = ToInt16(SquareOf(passer));
    const auto ring = std::ranges::find(Pos.RingSquare, from);
    if (ring != Pos.RingSquare.end()) *ring = SquareOf(receiver);
    Pos.LastHit = {};
}

}  // namespace brastel
