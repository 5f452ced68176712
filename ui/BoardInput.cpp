#include "ui/BoardInput.h"

#include "ui/BoardView.h"

namespace brastel {

/// Rounding would push it over a square's edge.
QPoint BoardInput::PixelOf(const QMouseEvent& event) {
    return {qFloor(event.position().x()), qFloor(event.position().y())};
}

void BoardInput::Drop(Piece dragged, QPoint point) {
    const Piece target = BoardView::PieceAt(point);
    if (target) {
        emit Piece_DragDrop(dragged, target);
    } else {
        emit Form_DragDrop(dragged, point.x(), point.y());
    }
}

}  // namespace brastel
