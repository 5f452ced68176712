#pragma once

#include "core/Position.h"

#include <string>
#include <string_view>

namespace brastel {

/// Sets the position from its pieces in index order, as in "R68 b60 b44": r and b are pieces,
/// capitals carry a ring (ring 0 the first of them). The side of the first piece is to move, and
/// both rings count as placed; a ring that nobody carries lies in a corner of the board.
void Place(std::string_view pieces);

/// The pieces of the position in board order, written like the list above.
std::string Listed();

/// A square, and the position, upside down with the colours exchanged, or in a mirror.
int UpsideDown(int square);
Position UpsideDown(const Position& position);
int LeftRight(int square);
Position LeftRight(const Position& position);

}  // namespace brastel
