#pragma once

#include <QWindow>

/// One mouse, one keyboard, a touch screen and what a window manager does. Each call is one event,
/// which takes the way of a real one through the window system's queue as far as Qt lets it, and is
/// noted in the event log. Windows that are gone get nothing.
namespace brastel {

// ---- Mouse: in the top window, or in the one where it was pressed and is still held ----

void Press(QPoint place, Qt::MouseButton button);
/// Soon enough after the last press to be its double.
void PressAgain(QPoint place, Qt::MouseButton button);
void Move(QPoint place);
void Release(QPoint place, Qt::MouseButton button);
Qt::MouseButtons HeldButtons();
/// Releases one of the buttons that are held.
void ReleaseOne(QPoint place);
void Wheel(QPoint place, int delta);
void Tap(QPoint place);

// ---- Keyboard: to the window that has it ----

void KeyDown(int key, Qt::KeyboardModifiers modifiers, const QString& text);
void KeyUp(int key, Qt::KeyboardModifiers modifiers, const QString& text);
/// As an input method does.
void Commit(const QString& text);

// ---- Window manager ----

void Activate(QWindow* window);
void Restore(QWindow* window);
void LeaveWindow(QWindow* window);
/// Nothing for a window behind a modal one: its close box is dead.
void Close(QWindow* window);

}  // namespace brastel
