#pragma once

#include "core/WinTest.h"
#include "engine/Candidates.h"
#include "testing/RandomPlay.h"

#include <cstdlib>
#include <tuple>
#include <vector>

/// The candidates as they follow from the rules of people.
namespace brastel {

using Codes = std::vector<MoveCode>;

/// Only a slide covers so many squares of a column: two for a carrier, three for another piece.
inline bool IsSlide(int from, int to) {
    const int rows = std::abs(Row(from) - Row(to));
    return Column(from) == Column(to) && Pos.Board[to] == Empty && rows >= 3 - IsRingSquare(from);
}

/// Only people take a ring carrier two steps at once without a friend to slide up to.
inline bool IsLongCarrierStep(int from, int to) {
    if (!IsRingSquare(from) || Pos.Board[to] != Empty) return false;
    if (IsSlide(from, to)) return Pos.Board[to + (to > from ? Down : Up)] != Pos.SideToMove;
    return std::abs(Row(from) - Row(to)) > 1 || std::abs(Column(from) - Column(to)) > 1;
}

/// What the rules of people accept, in the order on which every tie-break depends: the goal, slides
/// up and down, then board order. Only people pass a ring on from outside.
inline Codes AcceptedFor(int from) {
    Codes codes;
    if (!InField(from)) return codes;
    const auto slides = [from](MoveCode code) {
        return IsSlide(from, DecodeMove(code).Destination);
    };
    for (int to = FirstSquare; to <= LastSquare; ++to) {
        if (!IsAccepted({from, to}) || IsLongCarrierStep(from, to)) continue;
        codes.push_back(EncodeMove({from, to}));
    }
    std::stable_partition(codes.begin(), codes.end(), slides);
    if (IsRingSquare(from) && IsGoalFront(Pos.SideToMove, from)) {
        codes.insert(codes.begin(), EncodeMove({from, GoalSquare(Pos.SideToMove)}));
    }
    return codes;
}

/// The squares come from the start layout with the same number of pieces: all on which it puts the
/// side's pieces in its own half. It does not matter where the pieces stand now. Pieces placed by
/// hand can have a number that no layout has; then there are no candidates.
inline Codes ExpectedPlacements() {
    const auto before = std::tuple(Pos, RedStart, BlueStart);
    const Int16 side = Pos.MoveCount == 1 ? Red : Blue;
    const int pieces = side == Red ? Pos.RedCount : Pos.BlueCount;
    Codes codes;
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        if (LayoutPieces(layout) != pieces) continue;
        SelectStartLayout(layout);
        SetUpStartPosition();
        for (int i = 1; i <= pieces; ++i) {
            const Int16 square = SquaresOf(side)[i];
            if ((Row(square) >= RowCount / 2) == (side == Red)) codes.push_back(square);
        }
    }
    std::tie(Pos, RedStart, BlueStart) = before;
    return codes;
}

inline Codes ExpectedCandidates() {
    if (!BothRingsPlaced()) return ExpectedPlacements();
    Codes codes;
    for (int i = 1; i <= PieceCount(Pos.SideToMove); ++i) {
        const Codes more = AcceptedFor(SquaresOf(Pos.SideToMove)[i]);
        codes.insert(codes.end(), more.begin(), more.end());
    }
    return codes;
}

inline Codes GeneratedCandidates() {
    GenerateMoves(1);
    return {&MoveList[1][1], &MoveList[1][1] + CandidateCount[1]};
}

}  // namespace brastel
