#pragma once

#include <QWidget>

/// Checks of the window. Each throws an exception if it fails.
namespace brastel {

/// The outline of a dragged piece, hidden while none is dragged.
QWidget& Outline();

/// Remembers the size of the main window and the number of its parts, for CheckRest.
void RememberWindow();

/// The controls of the main window agree with the game.
void CheckControls();

/// The screen shows the position, now or soon.
void CheckPicture();

/// Nothing is open: the main window has its size, and no parts of dialogs are left over.
void CheckRest();

/// The program ended because the main window was closed.
void CheckEnd();

}  // namespace brastel
