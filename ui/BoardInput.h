#pragma once

#include "core/Position.h"

#include <QMouseEvent>
#include <QObject>
#include <QPoint>

namespace brastel {

class BoardView;

/// Gestures on the board, by mouse or keyboard, as signals. Points are in view coordinates.
class BoardInput : public QObject {
    Q_OBJECT

public:
    /// Filters the events of the view. The view must outlive this object.
    explicit BoardInput(BoardView* view);

signals:
    /// A piece was dropped on a point of the form without a piece or a control.
    void Form_DragDrop(brastel::Piece dragged, int x, int y);
    /// A piece was dropped on a piece, which can be the dragged piece itself.
    void Piece_DragDrop(brastel::Piece dragged, brastel::Piece target);
    /// Both clicks of a double-click hit the same piece.
    void Piece_DblClick(brastel::Piece piece);
    /// The empty form was clicked.
    void Form_MouseUp(int x, int y);

protected:
    /// The logical pixel under the pointer.
    QPoint PixelOf(const QMouseEvent& event) const;
    /// Drops the piece at a point of the form without a control.
    void Drop(Piece dragged, QPoint point);

    BoardView* const Form;
};

}  // namespace brastel
