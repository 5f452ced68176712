#include "core/Consistency.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace brastel {
namespace {

/// A count of placed pieces that is too large was once only found after the squares behind the
/// table had been read.
TEST(ConsistencyTest, NumbersStayInRange) {
    for (Int16* const number :
         {&Pos.RedPlaced, &Pos.BluePlaced, &Pos.LastHit[0], &Pos.LastHit[1], &Pos.RingSquare[0],
          &Pos.RingSquare[1], &Pos.OutsideBalance, &Pos.SideToMove, &Pos.Board[FirstSquare - 1]}) {
        Place("r68 r61 b44");
        EXPECT_TRUE(PositionIsConsistent());
        *number = 1000;
        EXPECT_FALSE(PositionIsConsistent());
    }
}

/// Red's second piece is sent elsewhere, to a friend's, an opponent's or no square; its cell
/// follows or does not.
TEST(ConsistencyTest, CellsAndPiecesAgree) {
    const std::vector<std::tuple<int, bool, bool>> strays{
        {60, false, false}, {68, true, false},      {44, true, false},       {113, true, false},
        {200, true, false}, {NoSquare, true, true}, {NoSquare, false, false}};
    for (const auto& [square, isCellCleared, isSound] : strays) {
        Place("r68 r61 b44");
        Pos.RedSquare[2] = ToInt16(square);
        if (isCellCleared) Pos.Board[61] = Empty;
        EXPECT_EQ(PositionIsConsistent(), isSound) << square;
    }
}

}  // namespace
}  // namespace brastel
