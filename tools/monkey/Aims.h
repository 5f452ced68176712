#pragma once

#include "ui/MainWindow.h"

#include <QWindow>

/// What is on the screen, and where a mouse might point.
namespace brastel {

/// The main window, from its opening until it is closed.
inline MainWindow* GameWindow = nullptr;

/// Another program's.
inline QWindow* OtherWindow = nullptr;

/// The outline of the piece that is being dragged; mostly hidden.
QWidget& Outline();

/// What gets mouse and keyboard: the open menu, the dialog or the main window.
QWidget& Top();

/// The middle of a square in the main window.
QPoint Centre(int square);

/// A square with a piece, mostly of the side to move; any square if there is none.
int AnyPieceSquare();

/// A place worth a click on a visible widget: an item or row of it, or anywhere.
QPoint PlaceOn(QWidget& widget);

/// A place worth a click in the top window, or anywhere in it or around it.
QPoint AnyPlace();

/// The middle of a part of a window, in that window.
QPoint MiddleOf(const QWidget& part);

}  // namespace brastel
