#include "tests/GameTest.h"

namespace brastel {
namespace {

TEST_F(GameTest, Scenarios) {
    Run({// The computer has only corner pieces: it passes.
         {"level1 68-60 => 4 Red Back", "R68 b1 b8"},
         // People pass with the hint.
         {"hint => 3 Blue Back", "r1 B44 b45"},
         // Without a list piece 1 gets the ring.
         {"layout6 +70 +60 +50 R3 +30 B1 new level1 hint => 2 Red Back; 60-52 => 4 Red Back"},
         // Free setup.
         {"layout6 level1 +65 +66 +66 R3 => 0 Red; hint R2 +66 +12 hint => 1 Blue Back; B2 => 1 "
          "Blue Back; B1 => 2 Red Back; level0 +100 66-58 12-20 => 4 Red Back; new +100 B1 => 0 "
          "Red"},
         // Free setup, back half way: Red's pieces stay, and more can be added.
         {"layout6 +66 offer R1 +44 => 1 Blue Back Forward; back => 0 Red Forward; +66 +67 R2 +45 "
          "B1 66-58 => 3 Blue Back; back => 2 Red Back"},
         // Free setup, new half way.
         {"layout6 +66 R1 +44 new => 0 Red; +66 +67 R2 +45 B1 66-58 => 3 Blue Back"},
         // A win ends it for the computer.
         {"level1 60-52 => 4 Red Back over Blue Wins!; hint => 5 Blue Back over Blue Wins!",
          "r60 r54 B93"},
         // The answer to a hint wins.
         {"level1 hint => 4 Red Back over Blue Wins!", "r60 B93"},
         // People go on after a win, which every action announces, but not steps back.
         {"layout6 +20 +60 R1 +44 +45 B2 20-12 => 3 Blue Back over Red Wins!; 44-52 => 4 Red Back "
          "over Red Wins!; 60-61 => 5 Blue Back over Red Wins!; back => 4 Red Back; 60-61 => 5 "
          "Blue Back over Red Wins!"},
         // The record ends.
         {"level1 entry200 68-59 => 200 Blue Back; offer 44-43 44-53 hint => 200 Blue Back Forward",
          "R68 r61 B44"}});
}

/// The one that thinks, and for how many plies.
std::string Thinks(const std::string& side, int depth) {
    return "Thinking ... " + side + " busy events events events events depth " +
           std::to_string(depth) + " ready ";
}

/// A position, the commands before, the command, and all that the view is told of it, in order.
TEST_F(GameTest, WhatTheViewIsTold) {
    const std::string won = "Red Wins! beep Blue ";
    const std::string own = "-Forward pieces +Back blank Blue ";
    const std::string hint = "pieces blank Blue texts count +Back ";
    const std::string answer = "pieces blank Red texts count +Back -Forward ";
    const std::string started = "busy blank Red seed ready pieces -Back -Forward ";
    const std::string replayed = "busy blank Red seed ready blank ";
    const std::string winSetUp = "layout6 +20 +60 R1 +44 B1 20-12 load forward forward";
    const std::vector<std::tuple<const char*, std::string, const char*, std::string>> cases{
        {"r68 b44", "offer", "68-60", own + "count "},
        {"r68 b44", "level2", "68-60", own + Thinks("Blue", 2) + answer + "count "},
        {"R20 b44", "", "20-12", own + won + "count "},
        {"r60 B93", "level1", "60-52",
         own + Thinks("Blue", 1) + answer + "Blue Wins! beep Red count "},
        {"r68 b44", "offer", "68-36", "-Forward +Forward the way is blocked "},
        {"b44 r60", "44-60 offer", "76-60", "-Forward You Cant't Push Back beep Red +Forward "},
        {"r68 b44", "entry201", "68-60", "-Forward the record is full "},
        {"", "layout6 +66 offer", "R1", own + "+Forward "},
        {"", "layout6", "hint", "blank Red "},
        {"r68 b44", "offer", "hint", Thinks("Red", 3) + hint},
        {"r68 b44", "level2", "hint", Thinks("Red", 2) + hint + Thinks("Blue", 2) + answer},
        // The carrier cannot be stopped, so that few positions are to be looked at.
        {"r28 R27 b98", "level11 level12", "27-19", own + Thinks("Blue", 11) + answer + "count "},
        {"R20 b44", "level1", "hint", Thinks("Red", 1) + hint + won},
        {"", "R3 offer", "new", started},
        {"", "R3 B3 71-63", "back", replayed + "Red pieces "},
        {"", "R3 B3 load forward forward", "back", replayed + "Blue pieces +Forward "},
        {"", "R3 B3 load", "forward", hint},
        {"", winSetUp, "forward", "pieces blank Blue texts count " + won + "+Back -Forward "}};
    for (const auto& [position, before, command, told] : cases) {
        SCOPED_TRACE(before + ' ' + command);
        Begin(position);
        DoAll(before);
        Window.Notes.clear();
        Do(command);
        EXPECT_EQ(Window.Notes, told);
        EXPECT_EQ(Window.FirstWrong(), "");
    }
}

/// The entry into the goal would push the opponent who waits there off the board. The computer
/// passed instead, in half of its choices, although another move won at once.
TEST_F(GameTest, AnOpponentInTheGoalIsNoReasonToPass) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        Place(R"(Blue
            3  ......r.
            4  .......b
           11  ....b...
           12  ..rB....
           13  ....r...)");
        SeedRandom(seed);
        Follow("hint => 3 Red Back over Blue Wins!");
    }
    Begin("B102 b101 r109");  // no other wins
    Follow("hint => 3 Red Back");
    EXPECT_NE(PlayedFrom[3], NoSquare);
}

TEST_F(GameTest, AClosedWindowPlaysNothing) {
    DoAll("R3 B3 level1");
    Window.OnEvents = [this] { Window.Closing = true; };
    DoAll("71-63 hint");
    EXPECT_EQ(State(), "3 Blue Back Thinking ...");
    EXPECT_EQ(Window.Notes.find("depth"), Window.Notes.npos) << Window.Notes;
}

TEST_F(GameTest, WithoutAPieceThereIsNoRingToPlace) {
    Pos.RedCount = 0;
    DoAll("new hint");
    EXPECT_EQ(State(), "0 Red");
}

TEST_F(GameTest, RefusalsAreExplained) {
    const std::vector<std::array<const char*, 3>> cases{
        {"", "68-60", "the rings must be placed first"},
        {"", "B3", "the piece belongs to the other side"},
        {"", "layout5 R9", "only pieces 1 to 8 may take the ring"},
        {"", "R3 B3 R3", "both rings are placed already"},
        {"r68 b44", "entry201 68-60", "the record is full"},
        {"r68 b44", "68-113", "there is no such square"},
        {"r68 r61", "68-61", "a friendly piece stands there, and there is no ring to pass to it"},
        {"R68 r69", "68-69",
         "a ring is passed to a neighbour on a diagonal, or a knight's move away"},
        {"R68 b60", "68-60", "a ring carrier cannot push"},
        {"r76 b52", "76-52", "too far: pieces push from one or two squares away"},
        {"r68 r60 b52", "68-52", "the way is blocked"},
        {"r68 B52", "68-52", "a ring carrier can only be pushed from the next square"},
        {"r68 b60 b52", "68-60", "no room behind: two pieces in a row cannot be pushed"},
        {"r65 b44", "65-66", "the piece waits outside and comes back by itself"},
        {"r12", "12-4",
         "only the computer's carriers enter the goal; a carrier wins right before it"},
        {"r68 b44", "68-36", "the way is blocked"},
        {"r68 b44", "68-87", "too far: pieces go one or two squares"}};
    for (const auto& [position, script, why] : cases) {
        Begin(position);
        DoAll(script);
        EXPECT_TRUE(Window.Notes.ends_with(std::string(why) + ' ')) << script << Window.Notes;
    }
}

TEST_F(GameTest, NothingIsDroppedOffTheBoard) {
    Place("r58 b52");
    const Position before = Pos;
    DropOnBoard({Red, 1}, 19, 300);
    DropOnBoard({Red, 1}, 385, 230);  // the next row's second column in numbers
    EXPECT_TRUE(Pos == before);
}

// ---- Steps back and forward ----

/// A loaded game and where it was left are kept through later games. btn_Forward must not come back
/// at the same number of an entry of those, to play an entry that does not belong there.
TEST_F(GameTest, AlongTheRecord) {
    Run({// Back to the start.
         {"R3 B3 71-63 => 3 Blue Back; back => 2 Red Back; back => 1 Blue Back; back => 0 Red; "
          "back => 0 Red"},
         // Along a loaded game and back.
         {"R3 B3 71-63 load => 0 Red Forward; forward forward => 2 Red Back Forward; forward => 3 "
          "Blue Back; back => 2 Red Back Forward; new => 0 Red"},
         // Leaving a loaded game and coming back.
         {"R3 B3 71-63 47-55 70-62 load forward forward => 2 Red Back Forward; 71-70 => 2 Red Back "
          "Forward; 69-61 => 3 Blue Back; 47-55 61-60 => 5 Blue Back; back back => 3 Blue Back; "
          "back => 2 Red Back Forward; forward forward forward => 5 Blue Back; back => 4 Red Back "
          "Forward"},
         // A load forgets where the game before was left.
         {"R3 B3 71-63 47-55 load forward forward forward 46-54 => 4 Red Back; back load forward "
          "forward forward => 3 Blue Back; back => 2 Red Back Forward"},
         // A loaded game played on by hand is left.
         {"R3 B3 71-63 load forward B3 71-63 back => 2 Red Back"},
         // Left by a hint and then by a move: every position of the line offers the button.
         {"R3 B3 71-63 47-55 load forward forward hint 46-54 => 4 Red Back; back => 3 Blue Back; "
          "back => 2 Red Back Forward; back => 1 Blue Back Forward"},
         // A new game forgets the branch.
         {"R3 B3 71-63 47-55 load forward forward 69-61 new R3 B3 70-62 => 3 Blue Back; back => 2 "
          "Red Back"},
         // Another game.
         {"R3 B3 71-63 47-55 load forward forward 69-61 new R3 B4 70-62 back => 2 Red Back"},
         // Another destination.
         {"R3 B3 71-63 47-55 load new R3 B3 71-62 47-55 back => 3 Blue Back"},
         // Another game where the loaded one ends.
         {"R3 B3 71-63 load new R3 B4 70-62 back => 2 Red Back"},
         // Another layout.
         {"R3 B3 71-63 load layout4 R3 B3 70-62 back => 2 Red Back"}});
}

}  // namespace
}  // namespace brastel
