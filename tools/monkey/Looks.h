#pragma once

#include <QWidget>

/// What must hold of the window. A fault is thrown.
namespace brastel {

/// The outline of the piece that is being dragged; mostly hidden.
QWidget& Outline();

/// The main window is as it must stay.
void RememberWindow();

/// The main window's controls agree with the game.
void LookAtControls();

/// The screen shows the position, now or soon.
void LookAtPicture();

/// With nothing open, nothing is left of what was.
void LookAtRest();

/// The program ended by the main window's closing.
void LookAtEnd();

}  // namespace brastel
