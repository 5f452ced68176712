#pragma once

#include "core/Position.h"

#include <QMouseEvent>
#include <QObject>
#include <QPoint>

namespace brastel {

class BoardView;

/// What mouse and keyboard share: both watch the events of the view and make the gestures of
/// play/HumanAction.h from them. Points are in view coordinates.
class BoardInput : public QObject {
public:
    /// Filters the events of the view. The view must outlive this object.
    explicit BoardInput(BoardView* view);

protected:
    /// The logical pixel under the pointer.
    QPoint PixelOf(const QMouseEvent& event) const;
    /// Drops the piece at a point of the form without a control.
    static void Drop(Piece dragged, QPoint point);

    BoardView* const Form;
};

}  // namespace brastel
