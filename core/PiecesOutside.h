#pragma once

#include "core/Position.h"

/// Rule 9, pieces outside: a piece pushed off the field waits on an outside cell. It comes back
/// onto the field square next to it as soon as that square is empty and no opponent stands beside
/// it.
namespace brastel {

/// Where a piece on this return cell comes back; NoSquare for any other square.
int ReturnSquareOf(int cell);

/// Brings back every piece that may return. The field before the call decides for all of them.
void ReturnOutsidePieces();

/// The same for only those cells whose return or guard square is one of the given ones: an action
/// can let a piece return only where it changed a square. Both squares are served in one pass:
/// a piece that comes back near the first must not keep out one near the second. Numbers that are
/// no field square are ignored.
void ReturnOutsideNear(int square, int otherSquare = NoSquare);

}  // namespace brastel
