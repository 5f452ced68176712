#pragma once

#include "core/Position.h"

#include <QPixmap>
#include <QWidget>

namespace brastel {

/// What a player without a mouse sees of the keyboard's place on the board.
struct KeyboardMarks {
    /// The square that the keyboard points at. It begins in the middle of Red's side, where Red has
    /// a piece in most layouts.
    int Focus = SquareAt(8, 3);
    bool IsShown = false;
    /// The square of the piece that the keyboard has taken up, NoSquare for none.
    int Held = NoSquare;

    bool operator==(const KeyboardMarks&) const = default;
};

/// The inner area of the main window: paints the board with pieces and rings straight from the
/// position, and the shapes of the side panel. View coordinates are its own logical pixels. The
/// controls of the panel are its children.
class BoardView : public QWidget {
    Q_OBJECT

public:
    explicit BoardView(QWidget* parent);

    /// Shows the turn circle of a side.
    void ShowTurn(Int16 side);

    /// Place of a side's turn circle.
    static QRect TurnCircle(Int16 side);
    Int16 ShownTurn() const { return Turn; }

    /// Shows the marks while the view has the keyboard.
    void ShowMarks(const KeyboardMarks& marks);

    /// The piece whose picture lies under a point, or no piece.
    static Piece PieceAt(QPoint point);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintPieces(QPainter& painter);
    void PaintMarks(QPainter& painter);
    const QPixmap& BeadOf(int side);

    Int16 Turn = Red;
    KeyboardMarks Marks;
    /// Red's and Blue's bead for the present device pixel ratio, drawn when first needed.
    QPixmap RedBead;
    QPixmap BlueBead;
};

}  // namespace brastel
