#include "core/Consistency.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace brastel {
namespace {

/// Each number is taken to both ends of its range and one beyond. A count of placed pieces that is
/// too large was once only found after the squares behind the table had been read.
TEST(ConsistencyTest, NumbersStayInRange) {
    Place("r68 r61 b44");
    const std::vector<std::tuple<Int16*, int, int>> numbers{
        {&Pos.RingSquare[0], 1, 112},    {&Pos.RingSquare[1], 1, 112}, {&Pos.LastHit[0], 0, 12},
        {&Pos.LastHit[1], 0, 12},        {&Pos.RedPlaced, 0, 12},      {&Pos.BluePlaced, 0, 12},
        {&Pos.OutsideBalance, -300, 300}};
    for (const auto& [number, first, last] : numbers) {
        const Position sound = Pos;
        for (const int value : {first - 1, first, last, last + 1}) {
            *number = ToInt16(value);
            EXPECT_EQ(PositionIsConsistent(), value >= first && value <= last) << value;
        }
        Pos = sound;
    }
    Pos.Board[FirstSquare - 1] = Blue;
    EXPECT_NE(FirstInconsistency(), "");
    Pos.Board[FirstSquare - 1] = Empty;
    Pos.MoveCount = 0;
    EXPECT_NE(FirstInconsistency(), "");
    Pos.MoveCount = 1;
    Pos.SideToMove = Blue;
    EXPECT_EQ(FirstInconsistency(), "");
    Pos.SideToMove = Empty;
    EXPECT_NE(FirstInconsistency(), "");
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
