#include "core/Consistency.h"
#include "core/Opening.h"
#include "core/StartPosition.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

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

/// The first piece of a square counts, should two stand there.
TEST(StartPositionTest, PiecesAreFoundBySquareAndByPoint) {
    Place("r68 r61 b44");
    Pos.RedSquare[2] = 68;
    EXPECT_EQ(FindRedAt(68), 1);
    EXPECT_EQ(FindBlueAt(44), 1);
    EXPECT_EQ(FindRedAt(44) + FindBlueAt(68) + FindRedAt(60), 0);
    EXPECT_TRUE(IsPieceAt(SquareLeft(44), SquareTop(44)));
    EXPECT_FALSE(IsPieceAt(SquareLeft(44) + 1, SquareTop(44)));
    EXPECT_FALSE(IsPieceAt(SquareLeft(44), SquareTop(44) - 1));
    EXPECT_FALSE(IsPieceAt(SquareLeft(60), SquareTop(60)));
    // Right of the last column the next row's first square would be computed.
    Pos.BlueSquare[1] = 97;
    EXPECT_FALSE(IsPieceAt(BoardLeft + BoardWidth, SquareTop(96)));
}

}  // namespace
}  // namespace brastel
