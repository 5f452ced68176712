#pragma once

#include "core/Position.h"

#include <QPixmap>
#include <QWidget>

namespace brastel {

/// The inner area of the main window: paints the board with pieces and rings straight from the
/// position, and the shapes of the side panel. View coordinates are its own logical pixels. The
/// controls of the panel are its children.
class BoardView : public QWidget {
public:
    explicit BoardView(QWidget* parent);

    /// Shows the turn circle of a side.
    void ShowTurn(Int16 side);

    /// The piece whose picture lies under a point, or no piece.
    static Piece PieceAt(QPoint point);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintPieces(QPainter& painter);
    const QPixmap& BeadOf(int side);

    Int16 Turn = Red;
    /// Red's and Blue's bead for the present device pixel ratio, drawn when first needed.
    QPixmap RedBead;
    QPixmap BlueBead;
};

}  // namespace brastel
