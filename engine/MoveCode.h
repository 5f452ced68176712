#pragma once

#include "core/Numbers.h"

namespace brastel {

/// Destination * 200 + origin in one number. A ring placement is the bare square; 0 is no candidate
/// and, played, the null move.
using MoveCode = Int16;

constexpr int MoveCodeBase = 200;

constexpr MoveCode EncodeMove(int origin, int destination) {
    return ToInt16(destination * MoveCodeBase + origin);
}
constexpr Int16 OriginOf(MoveCode code) { return ToInt16(code % MoveCodeBase); }
constexpr Int16 DestinationOf(MoveCode code) { return ToInt16(code / MoveCodeBase); }

}  // namespace brastel
