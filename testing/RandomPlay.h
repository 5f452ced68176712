#pragma once

#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "testing/Positions.h"

#include <random>

/// Random games, the same on every platform for the same seed.
namespace brastel {

using Dice = std::mt19937;

/// 0 to n - 1; `dice` is anything that draws numbers.
template <typename Source>
int Below(Source& dice, int n) {
    return static_cast<int>(dice() % static_cast<unsigned>(n));
}

/// An action that people may take, or NullMove: the best of a few candidates in row 1, since
/// random candidates rarely hit, or sometimes a long step of a ring carrier, which is no candidate.
template <typename Source>
Action DrawAction(Source& dice) {
    for (int attempt = 0; attempt < 20 && CandidateCount[1] > 0; ++attempt) {
        int best = 1 + Below(dice, CandidateCount[1]);
        for (int more = Below(dice, 4); more > 0; --more) {
            const int other = 1 + Below(dice, CandidateCount[1]);
            if (MoveScores[1][other] > MoveScores[1][best]) best = other;
        }
        Action action = DecodeMove(MoveList[1][best]);
        if (Below(dice, 8) == 0) {
            action.Origin = Pos.RingSquare[dice() % RingCount];
            const int columns = Below(dice, 5) - 2;
            const int rows = Below(dice, 5) - 2;
            action.Destination = action.Origin + columns * Right + rows * Down;
        }
        if (IsAccepted(action)) return action;
    }
    return {};
}

/// Plays random entries from a start layout, the ring placements first, and leaves row 1 up to
/// date.
inline void Wander(int layout, int entries, Dice& dice) {
    SelectStartLayout(layout);
    SetUpStartPosition();
    for (; Pos.MoveCount <= entries; ++Pos.MoveCount) {
        const int receiver = 1 + Below(dice, std::min(LayoutPieces(layout), 8));
        const Action ring{SquaresOf(Pos.SideToMove)[receiver], 0};
        ApplyMoveQuiet(BothRingsPlaced() ? DrawAction(dice) : ring);
        GenerateMoves(1);
    }
}

}  // namespace brastel
