#pragma once

#include <QPointer>
#include <QPointingDevice>
#include <QWindow>

#include <memory>

namespace brastel {

/// One mouse, one keyboard and what a window manager does: each call is one event, which takes the
/// way of a real one through the window system's queue as far as Qt lets it, and is noted in the
/// event log. Windows that are gone get nothing. Places are the target window's.
class Hands {
public:
    Hands();

    // ---- Mouse ----
    Qt::MouseButtons Held;
    /// The window that has the mouse as long as a button is held.
    QPointer<QWindow> Grabber;
    void Press(QWindow* window, QPoint place, Qt::MouseButton button);
    /// Soon enough after the last to be its double.
    void PressAgain(QWindow* window, QPoint place, Qt::MouseButton button);
    void Move(QWindow* window, QPoint place);
    void Release(QWindow* window, QPoint place, Qt::MouseButton button);
    void Wheel(QWindow* window, QPoint place, int delta);
    void Tap(QWindow* window, QPoint place);

    // ---- Keyboard: to the window that has it ----
    void KeyDown(int key, Qt::KeyboardModifiers modifiers, const QString& text);
    void KeyUp(int key, Qt::KeyboardModifiers modifiers, const QString& text);
    /// As an input method does.
    void Commit(const QString& text);

    // ---- Window manager ----
    void Activate(QWindow* window);
    void LeaveWindow(QWindow* window);
    /// Nothing for a window behind a modal one: its close box is dead.
    void Close(QWindow* window);

private:
    void Mouse(QEvent::Type type, QWindow* window, QPoint place, Qt::MouseButton button);
    void Key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text);

    const std::unique_ptr<QPointingDevice> Screen;
    int Milliseconds = 0;
};

}  // namespace brastel
