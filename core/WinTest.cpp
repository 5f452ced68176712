#include "core/WinTest.h"

#include "core/Hit.h"

namespace brastel {

namespace {

/// The opponent beside the carrier is the piece that the carrier has just hit.
bool IsPushBackBeside(int side, int square) {
    const Int16 carrier = FindAt(side, square);
    return IsPushBack(FindAt(-side, square + Left), carrier) ||
           IsPushBack(FindAt(-side, square + Right), carrier);
}

}  // namespace

bool IsUnstoppable(int side, int square) {
    const auto& board = Pos.Board;
    const int front = square + Forward(side);
    const int behind = square - Forward(side);
    const bool threatBeside = board[square + Left] + board[square + Right] == -side;
    const bool threatBehind = board[front] == Empty && board[behind] == -side;
    if (threatBeside) {
        return IsPushBackBeside(side, square) || IsRingSquare(square + Left) ||
               IsRingSquare(square + Right);
    }
    return !threatBehind || IsRingSquare(behind);
}

bool HasUnstoppableCarrier(int side) {
    for (int square = GoalFront(side); IsGoalFront(side, square); ++square) {
        if (CarriesRing(side, square) && IsUnstoppable(side, square)) return true;
    }
    return false;
}

Int16 FindWinner() {
    if (HasUnstoppableCarrier(Red)) return Red;
    return HasUnstoppableCarrier(Blue) ? Blue : Empty;
}

}  // namespace brastel
