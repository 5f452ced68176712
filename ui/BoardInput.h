#pragma once

#include "core/Position.h"

#include <QMouseEvent>
#include <QObject>
#include <QPoint>

namespace brastel {

class BoardView;

/// What people do on the board, whatever they do it with. Points are in view coordinates.
class BoardInput : public QObject {
    Q_OBJECT

public:
    /// Watches the view, which outlives this.
    explicit BoardInput(BoardView* view);

signals:
    /// A piece was dropped on the form, where no piece and no control lies.
    void Form_DragDrop(brastel::Piece dragged, int x, int y);
    /// A piece was dropped on a piece, its own picture included.
    void Piece_DragDrop(brastel::Piece dragged, brastel::Piece target);
    /// Both clicks of a double-click hit the same piece.
    void Piece_DblClick(brastel::Piece piece);
    /// The empty form was clicked.
    void Form_MouseUp(int x, int y);

protected:
    /// The logical pixel that holds the pointer.
    QPoint PixelOf(const QMouseEvent& event) const;
    /// Drops the piece at a point of the form where no control lies.
    void Drop(Piece dragged, QPoint point);

    BoardView* const Form;
};

}  // namespace brastel
