#include "play/HumanAction.h"

#include "core/Consistency.h"
#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "core/QuietMove.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/Refusal.h"
#include "play/Stepping.h"
#include "play/TurnFlow.h"

namespace brastel {

namespace {

/// True if the current action leaves the loaded game when it is accepted.
bool ForwardWasVisible = false;

void BeginAction() {
    ForwardWasVisible = ForwardVisible;
    ShowForward(false);
}

/// Shows the button again after a refusal and at the end of a free setup.
void RestoreForward() {
    if (ForwardWasVisible) ShowForward(true);
}

/// Writes and counts the entry, passes the turn and clears the status line.
void EnterAction(const Action& action) {
    WriteEntry(action);
    if (ForwardWasVisible) BranchMark = Pos.MoveCount;
    CountEntry();
    ShowBackward(true);
    Pos.SideToMove = ToInt16(-Pos.SideToMove);
    ShowStatus(BlankText);
    assert(PositionIsConsistent());
}

/// The common steps after an accepted move, hit or pass.
void FinishHumanAction(const Action& action) {
    ReturnOutsidePieces();
    View->PlacePieces();
    EnterAction(action);
    CheckWin();
    RunComputerTurns(true);
    RefreshCandidates();
}

/// Shows the button again and lets the view say why nothing happened.
void Refuse(std::string_view why) {
    RestoreForward();
    View->AnnounceRefusal(why);
}

/// A move, hit or ring pass.
void TakeAction(const Action& action) {
    const auto [from, to] = action;
    if (IsThinking || from == to) return;
    BeginAction();
    if (IsRecordFull()) return Refuse(WhyRefused(action));
    if (IsAccepted(action)) {
        ApplyAction(action);
        return FinishHumanAction(action);
    }
    const bool isPushBack = CheckHit(PieceOn(from), PieceOn(to)) == HitVerdict::PushBack;
    if (!isPushBack) return Refuse(WhyRefused(action));
    ShowStatus(PushBackText);
    RestoreForward();
}

}  // namespace

void DropOnBoard(Piece dragged, int x, int y) {
    TakeAction({SquareOf(dragged), IsBoardPoint(x, y) ? SquareFromPoint(x, y) : NoSquare});
}

void DropOnPiece(Piece dragged, Piece target) { TakeAction({SquareOf(dragged), SquareOf(target)}); }

void DoubleClickPiece(Piece piece) {
    if (IsThinking) return;
    const bool endsSetup = InFreeSetup();
    BeginAction();
    if (!PlaceRing(piece)) return Refuse(WhyRingRefused(SquareOf(piece)));
    View->PlacePieces();
    EnterAction({SquareOf(piece), NoSquare});
    if (endsSetup) return RestoreForward();
    RunComputerTurns(false);
    RefreshCandidates();
}

void ClickBoard(int x, int y) {
    if (IsThinking) return;
    if (SetupAddPiece(x, y)) View->PlacePieces();
}

}  // namespace brastel
