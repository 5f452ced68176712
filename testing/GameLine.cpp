#include "testing/GameLine.h"

#include "core/Consistency.h"
#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PiecesOutside.h"
#include "engine/Search.h"
#include "play/DisplayedMove.h"
#include "play/HumanAction.h"
#include "testing/ExpectedCandidates.h"
#include "testing/Require.h"
#include "testing/ShownGame.h"

namespace brastel {

namespace {

template <typename Operation>
Position PositionAfter(Operation operation) {
    const Aside aside;
    operation();
    return Pos;
}

/// True if the full pass would bring back a piece from outside. Only a piece that was placed there
/// by hand can wait like this.
bool HasLateReturns() { return PositionAfter(ReturnOutsidePieces) != Pos; }

void CountKind(const Action& entry) {
    const auto [from, to] = entry;
    if (!BothRingsPlaced()) return Count("ring placements");
    if (from == NoSquare) return Count("null moves");
    Count("long steps of a carrier", InField(to) && IsLongCarrierStep(from, to));
    if (Pos.Board[to] == Pos.SideToMove) return Count("ring passes");
    if (Pos.Board[to] == Empty) return Count(InField(to) ? "moves" : "goal entries");
    Count("hits");
    Count("captures of a ring", IsRingSquare(to));
}

/// Only a side without a candidate that can be played passes.
void CheckPassing(const Action& entry) {
    if (!BothRingsPlaced() || entry.Origin != NoSquare) return;
    Require(MustPass(), "a side passed that could move");
}

// ---- Three ways to play an entry, from the same position ----

void PlayQuietly(const Action& entry) {
    ApplyMoveQuiet(entry);
    CountEntry();
    RequireConsistent();
}

void PlayInView(const Action& entry) {
    ApplyMoveShown(entry);
    CountEntry();
}

void PlayByGesture(const Action& entry) {
    Level = TwoPlayerLevel;
    if (!BothRingsPlaced()) return DoubleClickPiece(PieceOn(entry.Origin));
    Drag(entry.Origin, entry.Destination);
}

/// `expected` is the position after the entry if people may play it. Otherwise it is refused.
void CheckGesture(const Action& entry, const Position& expected) {
    const Piece actor = PieceOn(entry.Origin);
    if (!actor) return;
    const bool accepted = BothRingsPlaced()
                              ? IsAccepted(entry)
                              : actor.Side == Pos.SideToMove && actor.Index <= LastRingPiece;
    Require(PositionAfter([&] { PlayByGesture(entry); }) == (accepted ? expected : Pos),
            "a drop leads elsewhere than the move of the computer");
}

// ---- What an entry does ----

/// Where a hit pushes the piece: to the second square beyond if that is empty, or to the first.
int LandingSquare(const Action& hit) {
    const auto [from, to] = hit;
    const int direction = PushDirection(from, to);
    return to + (IsFreeBeyond(to, direction, 2) ? 2 : 1) * direction;
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

std::ptrdiff_t CountPieces(const Position& position, Int16 side) {
    const auto& board = position.Board;
    return std::ranges::count(&board[FirstSquare], &board[LastSquare] + 1, side);
}

bool StandsOutside(Int16 side) {
    for (int i = 1; i <= PieceCount(side); ++i) {
        if (!InField(SquaresOf(side)[i])) return true;
    }
    return false;
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

/// A piece that comes back from outside leaves its ring there. So does a carrier that hits: Forward
/// can play that after a hint has left the loaded game.
void CheckRings(const Position& before, const Action& entry) {
    const bool isHit = before.Board[entry.Destination] == -before.SideToMove;
    for (std::size_t k = 0; k < RingCount; ++k) {
        const int ring = Pos.RingSquare[k];
        if (isHit && ring == entry.Origin) continue;
        const bool wasCarried = before.Board[before.RingSquare[k]] != Empty;
        Require(!wasCarried || !InField(ring) || Pos.Board[ring] != Empty, "a ring was lost");
    }
}

void CheckCandidates() {
    const Codes codes = GeneratedCandidates();
    Require(codes == ExpectedCandidates(), "the candidates are not what the rules accept");
    for (const MoveCode code : codes) {
        const Action action = DecodeMove(code);
        Require((BothRingsPlaced() && !InField(action.Destination)) || ActionFits(action),
                "a candidate does not fit");
    }
}

void CheckPosition(const Position& before, const Action& entry) {
    RequireConsistent();
    Require(Pos.SideToMove == -before.SideToMove, "the turn did not pass");
    for (const Int16 side : {Red, Blue}) {
        Require(CountPieces(Pos, side) == CountPieces(before, side), "a piece came or was lost");
    }
    CheckBalance(before, entry);
    CheckCandidates();
    if (before.MoveCount < 3) return;
    CheckRings(before, entry);
    Require(!HasLateReturns(), "a piece waits that could come back");
}

void FollowEntry(const Action& entry, Origin origin) {
    const Position before = Line.back();
    Pos = before;
    Require(ActionFits(entry), "the record holds what cannot be played");
    CountKind(entry);
    if (origin == Origin::Computer) CheckPassing(entry);
    const Position quiet = PositionAfter([&] { PlayQuietly(entry); });
    const Position shown = PositionAfter([&] { PlayInView(entry); });
    CheckHit(entry, shown);
    if (quiet != shown) {
        Require(HasLateReturns(), "a quiet move leads elsewhere than a shown one");
        Count("returns that quiet moves leave out");
    }
    // A double-click brings no piece back.
    const Position& people = BothRingsPlaced() ? shown : quiet;
    if (origin != Origin::Person) CheckGesture(entry, people);
    Pos = origin == Origin::Person ? people : shown;
    CheckPosition(before, entry);
    Line.push_back(Pos);
}

}  // namespace

void RequireConsistent() {
    const std::string fault = FirstInconsistency();
    Require(fault.empty(), fault);
}

void BeginLine() {
    const Position played = Pos;
    const Aside aside;
    SetUpStartPosition();
    LineIsExact = !HasLateReturns();
    Line.assign(1, Pos);
    const bool startsOutside = StandsOutside(Red) || StandsOutside(Blue);
    for (int k = 1; k < played.MoveCount; ++k) {
        ReplayEntry(PlayedEntry(k));
        Line.push_back(Pos);
    }
    // Blue pieces that were set up after Red's ring can keep a piece out that came back before
    // them.
    Require(Pos == played || !LineIsExact || startsOutside,
            "the record leads elsewhere than the game");
    LineIsExact = LineIsExact && Pos == played;
    Pos = Line.back() = played;
    CheckCandidates();
}

void FollowLine(int first, Origin origin) {
    const int end = Pos.MoveCount;
    const Aside aside;
    for (int k = first; k < end; ++k) {
        Count("answers of the computer", k > first);
        FollowEntry(PlayedEntry(k), k > first ? Origin::Computer : origin);
    }
}

}  // namespace brastel
