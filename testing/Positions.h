#pragma once

#include "core/Position.h"

#include <string>
#include <string_view>

namespace brastel {

/// Sets the position from its pieces in index order, as in "R68 b60 b44": r and b are pieces,
/// capitals carry a ring (ring 0 the first of them). The side of the first piece is to move, and
/// both rings count as placed; a ring that nobody carries lies in a corner of the board.
void Place(std::string_view pieces);

/// Such a list, in board order, from a drawing: each line has the number of a row, 0 to 13, and its
/// eight squares, a point for each empty one. Boards may stand side by side: `board` is their
/// index.
std::string ListOf(const std::string& drawing, int board = 0);

/// The pieces of the position in board order, written like the lists above.
std::string Listed();

/// The list after half a turn of the board, with the colours exchanged; and a square after it.
std::string Turned(const std::string& pieces);
constexpr int Turned(int square) { return FirstSquare + LastSquare - square; }

}  // namespace brastel
