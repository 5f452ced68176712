#pragma once

#include "ui/BoardInput.h"

#include <QWidget>

namespace brastel {

/// Turns what the mouse does on the board view into gestures: every button drags a piece, with an
/// outline that follows the pointer, or clicks on the empty form. Losing the mouse or the keyboard
/// ends a drag without a drop.
class MouseInput : public BoardInput {
    Q_OBJECT

public:
    explicit MouseInput(BoardView* view);

    /// Ends whatever is under way without a drop or click.
    void Cancel();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Gesture { None, Drag, Click };

    void CancelIfLost(const QMouseEvent& event);
    void Press(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void ShowOutline(QPoint pointer);

    QWidget* const Outline;
    Gesture Current = Gesture::None;
    Qt::MouseButton Button = Qt::NoButton;
    /// The piece under the last press, and where in its picture it was taken.
    Piece Pressed;
    QPoint Grip;
};

}  // namespace brastel
