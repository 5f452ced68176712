#include "tests/GameTest.h"

namespace brastel {
namespace {

class GameRecordTest : public GameTest {};

/// A loaded game and where it was left are kept through later games. btn_Forward must not come back
/// at the same number of an entry of those, to play an entry that does not belong there.
TEST_F(GameRecordTest, Scenarios) {
    Run({{"back to the start", "",
          "R3 B3 71-63 => 3 Blue Back; back => 2 Red Back; back => 1 Blue Back; back => 0 Red; "
          "back => 0 Red"},
         {"along a loaded game and back", "",
          "R3 B3 71-63 load => 0 Red Forward; forward forward => 2 Red Back Forward; "
          "forward => 3 Blue Back; back => 2 Red Back Forward; new => 0 Red"},
         {"leaving a loaded game and coming back", "",
          "R3 B3 71-63 47-55 70-62 load forward forward => 2 Red Back Forward; "
          "71-70 => 2 Red Back Forward; 69-61 => 3 Blue Back; 47-55 61-60 => 5 Blue Back; "
          "back back => 3 Blue Back; back => 2 Red Back Forward; "
          "forward forward forward => 5 Blue Back; back => 4 Red Back Forward"},
         {"a load forgets where the game before was left", "",
          "R3 B3 71-63 47-55 load forward forward forward 46-54 => 4 Red Back; "
          "back load forward forward forward => 3 Blue Back; back => 2 Red Back Forward"},
         {"a loaded game played on by hand is left", "",
          "R3 B3 71-63 load forward B3 71-63 back => 2 Red Back"},
         {"left by a hint and then by a move: every position of the line offers the button", "",
          "R3 B3 71-63 47-55 load forward forward hint 46-54 => 4 Red Back; "
          "back => 3 Blue Back; back => 2 Red Back Forward; back => 1 Blue Back Forward"},
         {"a new game forgets the branch", "",
          "R3 B3 71-63 47-55 load forward forward 69-61 new R3 B3 70-62 => 3 Blue Back; "
          "back => 2 Red Back"},
         {"another game", "",
          "R3 B3 71-63 47-55 load forward forward 69-61 new R3 B4 70-62 back => 2 Red Back"},
         {"another game where the loaded one ends", "",
          "R3 B3 71-63 load new R3 B4 70-62 back => 2 Red Back"},
         {"another layout", "", "R3 B3 71-63 load layout4 R3 B3 70-62 back => 2 Red Back"}});
}

/// The loaded game may come from a damaged file.
TEST_F(GameRecordTest, EntriesThatDoNotFitAreNotPlayed) {
    Run({{"load", "", "R3 B3 71-63 load forward forward => 2 Red Back Forward"}});
    const auto expectNoStep = [] {
        const Position before = Pos;
        ShowForward(true);
        StepForward();
        EXPECT_TRUE(Pos == before);
        EXPECT_FALSE(ForwardVisible);
    };
    for (const auto& [from, to] : std::vector<Action>{{44, 52}, {68, 113}, {68, -9}}) {
        LoadedFrom[3] = ToInt16(from);
        LoadedTo[3] = ToInt16(to);
        expectNoStep();
    }
    for (const Int16 count : std::array<Int16, 2>{2, -32768}) {
        LoadedCount = count;
        expectNoStep();
    }
    LoadedCount = 32767;
    Pos.MoveCount = MaxEntries + 1;
    expectNoStep();
}

}  // namespace
}  // namespace brastel
