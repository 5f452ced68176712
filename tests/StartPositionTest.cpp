#include "core/Consistency.h"
#include "core/Opening.h"
#include "core/StartPosition.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace brastel {
namespace {

TEST(StartPositionTest, LayoutsFaceEachOther) {
    const std::array<const char*, FreeSetupLayout> layouts{
        "b44 b45 r68 r69",
        "b43 b44 b45 b46 r67 r68 r69 r70",
        "r28 r29 b43 b44 b45 b46 r67 r68 r69 r70 b84 b85",
        "r28 r29 b42 b43 b44 b45 b46 b47 r66 r67 r68 r69 r70 r71 b84 b85",
        "r28 r29 b34 b39 b42 b43 b44 b45 b46 b47 r66 r67 r68 r69 r70 r71 r74 r79 b84 b85",
        "r27 r28 r29 r30 b34 b39 b42 b43 b44 b45 b46 b47 "
        "r66 r67 r68 r69 r70 r71 r74 r79 b83 b84 b85 b86"};
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        RedStart = BlueStart = {};
        SelectStartLayout(layout);
        SetUpStartPosition();
        EXPECT_EQ(std::pair(RedStart[0], BlueStart[0]), std::pair(Int16{4}, Int16{109}));
        EXPECT_EQ(Listed(), layouts[static_cast<std::size_t>(layout)]);
        // Piece i of one side stands opposite piece i of the other.
        EXPECT_TRUE(UpsideDown(Pos).RedSquare == Pos.RedSquare) << layout;
    }
    RedStart[0] = 61;
    for (const int other : {-1, LayoutCount, FreeSetupLayout}) {
        EXPECT_EQ(LayoutPieces(other), 0);
        SelectStartLayout(other);
        EXPECT_EQ(Pos.RedCount, other == FreeSetupLayout ? 0 : MaxPieces);
        EXPECT_EQ(RedStart[0], 61) << "the tables stay";
    }
}

/// Start tables come from files that anybody can edit.
TEST(StartPositionTest, DamagedTablesLeavePiecesOffTheBoard) {
    SelectStartLayout(1);
    RedStart[2] = -5;
    RedStart[3] = 113;
    BlueStart[1] = 67;
    SetUpStartPosition();
    EXPECT_EQ(Listed(), "b44 b45 b46 r67 r70");
    EXPECT_FALSE(PlaceRing({Red, 2}));
    Pos.RedCount = 32767;
    Pos.BlueCount = -32768;
    SetUpStartPosition();
    EXPECT_EQ(FirstInconsistency(), "");
}

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
