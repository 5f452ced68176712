#include "core/Hit.h"

#include <cstdlib>

namespace brastel {

namespace {

/// A hit from two squares away needs a ringless target and an empty square between.
bool IsInReach(int from, int to, int direction) {
    const int distance = std::abs(to - from) / std::abs(direction);
    if (distance == 1) return true;
    return distance == 2 && !IsRingSquare(to) && Pos.Board[from + direction] == Empty;
}

}  // namespace

int PushDirection(int from, int to) {
    if (Row(from) == Row(to)) return to > from ? Right : Left;
    if (Column(from) == Column(to)) return to > from ? Down : Up;
    return 0;
}

bool IsFreeBeyond(int square, int direction, int steps) {
    const int column = Column(square) + (direction == Right) * steps - (direction == Left) * steps;
    const int row = Row(square) + (direction == Down) * steps - (direction == Up) * steps;
    const int beyond = SquareAt(row, column);
    return beyond != NoSquare && Pos.Board[beyond] == Empty;
}

HitVerdict CheckHit(Piece hitter, Piece target) {
    const int from = SquareOf(hitter);
    const int to = SquareOf(target);
    if (!BothRingsPlaced() || IsRingSquare(from) || !InField(from)) return HitVerdict::Refused;
    if (hitter.Side != Pos.SideToMove || target.Side != -hitter.Side || to == NoSquare) {
        return HitVerdict::Refused;
    }
    if (IsPushBack(hitter.Index, target.Index)) return HitVerdict::PushBack;
    const int direction = PushDirection(from, to);
    const bool accepted =
        direction != 0 && IsInReach(from, to, direction) && HasRoomBehind(to, direction);
    return accepted ? HitVerdict::Accepted : HitVerdict::Refused;
}

void ApplyHit(Piece hitter, Piece target) {
    Int16& hitterSquare = SquaresOf(hitter.Side)[hitter.Index];
    Int16& targetSquare = SquaresOf(target.Side)[target.Index];
    const int direction = PushDirection(hitterSquare, targetSquare);
    const int steps = IsFreeBeyond(targetSquare, direction, 2) ? 2 : 1;
    const Int16 landing = ToInt16(targetSquare + steps * direction);

    Pos.Board[hitterSquare] = Empty;
    hitterSquare = targetSquare;
    Pos.Board[hitterSquare] = hitter.Side;
    Pos.LastHit = {hitter.Index, target.Index};
    targetSquare = landing;
    Pos.Board[landing] = target.Side;
    if (!InField(landing)) Pos.OutsideBalance = ToInt16(Pos.OutsideBalance - target.Side);
}

}  // namespace brastel
