#include "ui/BoardInput.h"

#include "play/HumanAction.h"
#include "ui/BoardView.h"

namespace brastel {

BoardInput::BoardInput(BoardView* view) : QObject(view), Form(view) {
    Form->installEventFilter(this);
}

/// Qt rounds the position in a widget, so it can lie on the next square. The position in the window
/// is exact except for the error of a division by the device pixel ratio.
QPoint BoardInput::PixelOf(const QMouseEvent& event) const {
    constexpr QPointF DivisionError(1e-6, 1e-6);
    const QPointF point = Form->mapFrom(Form->window(), event.scenePosition() + DivisionError);
    return {qFloor(point.x()), qFloor(point.y())};
}

void BoardInput::Drop(Piece dragged, QPoint point) {
    if (const Piece target = BoardView::PieceAt(point)) return DropOnPiece(dragged, target);
    DropOnBoard(dragged, point.x(), point.y());
}

}  // namespace brastel
