#include "engine/Candidates.h"

#include "core/Hit.h"
#include "core/PlainMove.h"
#include "core/StartPosition.h"
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
    assert(n <= MaxCandidates);
    MoveList[ply][n] = code;
    MoveScores[ply][n] = score;
}

// ---- Ring placements ----

void GeneratePlacements(int ply) {
    const bool isRed = Pos.MoveCount == 1;
    for (const Int16 square :
         StartSquares(isRed ? Red : Blue, isRed ? Pos.RedCount : Pos.BlueCount)) {
        const bool isInOwnHalf = (Row(square) >= RowCount / 2) == isRed;
        if (square != NoSquare && isInOwnHalf) AddEntry(ply, square, NoScore);
    }
}

// ---- Patterns ----

enum class Kind { Move, Hit, Pass, Slide, GoalEntry };

/// A destination relative to the acting piece, with the squares that must be empty on the way.
struct Pattern {
    int Offset;
    Kind What;
    PathGuards Guards;
    /// For a hit: where the target is pushed to. For a slide: its direction.
    int Behind;
};

constexpr Pattern At(int columns, int rows, Kind what) {
    const int direction = columns == 0 ? (rows > 0 ? Down : Up) : (columns > 0 ? Right : Left);
    const int offset = columns * Right + rows * Down;
    return {offset, what, GuardsOf(columns, rows), offset + direction};
}

constexpr Pattern SlideFrom(int direction, int leastSteps) {
    return {direction * leastSteps, Kind::Slide, {}, direction};
}

/// Places of a piece without a ring, in generation order.
constexpr std::array<Pattern, 34> PlainPatterns{{
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
constexpr std::array<Pattern, 23> CarrierPatterns{{
    {0, Kind::GoalEntry, {}, 0}, SlideFrom(Up, 2),       SlideFrom(Down, 2),
    At(-1, -2, Kind::Pass),      At(1, -2, Kind::Pass),  At(-2, -1, Kind::Pass),
    At(-1, -1, Kind::Move),      At(-1, -1, Kind::Pass), At(0, -1, Kind::Move),
    At(1, -1, Kind::Move),       At(1, -1, Kind::Pass),  At(2, -1, Kind::Pass),
    At(-1, 0, Kind::Move),       At(1, 0, Kind::Move),   At(-2, 1, Kind::Pass),
    At(-1, 1, Kind::Move),       At(-1, 1, Kind::Pass),  At(0, 1, Kind::Move),
    At(1, 1, Kind::Move),        At(1, 1, Kind::Pass),   At(2, 1, Kind::Pass),
    At(-1, 2, Kind::Pass),       At(1, 2, Kind::Pass),
}};

// ---- Which of the patterns are candidates ----

bool IsHit(Int16 piece, int square, const Pattern& pattern) {
    const int target = square + pattern.Offset;
    if (Pos.Board[target] != -Pos.SideToMove || !AreEmpty(pattern.Guards, square)) return false;
    // A hit from two squares away has a guard.
    if (pattern.Guards.Count > 0 && IsRingSquare(target)) return false;
    return Pos.Board[square + pattern.Behind] == Empty &&
           !IsPushBack(piece, FindAt(-Pos.SideToMove, target));
}

/// Where a slide ends: in front of the first piece in the column, if that is a friend, who may wait
/// outside, and the slide is long enough. Otherwise NoSquare.
int SlideTarget(int square, const Pattern& slide) {
    const int direction = slide.Behind;
    const int nearest = square + slide.Offset;
    if (!InField(nearest)) return NoSquare;
    int next = square + direction;
    while (IsOnBoard(next) && Pos.Board[next] == Empty) next += direction;
    const int target = next - direction;
    const bool isFarEnough = direction == Up ? target <= nearest : target >= nearest;
    return IsOnBoard(next) && isFarEnough && Pos.Board[next] == Pos.SideToMove ? target : NoSquare;
}

/// The candidate destination of a pattern for a piece, or NoSquare.
int TargetOf(Int16 piece, int square, const Pattern& pattern) {
    const Int16 side = Pos.SideToMove;
    const Kind what = pattern.What;
    if (what == Kind::Slide) return SlideTarget(square, pattern);
    if (what == Kind::GoalEntry) return IsGoalFront(side, square) ? GoalSquare(side) : NoSquare;
    const int target = square + pattern.Offset;
    if (!InField(target)) return NoSquare;
    const Int16 cell = Pos.Board[target];
    const bool accepted = what == Kind::Move   ? cell == Empty && AreEmpty(pattern.Guards, square)
                          : what == Kind::Pass ? cell == side && !IsRingSquare(target)
                                               : IsHit(piece, square, pattern);
    return accepted ? target : NoSquare;
}

void AddPiece(int ply, Int16 piece, int square) {
    const auto patterns = IsRingSquare(square) ? std::span<const Pattern>(CarrierPatterns)
                                               : std::span<const Pattern>(PlainPatterns);
    for (const Pattern& pattern : patterns) {
        const int target = TargetOf(piece, square, pattern);
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
