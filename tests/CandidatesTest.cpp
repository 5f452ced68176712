#include "core/WinTest.h"
#include "engine/Candidates.h"
#include "tests/RandomPlay.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace brastel {
namespace {

using Codes = std::vector<MoveCode>;

/// Only a slide covers so many squares of a column: two for a carrier, three for another piece.
bool IsSlide(int from, int to) {
    const int rows = std::abs(Row(from) - Row(to));
    return Column(from) == Column(to) && Pos.Board[to] == Empty && rows >= 3 - IsRingSquare(from);
}

/// Only people take a ring carrier two steps at once without a friend to slide up to.
bool IsLongCarrierStep(int from, int to) {
    if (!IsRingSquare(from) || Pos.Board[to] != Empty) return false;
    if (IsSlide(from, to)) return Pos.Board[to + (to > from ? Down : Up)] != Pos.SideToMove;
    return std::abs(Row(from) - Row(to)) > 1 || std::abs(Column(from) - Column(to)) > 1;
}

/// What the rules of people accept, in the order on which every tie-break depends: the goal, slides
/// up and down, then board order.
Codes AcceptedFor(int from) {
    Codes codes;
    const auto slides = [from](MoveCode code) { return IsSlide(from, DestinationOf(code)); };
    for (int to = FirstSquare; to <= LastSquare; ++to) {
        if (!IsAccepted(from, to) || IsLongCarrierStep(from, to)) continue;
        codes.push_back(EncodeMove(from, to));
    }
    std::stable_partition(codes.begin(), codes.end(), slides);
    if (IsRingSquare(from) && IsGoalFront(Pos.SideToMove, from)) {
        codes.insert(codes.begin(), EncodeMove(from, GoalSquare(Pos.SideToMove)));
    }
    return codes;
}

Codes Expected() {
    Codes codes;
    for (int i = 1; i <= PieceCount(Pos.SideToMove); ++i) {
        const Int16 from = SquaresOf(Pos.SideToMove)[i];
        // Rings go to the pieces on their own half of the board.
        const bool isAtHome = (Row(from) > 6) == (Pos.SideToMove == Red);
        const Codes placement(isAtHome ? 1 : 0, from);
        const Codes more = BothRingsPlaced() ? AcceptedFor(from) : placement;
        codes.insert(codes.end(), more.begin(), more.end());
    }
    return codes;
}

TEST(CandidatesTest, AreWhatTheRulesAccept) {
    Dice dice(1);
    for (int game = 0; game < 300; ++game) {
        Wander(game % FreeSetupLayout, game < 12 ? game / 6 : Below(dice, 80), dice);
        GenerateMoves(1);
        const Codes generated(&MoveList[1][1], &MoveList[1][1] + CandidateCount[1]);
        ASSERT_EQ(generated, Expected()) << Listed();
    }
}

}  // namespace
}  // namespace brastel
