#pragma once

#include "ui/BoardInput.h"

#include <QWidget>

namespace brastel {

/// Turns mouse events on the board view into gestures. Every button drags a piece, with an outline
/// that follows the pointer, or clicks on the empty form. A drag ends without a drop when the view
/// loses the mouse or the keyboard focus. The cursor shows which pieces can be dragged or can get
/// the ring. Over the controls of the view, which must exist before, it is an arrow.
class MouseInput : public BoardInput {
public:
    explicit MouseInput(BoardView* view);

    /// Ends the current gesture without a drop or click.
    void Cancel();

    /// Shows the cursor for the current gesture, or for the piece under the pointer. Must be called
    /// when these may have changed.
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
    /// The piece under the last press, and the point of its picture that was pressed.
    Piece Pressed;
    QPoint DragOffset;
};

}  // namespace brastel
