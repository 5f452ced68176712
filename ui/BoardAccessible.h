#pragma once

#include <QWidget>

/// The board as screen readers and other assistive technology find it: the view's children are its
/// 112 squares, the two turn circles, the announcement, and then its controls.
namespace brastel {

/// Makes Qt describe every board view in this way. May be called again.
void InstallBoardAccessible();

// ---- What changed ----
/// What stands on a square of the board.
void TellSquareChanged(QWidget& boardView, int square);
/// The keyboard points at a square of the board.
void TellSquareFocused(QWidget& boardView, int square);
void TellTurnChanged(QWidget& boardView);
/// There is something new to be read out.
void TellAnnouncement(QWidget& boardView);

}  // namespace brastel
