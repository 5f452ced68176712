#include "core/Consistency.h"
#include "core/Opening.h"
#include "core/StartPosition.h"
#include "testing/Positions.h"

#include <gtest/gtest.h>

#include <cctype>
#include <utility>

namespace brastel {
namespace {

/// Red's pieces in capitals, Blue's in small letters: those of the first layout are A and a, B and
/// b join them in the second.
const std::string Layouts = R"(
    3  ..FCCF..
    4  .e....e.
    5  .dbaabd.
    8  .DBAABD.
    9  .E....E.
   10  ..fccf..)";

TEST(StartPositionTest, LayoutsFaceEachOther) {
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        std::string drawing = Layouts;
        for (char& c : drawing) {
            if (!std::isalpha(c)) continue;
            c = std::tolower(c) > 'a' + layout ? '.' : std::isupper(c) ? 'r' : 'b';
        }
        SelectStartLayout(layout);
        SetUpStartPosition();
        EXPECT_EQ(std::pair(RedStart[0], BlueStart[0]), std::pair(Int16{4}, Int16{109}));
        EXPECT_EQ(Listed(), ListOf(drawing));
        for (int i = 1; i <= Pos.RedCount; ++i) {
            const int red = Pos.RedSquare[i];
            EXPECT_EQ(Pos.BlueSquare[i], SquareAt(RowCount - 1 - Row(red), Column(red)));
        }
    }
    RedStart[0] = 61;
    for (const int other : {-1, LayoutCount, FreeSetupLayout}) {
        EXPECT_EQ(LayoutPieces(other), 0);
        SelectStartLayout(other);
        EXPECT_EQ(RedStart[0], 61) << "the tables stay";
    }
}

TEST(StartPositionTest, APieceIsFoundByItsCornerAlone) {
    Place("r68 b97");
    EXPECT_TRUE(IsPieceAt(SquareLeft(68), SquareTop(68)));
    for (const auto& [x, y] : {std::pair{SquareLeft(68) + 1, SquareTop(68)},
                               {SquareLeft(68), SquareTop(68) - 1},
                               {SquareLeft(60), SquareTop(60)},
                               {BoardLeft + BoardWidth, SquareTop(96)}}) {  // 97 in numbers
        EXPECT_FALSE(IsPieceAt(x, y)) << x << ' ' << y;
    }
}

/// A count of placed pieces that is too large was once only found after the squares behind the
/// table had been read.
TEST(StartPositionTest, InconsistenciesAreFound) {
    for (Int16* const number :
         {&Pos.RedPlaced, &Pos.BluePlaced, &Pos.LastHit[0], &Pos.LastHit[1], &Pos.RingSquare[0],
          &Pos.RingSquare[1], &Pos.OutsideBalance, &Pos.SideToMove, &Pos.RedSquare[1],
          &Pos.BlueSquare[1], &Pos.Board[FirstSquare - 1], &Pos.Board[60], &Pos.Board[61]}) {
        Place("r68 r61 b44");
        EXPECT_TRUE(PositionIsConsistent());
        *number = 1000;
        EXPECT_FALSE(PositionIsConsistent());
    }
    for (const int taken : {68, 44}) {
        Place("r68 r61 b44");
        Pos.RedSquare[2] = ToInt16(taken);
        Pos.Board[61] = Empty;
        EXPECT_FALSE(PositionIsConsistent());
    }
}

}  // namespace
}  // namespace brastel
