#include "core/PiecesOutside.h"
#include "core/QuietMove.h"
#include "tests/Positions.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>
#include <utility>
#include <vector>

namespace brastel {
namespace {

int SquareInside(int cell) {
    return SquareAt(std::clamp(Row(cell), 1, 12), std::clamp(Column(cell), 1, 6));
}

/// Piece 1 of the side to move waited on the cell.
bool HasReturned(int cell) {
    const bool isBack = Pos.Board[cell] == Empty;
    EXPECT_EQ(Pos.OutsideBalance, isBack ? Pos.SideToMove : 0);
    EXPECT_EQ(SquareOf({Pos.SideToMove, 1}), isBack ? SquareInside(cell) : cell);
    return isBack;
}

/// A waiting piece, and one more piece on each square in turn.
void TryCell(int cell, char letter, char opponent) {
    const std::string waiting = letter + std::to_string(cell) + ' ';
    const int inside = SquareInside(cell);
    for (int s = -9; s <= LastSquare + 9; ++s) {
        SCOPED_TRACE(waiting + std::to_string(s));
        const int distance = std::abs(Row(s) - Row(inside)) + std::abs(Column(s) - Column(inside));
        Place(waiting);
        ReturnOutsideNear(s);
        EXPECT_EQ(HasReturned(cell), InField(s) && distance <= 1);
        if (!InField(s)) continue;
        Place(waiting + opponent + std::to_string(s));
        ReturnOutsidePieces();
        EXPECT_EQ(HasReturned(cell), distance > 1);
        Place(waiting + letter + std::to_string(s));
        ReturnOutsidePieces();
        EXPECT_EQ(HasReturned(cell), distance > 0);
    }
}

TEST(PiecesOutsideTest, EveryCellHasItsGuards) {
    for (int cell = FirstSquare; cell <= LastSquare; ++cell) {
        const bool isCorner = cell == 1 || cell == 8 || cell == 105 || cell == 112;
        if (InField(cell) || isCorner) continue;
        TryCell(cell, 'r', 'b');
        TryCell(cell, 'b', 'r');
    }
}

TEST(PiecesOutsideTest, OnePass) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"r9 r2", "r9 r10"},           // the cell of the row takes the corner,
        {"r97 b106", "r97 b98"},       // whoever waits there,
        {"r7 b16 b14", "r7 b14 b15"},  // unless it has to wait;
        {"r3 b2", "b10 r11"},          // opponents side by side do not hinder each other;
        {"r1 b112", "r1 b112"},        // nobody comes back from a corner of the board;
        {"R4", "r12"}};                // a ring stays where it lies.
    for (const auto& [before, after] : cases) {
        Place(before);
        ReturnOutsidePieces();
        EXPECT_EQ(Listed(), after);
    }
}

/// Found by random play: a hit freed the way for a piece of each side, Blue's near the square that
/// was left and Red's near the one that was taken. Serving the two squares one after the other let
/// Blue in first, whereupon Blue stood on Red's guard square and kept Red out; the full pass judges
/// both on the field as it was. A game stepped back went on from another position than the one that
/// had been played.
///
///     row 10  . . . . .        . . . . .
///     row 11  b . b r .   to   b b r . .
///     row 12  . . . . .        . . r b .
///     row 13  . . r b .        . . . . .
TEST(PiecesOutsideTest, BothSquaresOfAHitAreServedInOnePass) {
    Place("r92 r107 b91 b108 b89");
    ApplyMoveQuiet(92, 91);
    EXPECT_EQ(Listed(), "b89 b90 r91 r99 b100");
}

/// A ring placement, a ring pass and a pass of the turn, each beside a piece that could come back.
TEST(PiecesOutsideTest, NobodyComesBackWhereNoSquareChanged) {
    const std::vector<std::tuple<const char*, int, int, int>> actions{
        {"r10 r17", 1, 10, 0}, {"R20 r11 r2", 3, 20, 11}, {"r10 r17", 3, 0, 0}};
    for (const auto& [pieces, entry, from, to] : actions) {
        Place(pieces);
        Pos.MoveCount = ToInt16(entry);
        Pos.LastHit = {1, 1};
        const Position before = Pos;
        ApplyMoveQuiet(from, to);
        EXPECT_TRUE(Pos.Board == before.Board) << Listed();
        EXPECT_EQ(Pos.LastHit == before.LastHit, to == 0) << pieces;
        EXPECT_EQ(Pos.SideToMove, Blue);
    }
}

/// A carrier that entered the goal from the far end of its front stayed outside when the record was
/// replayed: its origin is no neighbour of the square on which it comes back.
TEST(PiecesOutsideTest, AGoalEntryComesBackFromEverySquareOfTheFront) {
    const std::vector<std::tuple<const char*, int, int>> entries{
        {"R12 b44", 12, 4}, {"R14 b44", 14, 4}, {"B99 r68", 99, 109}};
    for (const auto& [pieces, from, goal] : entries) {
        Place(pieces);
        ApplyMoveQuiet(from, goal);
        const Position quiet = Pos;
        Place(pieces);
        ApplyAction(from, goal);
        ReturnOutsidePieces();
        Pos.SideToMove = ToInt16(-Pos.SideToMove);
        EXPECT_EQ(Pos, quiet) << pieces;
        EXPECT_EQ(Pos.Board[goal], Empty);
    }
}

}  // namespace
}  // namespace brastel
