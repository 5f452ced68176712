#pragma once

#include "core/Position.h"

#include <QPixmap>
#include <QWidget>

namespace brastel {

/// The inner area of the main window. It paints the board, pieces and rings from the position (Pos)
/// and the shapes of the side panel. View coordinates are its logical pixels. The controls of the
/// panel are its children.
class BoardView : public QWidget {
    Q_OBJECT

public:
    explicit BoardView(QWidget* parent);

    /// Shows the turn circle of this side and hides the other.
    void ShowTurn(Int16 side);

    static QRect TurnCircle(Int16 side);
    Int16 ShownTurn() const { return Turn; }

    /// Puts a frame around the square with the keyboard focus, while the view has the focus.
    /// NoSquare for none.
    void ShowFocus(int square) { Mark(Focus, square); }
    /// Tints the square of the piece that is dragged or picked up. NoSquare for none.
    void ShowHeld(int square) { Mark(Held, square); }

    /// The piece whose picture is under a point, or no piece.
    static Piece PieceAt(QPoint point);

    /// What a click and a double-click on the board do. Empty when both rings are placed.
    static QString OpeningHelp();
    /// The tool tip of a point on a piece, the board or the turn circle. Empty if there is none.
    QString HelpAt(QPoint point) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Mark(int& marked, int square);
    void PaintPieces(QPainter& painter);
    void PaintMarks(QPainter& painter);
    const QPixmap& BeadOf(int side);

    Int16 Turn = Red;
    int Focus = NoSquare;
    int Held = NoSquare;
    /// The beads for the current device pixel ratio, drawn when first needed.
    QPixmap RedBead;
    QPixmap BlueBead;
};

}  // namespace brastel
