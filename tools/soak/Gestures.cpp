#include "tools/soak/Gestures.h"

#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PlainMove.h"
#include "core/RingPass.h"
#include "core/WinTest.h"
#include "engine/Random.h"
#include "play/Hint.h"
#include "play/HumanAction.h"
#include "tests/Snapshot.h"
#include "tools/Chance.h"
#include "tools/soak/GameLine.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/RuleComparison.h"
#include "tools/soak/Tally.h"

namespace brastel {

namespace {

void CheckTurn() {
    const bool isAwaited = Level != TwoPlayerLevel && Pos.SideToMove == ComputerSide;
    Require(!isAwaited || GameOver != False || IsRecordFull(), "the computer did not answer");
    Require(Shown.Turn == Pos.SideToMove, "the wrong side is shown to move");
    Require(BackwardVisible, "the way back is not shown");
}

void CheckEnd(bool wasOver) {
    const Int16 winner = FindWinner();
    const std::string_view announced = winner == Red    ? RedWinsText
                                       : winner == Blue ? BlueWinsText
                                                        : BlankText;
    Require(Shown.Message == announced, "not the winner is announced");
    Require(winner == Empty || GameOver != False, "a win did not end the game");
    if (GameOver != False && !wasOver) Count(Wins);
}

/// An action of a person or a hint, which the computer may answer.
void Do(bool byPerson, const std::function<void()>& operation) {
    const int first = Pos.MoveCount;
    const bool wasOver = GameOver != False;
    // New games and steps back seed it from the clock.
    SeedRandom(static_cast<std::uint32_t>(Chance()));
    operation();
    Require(Pos.MoveCount > first, "an action was not entered");
    CheckTurn();
    Require(Pos.MoveCount == first + 1 || (Level != TwoPlayerLevel && !wasOver),
            "the computer moved out of turn");
    if (first >= 3) CheckEnd(wasOver);
    FollowLine(first, byPerson);
    CheckSteps();
}

void DoIf(bool accepted, const std::function<void()>& operation) {
    if (accepted && !IsRecordFull()) return Do(true, operation);
    const std::string message = Shown.Message;
    Refuse(operation);
    Require(Shown.Message == message, "a refused action was announced");
}

}  // namespace

int SquareUnder(int x, int y) { return IsBoardPoint(x, y) ? SquareFromPoint(x, y) : NoSquare; }

void DropOnSquare(int from, int to) {
    if (const Piece target = PieceOn(to)) return DropOn(PieceOn(from), target);
    const int x = SquareLeft(to) + Roll(CellSize);
    const int y = SquareTop(to) + Roll(CellSize);
    DropAt(PieceOn(from), x, y);
}

void DropAt(Piece dragged, int x, int y) {
    if (const Piece target = PieceOn(SquareUnder(x, y))) return DropOn(dragged, target);
    DoIf(CheckPlainMove(SquareOf(dragged), SquareUnder(x, y)), [=] { DropOnBoard(dragged, x, y); });
}

void DropOn(Piece dragged, Piece target) {
    const auto drop = [=] { DropOnPiece(dragged, target); };
    if (target.Side == Pos.SideToMove) return DoIf(CheckRingPass(dragged, target), drop);
    const HitVerdict verdict = CheckHit(dragged, target);
    if (verdict != HitVerdict::PushBack || IsRecordFull()) {
        return DoIf(verdict == HitVerdict::Accepted, drop);
    }
    Refuse(drop);
    Require(Shown.Message == PushBackText, "a push-back was refused without its message");
    Count(PushBacks);
}

void DoubleClick(Piece piece) {
    DoIf(AcceptsRing(piece), [=] { DoubleClickPiece(piece); });
}

void Click(int x, int y) {
    const int square = SquareUnder(SnapX(x), SnapY(y));
    const Piece added{Pos.SideToMove, ToInt16(PieceCount(Pos.SideToMove) + 1)};
    const bool isFree = square != NoSquare && Pos.Board[square] == Empty;
    if (!InFreeSetup() || !isFree || added.Index > MaxPieces) {
        return Refuse([=] { ClickBoard(x, y); });
    }
    ClickBoard(x, y);
    RequireConsistent();
    Require(PieceOn(square) == added, "a click did not add a piece");
}

void AskForHint() {
    Count(Hints);
    Do(false, Hint);
}

void Refuse(const std::function<void()>& operation) {
    const Snapshot before;
    operation();
    Require(before.IsStillTrue(), "a refused action changed something");
    Count(Refusals);
}

}  // namespace brastel
