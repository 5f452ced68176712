#pragma once

#include "core/Action.h"

namespace brastel {

/// An action as one number: destination * 200 + origin. A ring placement is the square alone. 0 is
/// no candidate, and means the null move if it is played.
using MoveCode = Int16;

constexpr int MoveCodeBase = 200;

constexpr MoveCode EncodeMove(const Action& action) {
    return ToInt16(action.Destination * MoveCodeBase + action.Origin);
}
constexpr Action DecodeMove(MoveCode code) { return {code % MoveCodeBase, code / MoveCodeBase}; }

}  // namespace brastel
