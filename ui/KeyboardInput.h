#pragma once

#include "ui/BoardInput.h"
#include "ui/BoardView.h"

#include <QTimer>

#include <functional>

class QKeyEvent;

namespace brastel {

class MouseInput;

/// Turns what the keyboard does on the board view into the same gestures that the mouse makes. The
/// arrow keys move the focus over the squares; Enter or Space takes up the piece there, drops the
/// one that is held, or clicks the empty square; Escape puts it back; R double-clicks the piece.
/// The focus is marked from the first key on until the mouse is used again. Whatever else takes the
/// keyboard away from the view makes it let go.
class KeyboardInput : public BoardInput {
    Q_OBJECT

public:
    /// A key ends what the mouse has begun, and the other way round.
    KeyboardInput(BoardView* view, MouseInput* mouse);

    int FocusSquare() const { return Focus; }
    /// Where the piece stands that is held, NoSquare while none is.
    int HeldSquare() const { return Held; }

    // ---- What the keys do, for assistive technology, too; nothing while the computer thinks ----
    /// Moves the focus to a square of the board; any other number is ignored.
    void FocusOn(int square);
    void Press();
    void DoubleClick();
    void LetGo();

    /// Lets go without a word, for a change of the board that is told itself.
    void Release();

signals:
    void FocusMoved(int square);
    /// Something to be read out that changes nothing on the board.
    void Told(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Handle(const QKeyEvent& event);
    void FollowMouse(QPoint point);
    void TellFocus();
    void ShowFocus();
    void PickUp();
    void DropHere();
    QPoint FocusCorner() const;
    /// Makes a gesture, and tells if nothing came of it: who does not see the board would wait.
    void Try(const std::function<void()>& gesture, const QString& failure);

    MouseInput* const Mouse;
    /// It begins in the middle of Red's side, where Red has a piece in most layouts.
    int Focus = SquareAt(8, 3);
    bool IsFocusShown = false;
    int Held = NoSquare;
    QTimer FocusTimer;
};

}  // namespace brastel
