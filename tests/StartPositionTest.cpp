#include "core/Consistency.h"
#include "core/Opening.h"
#include "core/StartPosition.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

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
        SelectStartLayout(layout);
        SetUpStartPosition();
        EXPECT_EQ(Listed(), layouts[static_cast<std::size_t>(layout)]);
        // Piece i of one side stands opposite piece i of the other.
        EXPECT_TRUE(UpsideDown(Pos).RedSquare == Pos.RedSquare) << layout;
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

}  // namespace
}  // namespace brastel
