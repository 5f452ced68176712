#pragma once

#include "core/Position.h"

#include <QObject>
#include <QPoint>
#include <QWidget>

class QMouseEvent;

namespace brastel {

/// Turns what the mouse does on the board view into gestures: every button drags a piece, with an
/// outline that follows the pointer, or clicks on the empty form. Escape and losing the mouse end a
/// drag without a drop. Points are in view coordinates.
class MouseInput : public QObject {
    Q_OBJECT

public:
    /// Watches the view, which outlives this.
    explicit MouseInput(QWidget* view);

    /// Ends whatever is under way without a drop or click.
    void Cancel();

signals:
    /// A piece was dropped on the form, where no piece and no control lies.
    void Form_DragDrop(brastel::Piece dragged, int x, int y);
    /// A piece was dropped on a piece, its own picture included.
    void Piece_DragDrop(brastel::Piece dragged, brastel::Piece target);
    /// Both clicks of a double-click hit the same piece.
    void Piece_DblClick(brastel::Piece piece);
    /// The mouse was pressed on the empty form and released on the form.
    void Form_MouseUp(int x, int y);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Gesture { None, Drag, Click };

    void CancelIfLost(const QMouseEvent& event);
    void Press(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void Drop(QPoint point);
    void ShowOutline(QPoint pointer);

    QWidget* const Form;
    QWidget* const Outline;
    Gesture Current = Gesture::None;
    Qt::MouseButton Button = Qt::NoButton;
    /// The piece under the last press, and where in its picture it was taken.
    Piece Pressed;
    QPoint Grip;
};

}  // namespace brastel
