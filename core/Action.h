#pragma once

#include "core/Square.h"

namespace brastel {

/// What a side does in its turn, as two squares. The position tells what they mean: at MoveCount 1
/// and 2 the ring of Red or Blue goes to the origin, and the destination is not read. Afterwards an
/// empty destination makes a plain move, a friendly one a ring pass, an enemy one a hit. Where the
/// origin holds no piece, as in NullMove, only the turn passes.
struct Action {
    int Origin = NoSquare;
    int Destination = NoSquare;

    bool operator==(const Action&) const = default;
};

constexpr Action NullMove{};

}  // namespace brastel
