#pragma once

#include "core/Position.h"

/// What happens before both rings are placed: the ring placements, and the free setup.
namespace brastel {

/// Index of the last piece that may receive a ring in a game with pieces on both sides.
constexpr int LastRingPiece = 8;

/// True while clicks add pieces: Blue has none yet and the rings are not both placed.
inline bool InFreeSetup() { return Pos.BlueCount == 0 && !BothRingsPlaced(); }

/// True while it is this side's turn to place its ring: Red's at MoveCount 1, Blue's at 2.
inline bool IsPlacingRing(int side) { return Pos.MoveCount == (side == Red ? 1 : 2); }

/// Lays the ring of the side whose placement is due (MoveCount 1 or 2) on the square, whatever
/// stands there. The pieces placed by hand so far become that side's pieces.
void LayRing(int square);

/// True if it is the placement of the piece's side and the piece stands on the board; outside a
/// free setup its index must not be above LastRingPiece.
bool MayPlaceRing(Piece piece);

/// Gives the side's ring to one of its pieces; in a free setup this ends the side's setup and the
/// start table's entry 0 takes the ring square. False, and nothing changed, unless MayPlaceRing.
/// Record, MoveCount and turn are the caller's.
bool PlaceRing(Piece piece);

/// Adds a piece of the side being set up at a view point, which snaps to its square; a strip up to
/// one cell wide left of and above the board still counts as its first column and row. False, and
/// nothing changed, outside a free setup, off the board, on an occupied square, or when the side
/// has MaxPieces.
bool SetupAddPiece(int x, int y);

}  // namespace brastel
