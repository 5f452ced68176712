#pragma once

#include "core/Position.h"

/// What the human does with the mouse. Points are view coordinates; an action that the rules refuse
/// changes nothing, and everything is ignored while the computer thinks.
namespace brastel {

/// A dragged piece is dropped at a point where no piece lies: a plain move to the square under the
/// point. A point off the board is refused.
void DropOnBoard(Piece dragged, int x, int y);

/// A dragged piece is dropped on another (or on itself): a hit, or a ring pass.
void DropOnPiece(Piece dragged, Piece target);

/// A double-click gives the piece its side's ring at the start of the game, or ends its side's free
/// setup.
void DoubleClickPiece(Piece piece);

/// A click on the empty board adds a piece in a free setup.
void ClickBoard(int x, int y);

}  // namespace brastel
