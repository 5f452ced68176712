#pragma once

#include "core/Position.h"

#include <string>

/// Squares, pieces and what happens to them in English words, for those who hear or read the game
/// instead of seeing it. Any number may be asked for.
namespace brastel {

/// "Red" or "Blue".
std::string SideInWords(int side);

/// "Red to move".
std::string TurnInWords(int side);

/// "row 9, column 4": rows 1 to 14 from the top, columns 1 to 8 from the left. "off the board" for
/// what is no square.
std::string SquareInWords(int square);

/// "Red piece 3", or "no piece" for index 0.
std::string PieceInWords(Piece piece);

/// What the square holds now: "Red piece 3", "Red piece 3, carries a ring", "a ring" where one lies
/// without a piece, or "empty". Squares beyond the border lines begin with "outside, ", "Red's
/// goal, " (the top one, which Red attacks) or "Blue's goal, ".
std::string ContentInWords(int square);

/// "row 9, column 4: Red piece 3, carries a ring".
std::string SquareWithContent(int square);

/// What happened between two positions, told by their differences alone: "Red piece 3 from row 9,
/// column 4 to row 7, column 4, pushes Blue piece 5 to row 5, column 4 and takes its ring". First
/// come the pieces of before.SideToMove, then the others, the rings, and the pieces that come back
/// from outside, with semicolons between.
///
/// If one action lies between the positions (the other side is to move, and no entry was taken
/// back), the text also says who pushed, passed a ring, left one or passed the turn. Otherwise, as
/// after a step back, it only says where pieces and rings went.
std::string ChangesInWords(const Position& before, const Position& after);

}  // namespace brastel
