#include "tools/soak/GameLine.h"

#include "core/Consistency.h"
#include "core/PiecesOutside.h"
#include "play/DisplayedMove.h"
#include "play/HumanAction.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/RuleComparison.h"
#include "tools/soak/Snapshot.h"
#include "tools/soak/Tally.h"

namespace brastel {

namespace {

/// True if a piece waits outside that the full pass would bring back, which only one that was
/// placed there by hand can do.
bool HasLateReturns() {
    const Position before = Pos;
    ReturnOutsidePieces();
    const bool changed = Pos != before;
    Pos = before;
    return changed;
}

void CountKind(const Action& entry) {
    const auto [from, to] = entry;
    if (!BothRingsPlaced()) return Count(Event::Placement);
    if (from == NoSquare) return Count(Event::NullMove);
    if (Pos.Board[to] == Pos.SideToMove) return Count(Event::RingPass);
    if (Pos.Board[to] == Empty) return Count(InField(to) ? Event::Move : Event::GoalEntry);
    Count(Event::Hit);
    if (IsRingSquare(to)) Count(Event::Capture);
}

/// Only a side without a candidate passes, or one that chose a goal entry that is barred.
void CheckPassing(const Action& entry) {
    if (!BothRingsPlaced() || entry.first != NoSquare) return;
    GenerateMoves(1);
    bool mayPass = CandidateCount[1] == 0;
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        mayPass |= !ActionFits(OriginOf(MoveList[1][n]), DestinationOf(MoveList[1][n]));
    }
    Require(mayPass, "a side passed that could move");
}

// ---- Three ways to play an entry, from the same position ----

Position PlayedQuietly(const Action& entry) {
    const Position before = Pos;
    ApplyMoveQuiet(entry.first, entry.second);
    CountEntry();
    RequireConsistent();
    return std::exchange(Pos, before);
}

Position PlayedInView(const Action& entry) {
    const Position before = Pos;
    ApplyMoveShown(entry.first, entry.second);
    CountEntry();
    return std::exchange(Pos, before);
}

/// Where the rules differ, people's gesture is refused.
Position PlayedByGesture(const Action& entry) {
    const auto [from, to] = entry;
    const Position before = Pos;
    const Piece actor = PieceOn(from);
    Level = TwoPlayerLevel;
    if (!BothRingsPlaced()) {
        DoubleClickPiece(actor);
    } else if (const Piece target = PieceOn(to)) {
        DropOnPiece(actor, target);
    } else {
        DropOnBoard(actor, SquareLeft(to), SquareTop(to) + CellSize - 1);
    }
    return std::exchange(Pos, before);
}

/// `expected` is where the entry leads if people may play it.
void CheckGesture(const Action& entry, const Position& expected) {
    const Piece actor = PieceOn(entry.first);
    const bool accepted =
        BothRingsPlaced() ? IsAccepted(entry.first, entry.second) : AcceptsRing(actor);
    if (actor) {
        Require(PlayedByGesture(entry) == (accepted ? expected : Pos),
                "a drop leads elsewhere than the move of the computer");
    }
}

// ---- The position after an entry ----

/// What an entry leaves behind: who hit whom last, and the square of the piece hit now, if any.
struct HitOutcome {
    std::array<Int16, 2> LastHit{};
    int Landing = NoSquare;
};

constexpr int Sign(int number) { return (number > 0) - (number < 0); }

/// Asked before the entry is played.
HitOutcome ExpectedOutcome(const Action& entry) {
    const auto [from, to] = entry;
    if (!BothRingsPlaced() || from == NoSquare) return {Pos.LastHit};
    if (Pos.Board[to] != -Pos.SideToMove) return {};
    const int across = Sign(Column(to) - Column(from));
    const int down = Sign(Row(to) - Row(from));
    const int near = SquareAt(Row(to) + down, Column(to) + across);
    const int far = SquareAt(Row(to) + 2 * down, Column(to) + 2 * across);
    const bool goesFar = far != NoSquare && Pos.Board[far] == Empty;
    return {{PieceOn(from).Index, PieceOn(to).Index}, goesFar ? far : near};
}

/// The side hit is now to move.
void CheckOutcome(const HitOutcome& expected) {
    Require(Pos.LastHit == expected.LastHit, "the last hit is not remembered or not forgotten");
    Require(expected.Landing == NoSquare ||
                SquareOf({Pos.SideToMove, Pos.LastHit[1]}) == expected.Landing,
            "a piece was pushed to a wrong square");
}

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

bool HasCameBack(const Position& before, int side) {
    const PieceSquares& squares = side == Red ? before.RedSquare : before.BlueSquare;
    for (int i = 1; i <= PieceCount(side); ++i) {
        if (!InField(squares[i]) && InField(SquaresOf(side)[i])) return true;
    }
    return false;
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

void LoadPlayedGame() {
    LoadedFrom = PlayedFrom;
    LoadedTo = PlayedTo;
    LoadedCount = ToInt16(Pos.MoveCount - 1);
    TakeLoadedGame();
}

void GameLine::Begin(bool byHand) {
    ByHand = byHand;
    Exact = !HasLateReturns();
    const Snapshot now;
    SetUpStartPosition();
    Positions.assign(1, Pos);
    for (int k = 1; k < now.Where.MoveCount; ++k) {
        Pos = PlayedQuietly({PlayedFrom[k], PlayedTo[k]});
        Positions.push_back(Pos);
    }
    Require(Pos == now.Where, "the free setup differs from the game that begins with it");
    now.Restore();
    CompareRules(ByHand);
}

void GameLine::Follow(int first, bool byPerson) {
    const Snapshot played;
    for (int k = first; k < played.Where.MoveCount; ++k) {
        if (k > first) Count(Event::Answer);
        FollowEntry({played.From[k], played.To[k]}, byPerson && k == first);
    }
    Require(played.Where == Positions.back(), "the game stands elsewhere than its entries lead");
    played.Restore();
}

void GameLine::FollowEntry(const Action& entry, bool byPerson) {
    const Position before = Positions.back();
    Pos = before;
    CountKind(entry);
    CheckPassing(entry);
    const HitOutcome outcome = ExpectedOutcome(entry);
    const Position quiet = PlayedQuietly(entry);
    const Position shown = PlayedInView(entry);
    if (quiet != shown) {
        Require(HasLateReturns(), "a quiet move leads elsewhere than a shown one");
        Count(Event::LateReturn);
    }
    // A double-click brings nobody back.
    const Position& people = BothRingsPlaced() ? shown : quiet;
    if (!byPerson) CheckGesture(entry, people);
    Pos = byPerson ? people : shown;
    CheckOutcome(outcome);
    CheckPosition(before, entry);
    Positions.push_back(Pos);
}

void GameLine::CheckPosition(const Position& before, const Action& entry) const {
    RequireConsistent();
    Require(Pos.SideToMove == -before.SideToMove, "the turn did not pass");
    Require(Pos.RedCount == before.RedCount && Pos.BlueCount == before.BlueCount,
            "the number of pieces changed");
    CheckRings(before);
    CheckBalance(before, entry);
    Require(before.MoveCount < 3 || !HasLateReturns(), "a piece waits that could come back");
    if (HasCameBack(before, Red) || HasCameBack(before, Blue)) Count(Event::Return);
    CompareRules(ByHand);
}

void GameLine::CheckSteps() const {
    const Snapshot now;
    LoadPlayedGame();
    StepBack();
    RequireConsistent();
    if (Exact) {
        Require(Pos == Positions[Positions.size() - 2], "the record leads elsewhere than the game");
        Require(ForwardVisible, "the way forward is not shown");
        StepForward();
        Require(Pos == Positions.back(), "a step forward leads elsewhere than the game");
    }
    now.Restore();
}

}  // namespace brastel
