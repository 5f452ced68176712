#include "core/Opening.h"
#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "play/Words.h"
#include "testing/Positions.h"
#include "tests/Rows.h"

#include <sstream>

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

TEST(WordsTest, ActionsAreTold) {
    for (const auto& [row, told] : RowsOf("/words.txt")) {
        std::istringstream words(row);
        std::string pieces;
        char dash = 0;
        int from = 0, to = 0;
        std::getline(words, pieces, ',') >> from >> dash >> to;
        Place(pieces);
        const Position after = PositionAfter(from, to);
        EXPECT_EQ(ChangesInWords(Pos, after) + " | " + ChangesInWords(after, Pos), told);
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
              "Red piece 1 in Red's goal; Red piece 2 on row 9, column 4; a ring goes to Red piece "
              "1 in Red's goal");
    // The ring of a piece placed in the goal lay there before.
    EXPECT_EQ(ChangesInWords(Pos, PositionAfter(4, 0)), "Red piece 1 takes the ring in Red's goal");
    const Position placed = PositionAfter(68, 0);
    EXPECT_EQ(ChangesInWords(Pos, placed), "Red piece 2 takes the ring on row 9, column 4");
    EXPECT_EQ(ChangesInWords(placed, start),
              "Red piece 1 leaves the board; Red piece 2 leaves the board; the ring of Red piece 2 "
              "goes into Red's goal");
}

}  // namespace
}  // namespace brastel
