#pragma once

#include "core/Position.h"

/// Rules 3, 4, 5 and 7, hits: a piece without a ring pushes an opponent in its row or column (3),
/// but not two pieces in a row (4), takes the ring of a carrier on the next square (5), and cannot
/// hit back at once (7).
namespace brastel {

enum class HitVerdict { Accepted, Refused, PushBack };

/// Whether the hitter may hit the target now. PushBack if the target made the last hit, on this
/// hitter: the player is told so, even if another rule forbids the hit, too.
/// Pieces that do not exist or are on the same side are refused.
HitVerdict CheckHit(Piece hitter, Piece target);

/// The direction of a push from one square toward a different one of the same row or column (Left,
/// Right, Up or Down), or 0 when they share neither.
int PushDirection(int from, int to);

/// Rule 7, no hit back: true if the target made the last hit, and on this hitter. Both are piece
/// indices, of opposite sides.
inline bool IsPushBack(Int16 hitter, Int16 target) {
    return target == Pos.LastHit[0] && hitter == Pos.LastHit[1];
}

/// True if the square `steps` beyond `square` in a direction lies on the board and is empty.
bool IsFreeBeyond(int square, int direction, int steps);

/// Rule 4, two pieces in a row: a hit needs an empty square behind its target.
inline bool HasRoomBehind(int target, int direction) { return IsFreeBeyond(target, direction, 1); }

/// Rules 3 and 4: the hitter takes the target's square and pushes it two squares on if the second
/// is free, otherwise one. A ring on the square stays and so changes hands. Precondition: one of
/// the two squares is free in a straight line, as CheckHit makes sure of.
void ApplyHit(Piece hitter, Piece target);

}  // namespace brastel
