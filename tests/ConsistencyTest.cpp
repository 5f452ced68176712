#include "core/Consistency.h"
#include "core/StartPosition.h"

#include <gtest/gtest.h>

namespace brastel {
namespace {

/// The check that all others lean on must see what it is there for.
TEST(ConsistencyTest, NamesEveryFault) {
    const std::string stray = "a piece stands off the board or shares its square";
    const std::string cells = "the cells differ from the squares of the pieces";
    const std::string ring = "a ring lies off the board";
    const std::string hit = "the last hit names no piece";
    const std::string placed = "more pieces placed than a side has";
    const std::string balance = "the outside balance ran away";
    const std::string turn = "nobody is to move";
    const std::vector<std::pair<std::string, void (*)()>> faults{
        {stray, [] { Pos.RedSquare[8] = LastSquare + 1; }},
        {stray, [] { Pos.BlueSquare[8] = -1; }},
        {stray, [] { Pos.RedSquare[2] = Pos.RedSquare[1]; }},
        {stray, [] { Pos.BlueSquare[1] = Pos.RedSquare[1]; }},
        {cells, [] { Pos.Board[60] = Red; }},
        {cells, [] { Pos.RedSquare[3] = NoSquare; }},
        {cells, [] { Pos.Board[Pos.BlueSquare[1]] = Red; }},
        {cells, [] { Pos.Board[FirstSquare - 1] = Blue; }},
        {ring, [] { Pos.RingSquare[0] = NoSquare; }},
        {ring, [] { Pos.RingSquare[1] = LastSquare + 1; }},
        {hit, [] { Pos.LastHit[0] = -1; }},
        {hit, [] { Pos.LastHit[1] = MaxPieces + 1; }},
        {placed, [] { Pos.RedPlaced = -1; }},
        {placed, [] { Pos.RedPlaced = MaxPieces + 1; }},
        {placed, [] { Pos.BluePlaced = -1; }},
        {placed, [] { Pos.BluePlaced = MaxPieces + 1; }},
        {balance, [] { Pos.OutsideBalance = 301; }},
        {balance, [] { Pos.OutsideBalance = -301; }},
        {turn, [] { Pos.SideToMove = Empty; }},
        {"the move count is below 1", [] { Pos.MoveCount = 0; }}};
    for (const auto& [name, breakIt] : faults) {
        SelectStartLayout(3);
        SetUpStartPosition();
        ASSERT_EQ(FirstInconsistency(), "");
        breakIt();
        EXPECT_EQ(FirstInconsistency(), name);
    }
    SetUpStartPosition();
}

}  // namespace
}  // namespace brastel
