#include "engine/Candidates.h"

#include "core/Hit.h"
#include "core/PlainMove.h"
#include "core/Position.h"
#include "core/WinTest.h"
#include "engine/Evaluation.h"

#include <span>

namespace brastel {

PlyTable<MoveCode> MoveList;
PlyTable<double> MoveScores;
Table<Int16, 0, MaxPly> CandidateCount;

namespace {

// ---- The row being filled ----

void AddEntry(int ply, MoveCode code, double score) {
    const int n = ++CandidateCount[ply];
    MoveList[ply][n] = code;
    MoveScores[ply][n] = score;
}

// ---- Ring placements ----

/// The squares of the main line, and for 10 and 12 pieces the two pieces behind it.
struct PlacementList {
    Int16 Pieces;
    std::array<Int16, 8> RedSquares;
    std::array<Int16, 8> BlueSquares;
};

constexpr std::array<PlacementList, 6> PlacementLists{{
    {2, {68, 69}, {44, 45}},
    {4, {67, 68, 69, 70}, {43, 44, 45, 46}},
    {6, {67, 68, 69, 70}, {43, 44, 45, 46}},
    {8, {66, 67, 68, 69, 70, 71}, {42, 43, 44, 45, 46, 47}},
    {10, {66, 67, 68, 69, 70, 71, 74, 79}, {42, 43, 44, 45, 46, 47, 34, 39}},
    {12, {66, 67, 68, 69, 70, 71, 74, 79}, {42, 43, 44, 45, 46, 47, 34, 39}},
}};

void GeneratePlacements(int ply) {
    const bool isRed = Pos.MoveCount == 1;
    const Int16 pieces = isRed ? Pos.RedCount : Pos.BlueCount;
    const auto list = std::ranges::find(PlacementLists, pieces, &PlacementList::Pieces);
    if (list == PlacementLists.end()) return;
    for (const Int16 square : isRed ? list->RedSquares : list->BlueSquares) {
        if (square != NoSquare) AddEntry(ply, square, NoScore);
    }
}

// ---- Candidate places ----

enum class Kind { Move, Hit, Pass, Slide, GoalEntry };

/// One place relative to the acting piece, with the squares that must be empty on the way.
struct Place {
    int Offset;
    Kind What;
    PathGuards Guards;
    /// One square on in the same direction: where a hit piece goes.
    int Behind;
};

constexpr Place At(int columns, int rows, Kind what) {
    const int direction = columns == 0 ? (rows > 0 ? Down : Up) : (columns > 0 ? Right : Left);
    const int offset = columns * Right + rows * Down;
    return {offset, what, GuardsOf(columns, rows), offset + direction};
}

constexpr Place SlideFrom(int direction, int leastSteps) {
    return {direction * leastSteps, Kind::Slide, {}, direction};
}

/// Places of a piece without a ring, in generation order.
constexpr std::array<Place, 34> PlainPlaces{{
    SlideFrom(Up, 3),       SlideFrom(Down, 3),     At(-2, -2, Kind::Move), At(-1, -2, Kind::Move),
    At(0, -2, Kind::Move),  At(0, -2, Kind::Hit),   At(1, -2, Kind::Move),  At(2, -2, Kind::Move),
    At(-2, -1, Kind::Move), At(-1, -1, Kind::Move), At(0, -1, Kind::Move),  At(0, -1, Kind::Hit),
    At(1, -1, Kind::Move),  At(2, -1, Kind::Move),  At(-2, 0, Kind::Move),  At(-2, 0, Kind::Hit),
    At(-1, 0, Kind::Move),  At(-1, 0, Kind::Hit),   At(1, 0, Kind::Move),   At(1, 0, Kind::Hit),
    At(2, 0, Kind::Move),   At(2, 0, Kind::Hit),    At(-2, 1, Kind::Move),  At(-1, 1, Kind::Move),
    At(0, 1, Kind::Move),   At(0, 1, Kind::Hit),    At(1, 1, Kind::Move),   At(2, 1, Kind::Move),
    At(-2, 2, Kind::Move),  At(-1, 2, Kind::Move),  At(0, 2, Kind::Move),   At(0, 2, Kind::Hit),
    At(1, 2, Kind::Move),   At(2, 2, Kind::Move),
}};

/// Places of a ring carrier, in generation order.
constexpr std::array<Place, 23> CarrierPlaces{{
    {0, Kind::GoalEntry, {}, 0}, SlideFrom(Up, 2),       SlideFrom(Down, 2),
    At(-1, -2, Kind::Pass),      At(1, -2, Kind::Pass),  At(-2, -1, Kind::Pass),
    At(-1, -1, Kind::Move),      At(-1, -1, Kind::Pass), At(0, -1, Kind::Move),
    At(1, -1, Kind::Move),       At(1, -1, Kind::Pass),  At(2, -1, Kind::Pass),
    At(-1, 0, Kind::Move),       At(1, 0, Kind::Move),   At(-2, 1, Kind::Pass),
    At(-1, 1, Kind::Move),       At(-1, 1, Kind::Pass),  At(0, 1, Kind::Move),
    At(1, 1, Kind::Move),        At(1, 1, Kind::Pass),   At(2, 1, Kind::Pass),
    At(-1, 2, Kind::Pass),       At(1, 2, Kind::Pass),
}};

// ---- Which of the places are candidates ----

bool IsHit(Int16 piece, int square, const Place& place) {
    const int target = square + place.Offset;
    if (Pos.Board[target] != -Pos.SideToMove || !AreEmpty(place.Guards, square)) return false;
    const bool fromTwoAway = place.Guards.Count > 0;
    if (fromTwoAway && IsRingSquare(target)) return false;
    return Pos.Board[square + place.Behind] == Empty &&
           !IsPushBack(piece, FindAt(-Pos.SideToMove, target));
}

/// Where a slide ends: the square before the first piece in the column, when that piece is a friend
/// (it may wait outside) and at least the least number of steps away; otherwise NoSquare.
int SlideTarget(int square, const Place& slide) {
    const int direction = slide.Behind;
    const int nearest = square + slide.Offset;
    if (!InField(nearest)) return NoSquare;
    int next = square + direction;
    while (IsOnBoard(next) && Pos.Board[next] == Empty) next += direction;
    const int target = next - direction;
    const bool isFarEnough = direction == Up ? target <= nearest : target >= nearest;
    return IsOnBoard(next) && isFarEnough && Pos.Board[next] == Pos.SideToMove ? target : NoSquare;
}

/// Always the same goal square of the two, whatever stands on it.
int GoalEntryTarget(int square) {
    return IsGoalFront(Pos.SideToMove, square) ? GoalSquare(Pos.SideToMove) : NoSquare;
}

/// The candidate destination of a place for a piece, or NoSquare.
int TargetOf(Int16 piece, int square, const Place& place) {
    if (place.What == Kind::Slide) return SlideTarget(square, place);
    if (place.What == Kind::GoalEntry) return GoalEntryTarget(square);
    const int target = square + place.Offset;
    if (!InField(target)) return NoSquare;
    const Int16 cell = Pos.Board[target];
    bool accepted = false;
    switch (place.What) {
        case Kind::Move:
            accepted = cell == Empty && AreEmpty(place.Guards, square);
            break;
        case Kind::Pass:
            accepted = cell == Pos.SideToMove && !IsRingSquare(target);
            break;
        default:
            accepted = IsHit(piece, square, place);
    }
    return accepted ? target : NoSquare;
}

void AddPiece(int ply, Int16 piece, int square) {
    const auto places = IsRingSquare(square) ? std::span<const Place>(CarrierPlaces)
                                             : std::span<const Place>(PlainPlaces);
    for (const Place& place : places) {
        const int target = TargetOf(piece, square, place);
        if (target == NoSquare) continue;
        AddEntry(ply, EncodeMove({square, target}), ScoreMove({square, target}));
    }
}

}  // namespace

void GenerateMoves(int ply) {
    CandidateCount[ply] = 0;
    if (!BothRingsPlaced()) return GeneratePlacements(ply);
    const PieceSquares& squares = SquaresOf(Pos.SideToMove);
    const int count = PieceCount(Pos.SideToMove);
    for (int piece = 1; piece <= count; ++piece) {
        if (InField(squares[piece])) AddPiece(ply, ToInt16(piece), squares[piece]);
    }
}

void SortCandidates(int ply) {
    auto& codes = MoveList[ply];
    auto& scores = MoveScores[ply];
    const int count = CandidateCount[ply];
    for (int first = 1; first <= count; ++first) {
        int best = first;
        for (int n = first + 1; n <= count; ++n) {
            if (scores[n] > scores[best]) best = n;
        }
        std::swap(scores[first], scores[best]);
        std::swap(codes[first], codes[best]);
    }
}

}  // namespace brastel
