#pragma once

#include "ui/BoardInput.h"
#include "ui/BoardView.h"

#include <QTimer>

#include <functional>

class QKeyEvent;

namespace brastel {

class MouseInput;

/// Turns keys on the board view into the same gestures as those of the mouse. The arrow keys move
/// the focus over the squares. Enter or Space picks up the piece on the focus square, drops the
/// piece that is held, or clicks the empty square. Escape puts the held piece back. R double-clicks
/// the piece. The focus square has a frame from the first key until the mouse is used. When the
/// view loses the keyboard focus, the held piece is put back.
class KeyboardInput : public BoardInput {
    Q_OBJECT

public:
    /// A key ends a gesture of the mouse, and a mouse button puts the held piece back.
    KeyboardInput(BoardView* view, MouseInput* mouse);

    int FocusSquare() const { return Focus; }
    /// The square of the held piece, NoSquare if none is held.
    int HeldSquare() const { return Held; }

    // ---- What keys and assistive technology do. Nothing happens while the computer thinks. ----
    /// Moves the focus to a square of the board. Other numbers are ignored.
    void FocusOn(int square);
    void Press();
    void DoubleClick();
    /// Puts the held piece back and announces it.
    void PutBack();

    /// Puts the held piece back without an announcement, when a change of the board is announced.
    void Release();

signals:
    void FocusMoved(int square);
    /// A text for screen readers about a gesture that changes nothing on the board.
    void Announced(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Handle(const QKeyEvent& event);
    void FollowMouse(QPoint point);
    void SendFocus();
    void ShowFocus();
    void PickUp();
    void DropHere();
    QPoint FocusCorner() const;
    /// Makes a gesture. Announces `failure` if the position does not change: otherwise a player who
    /// does not see the board would wait.
    void Try(const std::function<void()>& gesture, const QString& failure);

    MouseInput* const Mouse;
    /// At first in the middle of Red's side: Red has a piece there in most layouts.
    int Focus = SquareAt(8, 3);
    bool IsFocusShown = false;
    int Held = NoSquare;
    QTimer FocusTimer;
};

}  // namespace brastel
