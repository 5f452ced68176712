#pragma once

#include "core/QuietMove.h"

#include <tuple>

namespace brastel {

/// All that a quiet move changes once both rings are placed. Member by member, because compilers
/// copy a whole Position with `rep movs`, which is slower.
inline auto QuietlyChanged() {
    return std::tie(Pos.Board, Pos.RedSquare, Pos.BlueSquare, Pos.RingSquare, Pos.LastHit,
                    Pos.OutsideBalance, Pos.SideToMove);
}

/// A position, saved before the first candidate of a ply and restored after each.
class PlySave {
public:
    void Restore() const { QuietlyChanged() = Saved; }

private:
    std::tuple<BoardCells, PieceSquares, PieceSquares, std::array<Int16, RingCount>,
               std::array<Int16, 2>, Int16, Int16>
        Saved = QuietlyChanged();
};

}  // namespace brastel
