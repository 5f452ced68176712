#pragma once

#include "core/Position.h"

#include <QPixmap>
#include <QWidget>

namespace brastel {

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

    /// Frames the square that the keyboard points at, while the view has the keyboard; NoSquare for
    /// none.
    void ShowFocus(int square) { Show(Focus, square); }
    /// Tints the square of the piece that is dragged or taken up; NoSquare for none.
    void ShowHeld(int square) { Show(Held, square); }

    /// The piece whose picture lies under a point, or no piece.
    static Piece PieceAt(QPoint point);

    /// What a click and a double-click on the board do; empty once both rings are placed.
    static QString OpeningHelp();
    /// What the tool tip of a point says, which belongs to a piece, the board or the turn circle;
    /// empty if there is none.
    QString HelpAt(QPoint point) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Show(int& mark, int square);
    void PaintPieces(QPainter& painter);
    void PaintMarks(QPainter& painter);
    const QPixmap& BeadOf(int side);

    Int16 Turn = Red;
    int Focus = NoSquare;
    int Held = NoSquare;
    /// Red's and Blue's bead for the present device pixel ratio, drawn when first needed.
    QPixmap RedBead;
    QPixmap BlueBead;
};

}  // namespace brastel
