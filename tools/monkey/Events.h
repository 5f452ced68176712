#pragma once

#include "ui/MainWindow.h"

#include <QWindow>

#include <string>

/// One mouse, one keyboard, a touch screen and what a window manager does. Each call is an event,
/// which takes the way of a real one through the window system's queue as far as Qt lets it. It is
/// printed as it comes: the last lines tell what led to a crash. A window that is away gets
/// nothing.
namespace brastel {

/// The main window, from its opening until it is closed.
inline MainWindow* GameWindow = nullptr;
/// Another program's.
inline QWindow* OtherWindow = nullptr;

/// What the lines of the events to come begin with.
inline std::string EventName;

/// What gets the events: the open menu, the dialog or the main window.
QWidget& Top();

/// `again` soon enough after the last press to be its double.
void Press(QPoint place, Qt::MouseButton button, bool again = false);
void Move(QPoint place);
void Release(QPoint place, Qt::MouseButton button);
void Tap(QPoint place);

/// A key pressed and released, in the window that has the keyboard.
void Type(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});

void Activate(QWindow* window);
/// Resizes, moves, minimizes or shows the window. Resizing is refused by every one.
void ChangeWindow(int how, QPoint by);
void Close();

}  // namespace brastel
