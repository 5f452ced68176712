#include "tools/soak/GameLine.h"

#include "core/Consistency.h"
#include "core/PiecesOutside.h"
#include "engine/Search.h"
#include "play/DisplayedMove.h"
#include "play/HumanAction.h"
#include "tests/RandomPlay.h"
#include "tests/ShownGame.h"
#include "tests/Snapshot.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/RuleComparison.h"
#include "tools/soak/Tally.h"

namespace brastel {

namespace {

bool IsByHand = false;

template <typename Operation>
Position PositionAfter(Operation operation) {
    const Position before = Pos;
    operation();
    return std::exchange(Pos, before);
}

/// True if a piece waits outside that the full pass would bring back, which only one that was
/// placed there by hand can do.
bool HasLateReturns() { return PositionAfter(ReturnOutsidePieces) != Pos; }

void CountKind(const Action& entry) {
    const auto [from, to] = entry;
    if (!BothRingsPlaced()) return Count(Placements);
    if (from == NoSquare) return Count(NullMoves);
    if (Pos.Board[to] == Pos.SideToMove) return Count(RingPasses);
    if (Pos.Board[to] == Empty) return Count(InField(to) ? Moves : GoalEntries);
    Count(Hits);
    if (IsRingSquare(to)) Count(Captures);
}

/// Only a side without a candidate that can be played passes.
void CheckPassing(const Action& entry) {
    if (!BothRingsPlaced() || entry.first != NoSquare) return;
    GenerateMoves(1);
    Require(ChoosePlayable() == 0, "a side passed that could move");
}

// ---- Three ways to play an entry, from the same position ----

void PlayQuietly(const Action& entry) {
    ApplyMoveQuiet(entry.first, entry.second);
    CountEntry();
    RequireConsistent();
}

void PlayInView(const Action& entry) {
    ApplyMoveShown(entry.first, entry.second);
    CountEntry();
}

/// Where the rules differ, people's gesture is refused.
void PlayByGesture(const Action& entry) {
    Level = TwoPlayerLevel;
    if (!BothRingsPlaced()) return DoubleClickPiece(PieceOn(entry.first));
    Drag(entry.first, entry.second);
}

/// `expected` is where the entry leads if people may play it.
void CheckGesture(const Action& entry, const Position& expected) {
    const Piece actor = PieceOn(entry.first);
    const bool accepted =
        BothRingsPlaced() ? IsAccepted(entry.first, entry.second) : AcceptsRing(actor);
    if (!actor) return;
    Require(PositionAfter([&] { PlayByGesture(entry); }) == (accepted ? expected : Pos),
            "a drop leads elsewhere than the move of the computer");
}

/// Where a hit pushes the piece: to the second square beyond if that is empty, or to the first.
int LandingSquare(const Action& hit) {
    const auto [from, to] = hit;
    const auto sign = [](int number) { return (number > 0) - (number < 0); };
    const int across = sign(Column(to) - Column(from));
    const int down = sign(Row(to) - Row(from));
    const int second = SquareAt(Row(to) + 2 * down, Column(to) + 2 * across);
    const bool isFree = second != NoSquare && Pos.Board[second] == Empty;
    return isFree ? second : SquareAt(Row(to) + down, Column(to) + across);
}

/// Every action of play but a null move makes a last hit or forgets it.
void CheckHit(const Action& entry, const Position& after) {
    const auto [from, to] = entry;
    if (!BothRingsPlaced() || from == NoSquare) {
        return Require(after.LastHit == Pos.LastHit, "the last hit was forgotten");
    }
    if (Pos.Board[to] != -Pos.SideToMove) {
        return Require(after.LastHit == decltype(after.LastHit){}, "the last hit was kept");
    }
    const Piece hit = PieceOn(to);
    Require(after.LastHit == std::array{PieceOn(from).Index, hit.Index},
            "the last hit names other pieces");
    const PieceSquares& squares = hit.Side == Red ? after.RedSquare : after.BlueSquare;
    Require(squares[hit.Index] == LandingSquare(entry), "a piece was pushed to a wrong square");
}

// ---- The position after an entry ----

/// Red pieces outside less Blue ones, counted on the board.
int CountOutside(const Position& position) {
    int balance = 0;
    for (int s = FirstSquare; s <= LastSquare; ++s) balance -= InField(s) ? 0 : position.Board[s];
    return balance;
}

/// The balance changes with the pieces outside; only the carrier that enters the goal is not
/// counted on its way out.
void CheckBalance(const Position& before, const Action& entry) {
    const auto [from, to] = entry;
    const bool isGoalEntry =
        before.MoveCount >= 3 && from != NoSquare && !InField(to) && before.Board[to] == Empty;
    const int uncounted = isGoalEntry ? -before.SideToMove : 0;
    Require(Pos.OutsideBalance - before.OutsideBalance ==
                CountOutside(Pos) - CountOutside(before) - uncounted,
            "the balance of the pieces outside is wrong");
}

void CheckRings(const Position& before) {
    if (before.MoveCount < 3) return;
    for (std::size_t k = 0; k < RingCount; ++k) {
        // A piece that comes back from outside leaves its ring there.
        const int ring = Pos.RingSquare[k];
        const bool wasCarried = before.Board[before.RingSquare[k]] != Empty;
        Require(!wasCarried || !InField(ring) || Pos.Board[ring] != Empty, "a ring was lost");
    }
}

bool HasSomeoneReturned(const Position& before) {
    for (int s = FirstSquare; s <= LastSquare; ++s) {
        if (!InField(s) && before.Board[s] != Empty && Pos.Board[s] == Empty) return true;
    }
    return false;
}

void CheckPosition(const Position& before, const Action& entry) {
    RequireConsistent();
    Require(Pos.SideToMove == -before.SideToMove, "the turn did not pass");
    Require(Pos.RedCount == before.RedCount && Pos.BlueCount == before.BlueCount,
            "the number of pieces changed");
    CheckRings(before);
    CheckBalance(before, entry);
    Require(before.MoveCount < 3 || !HasLateReturns(), "a piece waits that could come back");
    if (HasSomeoneReturned(before)) Count(Returns);
    CompareRules(IsByHand);
}

void FollowEntry(const Action& entry, bool byPerson) {
    const Position before = Line.back();
    Pos = before;
    CountKind(entry);
    CheckPassing(entry);
    const Position quiet = PositionAfter([&] { PlayQuietly(entry); });
    const Position shown = PositionAfter([&] { PlayInView(entry); });
    CheckHit(entry, shown);
    if (quiet != shown) {
        Require(HasLateReturns(), "a quiet move leads elsewhere than a shown one");
        Count(LateReturns);
    }
    // A double-click brings nobody back.
    const Position& people = BothRingsPlaced() ? shown : quiet;
    if (!byPerson) CheckGesture(entry, people);
    Pos = byPerson ? people : shown;
    CheckPosition(before, entry);
    Line.push_back(Pos);
}

}  // namespace

void RequireConsistent() {
    if (const std::string fault = FirstInconsistency(); !fault.empty()) throw Inconsistency{fault};
    for (const Int16 side : {Red, Blue}) {
        for (int i = 1; i <= PieceCount(side); ++i) {
            Require(IsOnBoard(SquaresOf(side)[i]), "a piece was lost");
        }
    }
}

void BeginLine(bool byHand) {
    IsByHand = byHand;
    LineIsExact = !HasLateReturns();
    const Position played = Pos;
    const Snapshot now;
    SetUpStartPosition();
    Line.assign(1, Pos);
    for (int k = 1; k < played.MoveCount; ++k) {
        PlayQuietly({PlayedFrom[k], PlayedTo[k]});
        Line.push_back(Pos);
    }
    Require(Pos == played, "the free setup differs from the game that begins with it");
    now.Restore();
    CompareRules(byHand);
}

void FollowLine(int first, bool byPerson) {
    const Position played = Pos;
    const Snapshot now;
    for (int k = first; k < played.MoveCount; ++k) {
        if (k > first) Count(Answers);
        FollowEntry({PlayedFrom[k], PlayedTo[k]}, byPerson && k == first);
        now.Restore();
    }
    Require(played == Line.back(), "the game stands elsewhere than its entries lead");
}

void CheckSteps() {
    const Snapshot now;
    LoadPlayedGame();
    StepBack();
    RequireConsistent();
    if (LineIsExact) {
        Require(Pos == Line[Line.size() - 2], "the record leads elsewhere than the game");
        Require(ForwardVisible, "the way forward is not shown");
        StepForward();
        Require(Pos == Line.back(), "a step forward leads elsewhere than the game");
    }
    now.Restore();
}

}  // namespace brastel
