#include "tools/soak/RuleComparison.h"

#include "core/Opening.h"
#include "core/PlainMove.h"
#include "core/WinTest.h"
#include "tests/RandomPlay.h"
#include "tests/Snapshot.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/Tally.h"

#include <bitset>
#include <cstdlib>

namespace brastel {

namespace {

// ---- Where candidates and people's rules differ: for a ring carrier of the side to move ----

bool IsGoalEntry(const Action& action) {
    const auto [from, to] = action;
    return IsGoalFront(Pos.SideToMove, from) && to == GoalSquare(Pos.SideToMove);
}

/// Two steps at once, unless up or down to a friend, which is a slide.
bool IsLongStep(const Action& action) {
    const auto [from, to] = action;
    if (!InField(from) || !InField(to) || Pos.Board[to] != Empty) return false;
    const int columns = Column(to) - Column(from);
    const int rows = Row(to) - Row(from);
    if (columns == 0 && Pos.Board[to + (rows > 0 ? Down : Up)] == Pos.SideToMove) return false;
    const PathGuards guards = GuardsOf(columns, rows);
    return guards.Count > 0 && AreEmpty(guards, from);
}

bool IsPassFromOutside(const Action& action) {
    const auto [from, to] = action;
    const int columns = std::abs(Column(to) - Column(from));
    const int rows = std::abs(Row(to) - Row(from));
    const bool isNear = columns * rows == 1 || columns * rows == 2;
    return !InField(from) && InField(to) && isNear && Pos.Board[to] == Pos.SideToMove &&
           !IsRingSquare(to);
}

struct Difference {
    Tally* Kind;
    /// Offered and not accepted, or accepted and not offered.
    bool IsOffered;
    bool (*Applies)(const Action&);
};

/// All of them once the rings are placed; Candidates.h says why.
constexpr std::array<Difference, 3> CarrierDifferences{{
    {&GoalEntriesOffered, true, IsGoalEntry},
    {&LongStepsAccepted, false, IsLongStep},
    {&PassesFromOutsideAccepted, false, IsPassFromOutside},
}};

/// The difference that is known for an action, or null.
const Difference* KnownDifference(const Action& action) {
    if (!CarriesRing(Pos.SideToMove, action.first)) return nullptr;
    const auto* known = std::ranges::find_if(
        CarrierDifferences, [&](const auto& difference) { return difference.Applies(action); });
    return known != CarrierDifferences.end() ? known : nullptr;
}

// ---- Comparison ----

using Destinations = std::bitset<LastSquare + 1>;

/// The candidates by origin and destination.
Table<Destinations, NoSquare, LastSquare> ListOffer() {
    Table<Destinations, NoSquare, LastSquare> offer;
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        Destinations& destinations = offer[OriginOf(MoveList[1][n])];
        const auto destination = static_cast<std::size_t>(DestinationOf(MoveList[1][n]));
        Require(!destinations[destination], "a candidate is listed twice");
        destinations.set(destination);
    }
    return offer;
}

void RequireRight(bool isRight, const Action& action) {
    if (isRight) return;
    throw Inconsistency{
        "the computer's and people's rules do not agree or differ as they should: " +
        std::to_string(action.first) + "-" + std::to_string(action.second)};
}

void CompareAction(const Action& action, bool isOffered) {
    const auto [from, to] = action;
    const bool isAccepted = IsAccepted(from, to);
    const Difference* known = KnownDifference(action);
    if (known != nullptr) {
        RequireRight(isOffered == known->IsOffered && isAccepted != isOffered, action);
        return Count(*known->Kind);
    }
    RequireRight(isOffered == isAccepted, action);
    Require(!isOffered || ActionFits(from, to), "a candidate does not fit");
}

/// The list names the squares of the start layouts but for the pieces beyond the middle of the
/// board. Of pieces placed by hand it knows nothing.
void ComparePlacement(int square, bool isOffered, bool byHand) {
    const Piece piece = PieceOn(square);
    const bool isAccepted = AcceptsRing(piece);
    if (isOffered == isAccepted) return;
    const bool isBeyond = (Row(square) < RowCount / 2) == IsPlacingRing(Red);
    const bool isFirst = InFreeSetup() || piece.Index <= LastRingPiece;
    RequireRight(byHand ? isOffered || isFirst : isAccepted && isFirst && isBeyond,
                 {square, NoSquare});
    Count(isOffered ? PlacementsOffered : PlacementsAccepted);
}

}  // namespace

bool AcceptsRing(Piece piece) {
    const Snapshot before;
    const bool accepts = PlaceRing(piece);
    before.Restore();
    return accepts;
}

void CompareRules(bool byHand) {
    GenerateMoves(1);
    const auto offer = ListOffer();
    for (int from = FirstSquare; from <= LastSquare; ++from) {
        if (!BothRingsPlaced()) {
            ComparePlacement(from, offer[from][NoSquare], byHand);
        } else if (Pos.Board[from] == Empty) {
            Require(offer[from].none(), "a candidate has no piece");
        } else {
            for (int to = NoSquare; to <= LastSquare; ++to) {
                CompareAction({from, to}, offer[from][static_cast<std::size_t>(to)]);
            }
        }
    }
}

}  // namespace brastel
