#pragma once

#include "ui/BoardInput.h"

#include <QWidget>

namespace brastel {

/// Turns what the mouse does on the board view into gestures: every button drags a piece, with an
/// outline that follows the pointer, or clicks on the empty form. Losing the mouse or the keyboard
/// ends a drag without a drop. The cursor tells what may be dragged or given the ring. The view's
/// controls, made before, keep the arrow.
class MouseInput : public BoardInput {
    Q_OBJECT

public:
    explicit MouseInput(BoardView* view);

    /// Ends whatever is under way without a drop or click.
    void Cancel();

    /// Shows the cursor that fits the gesture under way or what the pointer is on; called when that
    /// may have changed.
    void ShowCursor();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Gesture { None, Drag, Click };

    void Follow(const QMouseEvent& event);
    void Press(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void TakePiece();
    void ShowOutline();

    QWidget* const Outline;
    Gesture Current = Gesture::None;
    Qt::MouseButton Button = Qt::NoButton;
    QPoint Pointer;
    /// The piece under the last press, and where in its picture it was taken.
    Piece Pressed;
    QPoint Grip;
};

}  // namespace brastel
