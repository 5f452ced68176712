#include "engine/Random.h"
#include "play/TurnFlow.h"
#include "tests/GameTest.h"

namespace brastel {
namespace {

class TurnFlowTest : public GameTest {};

TEST_F(TurnFlowTest, Scenarios) {
    Run({{"the computer answers, placements as well", "",
          "level1 offer R3 => 2 Red Back; offer 71-63 => 4 Red Back; offer hint => 6 Red Back"},
         {"people have one hint at a time", "", "R3 B3 offer hint => 3 Blue Back Forward"},
         {"the computer waits after steps and choices", "",
          "level1 R3 back => 1 Blue Back; level2 level12 => 1 Blue Back; hint => 2 Red Back"},
         {"the computer has only corner pieces: it passes", "R68 r60 b1 b8",
          "level1 68-61 => 4 Red Back"},
         {"people pass with the hint", "r1 B44 b45", "hint => 3 Blue Back"},
         {"without a list piece 1 gets the ring", "",
          "layout6 +70 +60 +50 R3 +30 B1 new level1 hint => 2 Red Back; 60-52 => 4 Red Back"},
         {"a win ends it for the computer", "r60 b69 B93 R54",
          "level1 60-52 => 4 Red Back Blue Wins!; hint => 5 Blue Back Blue Wins!"},
         {"people go on after a win, which every action announces", "R20 r60 b44 B45",
          "level1 20-12 => 3 Blue Back Red Wins!; 44-52 => 4 Red Back Red Wins!; "
          "60-61 => 5 Blue Back Red Wins!; back => 4 Red Back"},
         {"the record ends", "R68 r61 B44 b53",
          "level1 entry200 68-59 => 200 Blue Back; "
          "offer 44-43 44-53 hint => 200 Blue Back Forward"}});
    EXPECT_EQ(Window.Beeps, 2 + 3);
}

/// The entry into the goal would push the opponent who waits there off the board. The computer
/// passed instead, in half of its choices, although another move won at once.
TEST_F(TurnFlowTest, AnOpponentInTheGoalIsNoReasonToPass) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        Place("B100 b40 b93 r99 r31 r109");
        SeedRandom(seed);
        Follow("hint => 3 Red Back Blue Wins!");
    }
    Run({{"no other wins", "B102 b101 r109 r94 r60", "hint => 3 Red Back"}});
    EXPECT_NE(PlayedFrom[3], NoSquare);
}

/// Long enough to draw "Thinking ...", and nothing is handled once the time is over; after the
/// search, once more.
TEST_F(TurnFlowTest, EventsAreHandledBeforeAndAfterASearch) {
    int passes = 0;
    Window.OnEvents = [&] { ++passes; };
    Run({{"a hint", "", "hint => 1 Blue Back"}});
    EXPECT_EQ(passes, 3 + 1);
    PauseWithEvents(0);
    EXPECT_EQ(passes, 3 + 1);
}

TEST_F(TurnFlowTest, AClosedWindowPlaysNothing) {
    Run({{"start", "", "R3 B3 level1 => 2 Red Back"}});
    Window.OnEvents = [this] { Window.Closing = true; };
    Do("71-63");
    Do("hint");
    EXPECT_EQ(State(), "3 Blue Back Thinking ...");
}

TEST_F(TurnFlowTest, WithoutAPieceThereIsNoRingToPlace) {
    Start(0);
    Pos.RedCount = 0;
    Do("new");
    Do("hint");
    EXPECT_EQ(State(), "0 Red");
}

}  // namespace
}  // namespace brastel
