#include "core/Opening.h"
#include "play/Words.h"
#include "tests/RandomPlay.h"

#include <gtest/gtest.h>

#include <regex>

namespace brastel {
namespace {

TEST(WordsTest, SquaresAreTold) {
    Place("R68 B44 r4 b108");
    Pos.RingSquare = {68, 112};
    const std::vector<std::pair<int, const char*>> cases{
        {1, "row 1, column 1: outside, empty"},
        {4, "row 1, column 4: Red's goal, Red piece 2"},
        {44, "row 6, column 4: Blue piece 1"},
        {68, "row 9, column 4: Red piece 1, carries a ring"},
        {69, "row 9, column 5: empty"},
        {108, "row 14, column 4: Blue's goal, Blue piece 2"},
        {112, "row 14, column 8: outside, a ring"},
        {0, "off the board"},
        {113, "off the board"}};
    for (const auto& [square, words] : cases) EXPECT_EQ(SquareWithContent(square), words);
    Pos.RingSquare = {68, 68};
    EXPECT_EQ(ContentInWords(68), "Red piece 1, carries both rings");
}

/// Plays it as far as the position alone goes.
Position PositionAfter(int from, int to) {
    const Position before = Pos;
    ApplyMoveQuiet({from, to});
    ++Pos.MoveCount;
    return std::exchange(Pos, before);
}

/// The changes, with r1 for Red piece 1 and 8/4 for row 8, column 4.
std::string Told(const Position& before, const Position& after) {
    std::string words = ChangesInWords(before, after);
    for (const auto& [name, sign] :
         {std::pair{"Red piece ", "r"}, {"Blue piece ", "b"}, {"row (\\d+), column ", "$1/"}}) {
        words = std::regex_replace(words, std::regex(name), sign);
    }
    return words;
}

/// A position, an action, and what is told of it and of taking it back.
TEST(WordsTest, ActionsAreTold) {
    const std::vector<std::tuple<const char*, int, int, const char*, const char*>> cases{
        {"R68 B44", 68, 60, "r1 from 9/4 to 8/4", "r1 from 8/4 to 9/4"},
        {"r68 b52", 68, 52, "r1 from 9/4 to 7/4, pushes b1 to 5/4",
         "b1 from 5/4 to 7/4; r1 from 7/4 to 9/4"},
        {"r68 B60", 68, 60, "r1 from 9/4 to 8/4, pushes b1 to 6/4 and takes its ring",
         "b1 from 6/4 to 8/4; r1 from 8/4 to 9/4; the ring of r1 goes to b1 on 8/4"},
        {"b42 r41", 42, 44, "b1 from 6/2 to 6/4; r1 comes back on 6/2",
         "r1 from 6/2 out to 6/1; b1 from 6/4 to 6/2"},
        {"r11 b10", 11, 10, "r1 from 2/3 to 2/2, pushes b1 out to 2/1",
         "r1 from 2/2 to 2/3; b1 comes back on 2/2"},
        {"R68 r61", 68, 61, "r1 passes the ring to r2 on 8/5", "the ring of r2 goes to r1 on 9/4"},
        {"R13 b12", 13, 4, "r1 from 2/5 into Red's goal", "r1 comes back on 2/5"},
        // It steps back in at once, and the ring stays.
        {"R14 b44", 14, 4, "r1 from 2/6 to 2/4; r1 leaves the ring in Red's goal",
         "r1 from 2/4 to 2/6; a ring goes to r1 on 2/6"},
        {"R12 B44", 0, 0, "Red passes", "Red to move"}};
    for (const auto& [pieces, from, to, told, undone] : cases) {
        Place(pieces);
        const Position after = PositionAfter(from, to);
        EXPECT_EQ(Told(Pos, after), told);
        EXPECT_EQ(Told(after, Pos), undone) << "undoing " << told;
        EXPECT_EQ(Told(Pos, Pos), "nothing changed");
    }
}

TEST(WordsTest, TheOpeningIsTold) {
    SelectStartLayout(FreeSetupLayout);
    SetUpStartPosition();
    const Position start = Pos;
    SetupAddPiece(SquareLeft(4), SquareTop(4));
    SetupAddPiece(SquareLeft(68), SquareTop(68));
    EXPECT_EQ(Told(start, Pos), "r1 in Red's goal; r2 on 9/4; a ring goes to r1 in Red's goal");
    // The ring of a piece placed in the goal lay there before.
    EXPECT_EQ(Told(Pos, PositionAfter(4, 0)), "r1 takes the ring in Red's goal");
    const Position placed = PositionAfter(68, 0);
    EXPECT_EQ(Told(Pos, placed), "r2 takes the ring on 9/4");
    EXPECT_EQ(Told(placed, start),
              "r1 leaves the board; r2 leaves the board; the ring of r2 goes into Red's goal");
}

}  // namespace
}  // namespace brastel
