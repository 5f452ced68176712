#include "play/HumanAction.h"

#include "core/Consistency.h"
#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "core/PlainMove.h"
#include "core/RingPass.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/TurnFlow.h"

namespace brastel {

namespace {

/// Whether the action under way left the line of a loaded game, should it be accepted.
bool ForwardWasVisible = false;

void BeginAction() {
    ForwardWasVisible = ForwardVisible;
    ShowForward(false);
}

/// After a refusal, and at the end of a free setup, the button is as it was.
void RestoreForward() {
    if (ForwardWasVisible) ShowForward(true);
}

/// Writes and counts the entry, passes the turn and clears the status line.
void EnterAction(int from, int to) {
    WriteEntry(from, to);
    if (ForwardWasVisible) BranchMark = Pos.MoveCount;
    CountEntry();
    ShowBackward(true);
    Pos.SideToMove = ToInt16(-Pos.SideToMove);
    ShowStatus(BlankText);
    assert(PositionIsConsistent());
}

/// The common steps after an accepted move, hit or pass.
void FinishHumanAction(int from, int to) {
    ReturnOutsidePieces();
    View->PlacePieces();
    EnterAction(from, to);
    CheckWin();
    RunComputerTurns(true);
    RefreshCandidates();
}

bool TryPlainMove(Piece piece, int from, int to) {
    if (!CheckPlainMove(from, to)) return false;
    ApplyPlainMove(piece, to);
    return true;
}

bool TryHit(Piece hitter, Piece target) {
    const HitVerdict verdict = CheckHit(hitter, target);
    if (verdict == HitVerdict::PushBack) ShowStatus(PushBackText);
    if (verdict != HitVerdict::Accepted) return false;
    ApplyHit(hitter, target);
    return true;
}

bool TryRingPass(Piece passer, Piece receiver) {
    if (!CheckRingPass(passer, receiver)) return false;
    ApplyRingPass(passer, receiver);
    return true;
}

/// A friendly target can only be passed to, an opponent only be hit.
bool TryAct(Piece dragged, Piece target) {
    return target.Side == Pos.SideToMove ? TryRingPass(dragged, target) : TryHit(dragged, target);
}

}  // namespace

void DropOnBoard(Piece dragged, int x, int y) {
    if (IsThinking || !BothRingsPlaced() || !IsBoardPoint(x, y)) return;
    const int from = SquareOf(dragged);
    const int to = SquareFromPoint(SnapX(x), SnapY(y));
    BeginAction();
    if (IsRecordFull() || !TryPlainMove(dragged, from, to)) return RestoreForward();
    FinishHumanAction(from, to);
}

void DropOnPiece(Piece dragged, Piece target) {
    if (IsThinking || !BothRingsPlaced()) return;
    const int from = SquareOf(dragged);
    const int to = SquareOf(target);
    BeginAction();
    if (IsRecordFull() || !TryAct(dragged, target)) return RestoreForward();
    FinishHumanAction(from, to);
}

void DoubleClickPiece(Piece piece) {
    if (IsThinking) return;
    const bool endsSetup = InFreeSetup();
    BeginAction();
    if (!PlaceRing(piece)) return RestoreForward();
    View->PlacePieces();
    EnterAction(SquareOf(piece), 0);
    if (endsSetup) return RestoreForward();
    RunComputerTurns(false);
    RefreshCandidates();
}

void ClickBoard(int x, int y) {
    if (IsThinking) return;
    if (SetupAddPiece(x, y)) View->PlacePieces();
}

}  // namespace brastel
