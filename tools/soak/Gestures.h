#pragma once

#include "tests/ShownGame.h"

/// What people do, with the checks of each: that it is accepted or refused as the rules have it,
/// that a refusal changes nothing, and that an accepted action is announced rightly, answered by
/// the computer in its turn, and follows the line. They throw Inconsistency at the first fault.
namespace brastel {

/// The view of every game.
inline ShownGame Shown;

/// The square under a point, NoSquare beside the board.
int SquareUnder(int x, int y);

/// Drags the piece on a square to another square, somewhere on it.
void DropOnSquare(int from, int to);
void DropAt(Piece dragged, int x, int y);
void DropOn(Piece dragged, Piece target);

void DoubleClick(Piece piece);
/// Adds a piece in a free setup.
void Click(int x, int y);
/// Precondition: a hint is given.
void AskForHint();

/// Does what must change nothing at all; only the message may be another.
void Refuse(const std::function<void()>& operation);

}  // namespace brastel
