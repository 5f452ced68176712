#pragma once

#include "core/QuietMove.h"

namespace brastel {

/// All that a quiet move changes once both rings are placed: saved before the first candidate of a
/// ply, restored after each. Member by member, because compilers copy a whole Position with `rep
/// movs`, which is slower.
class PlySave {
public:
    PlySave()
        : Board(Pos.Board),
          RedSquare(Pos.RedSquare),
          BlueSquare(Pos.BlueSquare),
          RingSquare(Pos.RingSquare),
          LastHit(Pos.LastHit),
          OutsideBalance(Pos.OutsideBalance),
          SideToMove(Pos.SideToMove) {}

    void Restore() const {
        Pos.Board = Board;
        Pos.RedSquare = RedSquare;
        Pos.BlueSquare = BlueSquare;
        Pos.RingSquare = RingSquare;
        Pos.LastHit = LastHit;
        Pos.OutsideBalance = OutsideBalance;
        Pos.SideToMove = SideToMove;
    }

private:
    BoardCells Board;
    PieceSquares RedSquare;
    PieceSquares BlueSquare;
    std::array<Int16, RingCount> RingSquare;
    std::array<Int16, 2> LastHit;
    Int16 OutsideBalance;
    Int16 SideToMove;
};

}  // namespace brastel
