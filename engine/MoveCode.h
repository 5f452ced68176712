#pragma once

#include "core/Action.h"

namespace brastel {

/// Destination * 200 + origin in one number. A ring placement is the bare square; 0 is no candidate
/// and, played, the null move.
using MoveCode = Int16;

constexpr int MoveCodeBase = 200;

constexpr MoveCode EncodeMove(const Action& action) {
    return ToInt16(action.Destination * MoveCodeBase + action.Origin);
}
constexpr Action DecodeMove(MoveCode code) { return {code % MoveCodeBase, code / MoveCodeBase}; }

}  // namespace brastel
