#include "core/Opening.h"
#include "play/Words.h"
#include "tests/RandomPlay.h"

#include <gtest/gtest.h>

#include <map>

namespace brastel {
namespace {

TEST(WordsTest, SquaresAreTold) {
    Place("R68 B44 r4 b108 r9");
    Pos.RingSquare = {68, 112};
    const std::map<int, std::string> cases{
        {1, "row 1, column 1: outside, empty"},
        {4, "row 1, column 4: Red's goal, Red piece 2"},
        {9, "row 2, column 1: outside, Red piece 3"},
        {44, "row 6, column 4: Blue piece 1"},
        {68, "row 9, column 4: Red piece 1, carries a ring"},
        {69, "row 9, column 5: empty"},
        {108, "row 14, column 4: Blue's goal, Blue piece 2"},
        {112, "row 14, column 8: outside, a ring"},
        {0, "off the board"},
        {113, "off the board"},
        {-32768, "off the board"},
        {32767, "off the board"},
    };
    for (const auto& [square, words] : cases) EXPECT_EQ(SquareWithContent(square), words);
    Pos.RingSquare = {68, 68};
    EXPECT_EQ(ContentInWords(68), "Red piece 1, carries both rings");
}

/// Plays it as far as the position alone goes.
Position PositionAfter(int from, int to) {
    const Position before = Pos;
    ApplyMoveQuiet(from, to);
    ++Pos.MoveCount;
    return std::exchange(Pos, before);
}

struct ActionCase {
    const char* Pieces;
    int From;
    int To;
    /// Of the action, and of taking it back.
    const char* Words;
    const char* Undone;
};

TEST(WordsTest, ActionsAreTold) {
    const std::vector<ActionCase> cases{
        {"r68 R69 B44", 68, 60, "Red piece 1 from row 9, column 4 to row 8, column 4",
         "Red piece 1 from row 8, column 4 to row 9, column 4"},
        {"R68 B44", 68, 60, "Red piece 1 from row 9, column 4 to row 8, column 4",
         "Red piece 1 from row 8, column 4 to row 9, column 4"},
        {"r68 R69 B45 b52", 68, 52,
         "Red piece 1 from row 9, column 4 to row 7, column 4, pushes Blue piece 2 to row 5, "
         "column 4",
         "Blue piece 2 from row 5, column 4 to row 7, column 4; "
         "Red piece 1 from row 7, column 4 to row 9, column 4"},
        {"r68 R69 B60", 68, 60,
         "Red piece 1 from row 9, column 4 to row 8, column 4, pushes Blue piece 1 to row 6, "
         "column 4 and takes its ring",
         "Blue piece 1 from row 6, column 4 to row 8, column 4; Red piece 1 from row 8, column 4 "
         "to row 9, column 4; the ring of Red piece 1 goes to Blue piece 1 on row 8, column 4"},
        {"B46 b42 r41 R69", 42, 44,
         "Blue piece 2 from row 6, column 2 to row 6, column 4; Red piece 1 comes back on row 6, "
         "column 2",
         "Red piece 1 from row 6, column 2 out to row 6, column 1; "
         "Blue piece 2 from row 6, column 4 to row 6, column 2"},
        {"r11 b10 R69 B44", 11, 10,
         "Red piece 1 from row 2, column 3 to row 2, column 2, pushes Blue piece 1 out to row 2, "
         "column 1",
         "Red piece 1 from row 2, column 2 to row 2, column 3; "
         "Blue piece 1 comes back on row 2, column 2"},
        {"R68 r61 B44", 68, 61, "Red piece 1 passes the ring to Red piece 2 on row 8, column 5",
         "the ring of Red piece 2 goes to Red piece 1 on row 9, column 4"},
        {"R13 b12 B44", 13, 4, "Red piece 1 from row 2, column 5 into Red's goal",
         "Red piece 1 comes back on row 2, column 5"},
        // It steps back in at once, and the ring stays.
        {"R11 b44 B45", 11, 4,
         "Red piece 1 from row 2, column 3 to row 2, column 4; "
         "Red piece 1 leaves the ring in Red's goal",
         "Red piece 1 from row 2, column 4 to row 2, column 3; "
         "a ring goes to Red piece 1 on row 2, column 3"},
        {"R12 B44", 12, 4, "Red piece 1 leaves the ring in Red's goal",
         "a ring goes to Red piece 1 on row 2, column 4"},
        {"R12 B44", 0, 0, "Red passes", "Red to move"},
    };
    for (const auto& [pieces, from, to, words, undone] : cases) {
        Place(pieces);
        const Position after = PositionAfter(from, to);
        EXPECT_EQ(ChangesInWords(Pos, after), words);
        EXPECT_EQ(ChangesInWords(after, Pos), undone) << "undoing " << words;
        EXPECT_EQ(ChangesInWords(Pos, Pos), "nothing changed");
    }
}

TEST(WordsTest, TheOpeningIsTold) {
    SelectStartLayout(FreeSetupLayout);
    SetUpStartPosition();
    const Position start = Pos;
    SetupAddPiece(SquareLeft(4), SquareTop(4));
    SetupAddPiece(SquareLeft(68), SquareTop(68));
    EXPECT_EQ(ChangesInWords(start, Pos),
              "Red piece 1 in Red's goal; Red piece 2 on row 9, column 4; "
              "a ring goes to Red piece 1 in Red's goal");
    // The ring of a piece placed in the goal lay there before.
    EXPECT_EQ(ChangesInWords(Pos, PositionAfter(4, 0)), "Red piece 1 takes the ring in Red's goal");
    const Position placed = PositionAfter(68, 0);
    EXPECT_EQ(ChangesInWords(Pos, placed), "Red piece 2 takes the ring on row 9, column 4");
    EXPECT_EQ(ChangesInWords(placed, start),
              "Red piece 1 leaves the board; Red piece 2 leaves the board; "
              "the ring of Red piece 2 goes into Red's goal");
}

/// What a damaged file and a careless caller can hand over.
TEST(WordsTest, DamagedPositionsAreTold) {
    Position wild;
    wild.RedCount = wild.BluePlaced = 32767;
    wild.BlueCount = wild.RedPlaced = -32768;
    wild.RedSquare.Fill(32767);
    wild.BlueSquare.Fill(-32768);
    wild.RingSquare = {-32768, 32767};
    wild.LastHit = {32767, -32768};
    wild.SideToMove = -32768;
    Place("R68 B44");
    EXPECT_EQ(ChangesInWords(wild, Pos),
              "Red piece 1 on row 9, column 4; Blue piece 1 on row 6, column 4; a ring goes to Red "
              "piece 1 on row 9, column 4; a ring goes to Blue piece 1 on row 6, column 4");
    EXPECT_EQ(ChangesInWords(Pos, wild),
              "Red piece 1 leaves the board; Blue piece 1 leaves the board; the ring of Red piece "
              "1 goes off the board; the ring of Blue piece 1 goes off the board");
}

}  // namespace
}  // namespace brastel
