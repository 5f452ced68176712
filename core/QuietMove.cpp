#include "core/QuietMove.h"

#include "core/Consistency.h"
#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "core/PlainMove.h"
#include "core/RingPass.h"

namespace brastel {

namespace {

/// A piece waiting outside cannot be hit.
bool CanPush(const Action& hit) {
    const auto [origin, destination] = hit;
    const int direction = PushDirection(origin, destination);
    return direction != 0 && InField(destination) && HasRoomBehind(destination, direction);
}

}  // namespace

bool ActionFits(const Action& action) {
    const auto [origin, destination] = action;
    if (!BothRingsPlaced()) return IsOnBoard(origin);
    const Piece actor = PieceOn(origin);
    if (!actor) return true;
    if (actor.Side != Pos.SideToMove || !IsOnBoard(destination)) return false;
    return Pos.Board[destination] != -Pos.SideToMove || CanPush(action);
}

bool IsAccepted(const Action& action) {
    const auto [origin, destination] = action;
    const Piece other = PieceOn(destination);
    if (!other) return CheckPlainMove(origin, destination);
    const Piece actor = PieceOn(origin);
    if (other.Side == Pos.SideToMove) return CheckRingPass(actor, other);
    return CheckHit(actor, other) == HitVerdict::Accepted;
}

void ApplyAction(const Action& action) {
    const auto [origin, destination] = action;
    if (!BothRingsPlaced()) return LayRing(origin);
    const Piece actor = PieceOn(origin);
    if (!actor) return;
    const Piece other = PieceOn(destination);
    if (!other) {
        ApplyPlainMove(actor, destination);
    } else if (other.Side == actor.Side) {
        ApplyRingPass(actor, other);
    } else {
        ApplyHit(actor, other);
    }
}

void ApplyMoveQuiet(const Action& action) {
    assert(ActionFits(action));
    const auto [origin, destination] = action;
    const bool isByPiece = BothRingsPlaced() && IsOnBoard(origin) && Pos.Board[origin] != Empty;
    const bool changesCells = isByPiece && Pos.Board[destination] != Pos.SideToMove;
    const bool isHit = changesCells && Pos.Board[destination] != Empty;
    ApplyAction(action);
    // A carrier that enters the goal lands on a return cell, which need not be near its origin.
    const int entered = InField(destination) ? NoSquare : ReturnSquareOf(destination);
    if (changesCells) ReturnOutsideNear(origin, isHit ? destination : entered);
    Pos.SideToMove = ToInt16(-Pos.SideToMove);
    assert(PositionIsConsistent());
}

}  // namespace brastel
