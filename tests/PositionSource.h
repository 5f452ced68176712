#pragma once

#include "core/Opening.h"
#include "testing/RandomPlay.h"

#include <sstream>
#include <utility>

/// Positions for comparing fast code with its plain form.
namespace brastel {

/// Up to twelve pieces of each side, few more often than many, anywhere on the board, some outside
/// or nowhere; a ring may lie on any square. A game file can have all this. Sometimes
/// the setup is not finished.
inline void SetUpAnything(Dice& dice) {
    SelectStartLayout(FreeSetupLayout);
    SetUpStartPosition();
    for (const Int16 side : {Red, Blue}) {
        const int pieces = 1 + Below(dice, 1 + Below(dice, MaxPieces));
        while (PieceCount(side) < pieces) {
            const int square = 1 + Below(dice, LastSquare);
            if (!InField(square) && Below(dice, 8) > 0) continue;
            SetupAddPiece(SquareLeft(square), SquareTop(square));
        }
        if (Below(dice, 32) == 0) return;
        Int16& carrier = SquaresOf(side)[1 + Below(dice, pieces)];
        LayRing(Below(dice, 8) > 0 ? carrier : 1 + Below(dice, LastSquare));
        ++Pos.MoveCount;
        if (Below(dice, 32) == 0) Pos.Board[std::exchange(carrier, NoSquare)] = Empty;
    }
    if (Below(dice, 16) == 0) Pos.MoveCount = ToInt16(1 + Below(dice, 2));
    Pos.SideToMove = Below(dice, 2) == 0 ? Red : Blue;
    if (Below(dice, 2) > 0) return;
    Pos.LastHit = {ToInt16(Below(dice, 1 + MaxPieces)), ToInt16(Below(dice, 1 + MaxPieces))};
    const int mostOutside = Below(dice, 4) > 0 ? 7 : 280;
    Pos.OutsideBalance = ToInt16(Below(dice, 2 * mostOutside + 1) - mostOutside);
    if (Below(dice, 8) == 0) Pos.RingSquare[1] = Pos.RingSquare[0];
}

/// A position set up, or from a random game.
inline void DrawPosition(Dice& dice) {
    if (Below(dice, 2) == 0) return SetUpAnything(dice);
    Wander(Below(dice, FreeSetupLayout), Below(dice, 80), dice);
}

/// The parts of the position that a search reads, without the order of the pieces.
inline std::string Described() {
    std::ostringstream text;
    text << Listed() << " last hit " << Pos.LastHit[0] << ' ' << Pos.LastHit[1] << " outside "
         << Pos.OutsideBalance << " side " << Pos.SideToMove << " entry " << Pos.MoveCount;
    return text.str();
}

}  // namespace brastel
