#include "tests/GameTest.h"

namespace brastel {
namespace {

class HumanActionTest : public GameTest {};

TEST_F(HumanActionTest, Scenarios) {
    Run({{"refused actions", "R68 r60 b52 b44 B12 r9",
          "offer 60-52 68-60 52-44 52-60 9-10 60-60 60-4 R1 +100 => 2 Red Forward"},
         {"nobody pushes back, another piece may", "b44 r60 r61 r100",
          "44-60 76-60 => 3 Red Back You Cant't Push Back; 61-60 => 4 Blue Back"},
         {"the last pieces of the lists, far from home, get no ring", "",
          "layout5 66-58 B1 R9 => 0 Red; R8 => 1 Blue Back; R1 => 1 Blue Back; B7 => 2 Red Back"},
         {"free setup", "",
          "layout6 level1 +65 +66 +66 R3 => 0 Red; hint R2 +66 +12 hint => 1 Blue Back; "
          "B2 => 1 Blue Back; B1 => 2 Red Back; level0 +100 66-58 12-20 => 4 Red Back; "
          "new +100 B1 => 0 Red"},
         {"free setup, back half way: Red's pieces stay, and more can be added", "",
          "layout6 +66 offer R1 +44 => 1 Blue Back Forward; back => 0 Red Forward; "
          "+66 +67 R2 +45 B1 66-58 => 3 Blue Back; back => 2 Red Back"},
         {"free setup, new half way", "",
          "layout6 +66 R1 +44 new => 0 Red; +66 +67 R2 +45 B1 66-58 => 3 Blue Back"}});
    EXPECT_EQ(Listed(), "B45 r58 R67");
    EXPECT_EQ(RedStart[0] + BlueStart[0], 67 + 45);
    EXPECT_EQ(Window.Beeps, 1);
    EXPECT_EQ(Window.Searches, 0);
}

/// A piece that is dropped on its own square is not refused.
TEST_F(HumanActionTest, RefusalsAreExplained) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"68-60", "the rings must be placed first"},
        {"B3", "the piece belongs to the other side"},
        {"R3 B3 71-71", ""},
        {"71-39", "the way is blocked"},
        {"R3", "both rings are placed already"},
        {"entry201 71-63", "the record is full"}};
    for (const auto& [script, why] : cases) {
        Window.Refusal.clear();
        std::istringstream commands(script);
        for (std::string command; commands >> command;) Do(command);
        EXPECT_EQ(Window.Refusal, why) << script;
    }
}

TEST_F(HumanActionTest, PointsOffTheBoardAndPiecesThatAreNotThere) {
    Place("r58 b52");
    const Position before = Pos;
    DropOnBoard({Red, 1}, 19, 300);
    DropOnBoard({Red, 1}, 385, 230);  // the next row's second column in numbers
    DropOnBoard({Red, 13}, 160, 300);
    DropOnPiece({Red, 0}, {Blue, 1});
    DropOnPiece({Red, 1}, {Blue, 2});
    EXPECT_TRUE(Pos == before);
    Start(FreeSetupLayout);
    const int drawings = Window.Drawings;
    ClickBoard(345, 100);
    ClickBoard(-19, 300);  // the strip beside the board counts as its first column
    for (int s = 65; s <= 76; ++s) Click(s);
    EXPECT_EQ(Listed(), "r57 r65 r66 r67 r68 r69 r70 r71 r72 r73 r74 r75") << "no thirteenth";
    EXPECT_EQ(Window.Drawings, drawings + MaxPieces);
}

}  // namespace
}  // namespace brastel
