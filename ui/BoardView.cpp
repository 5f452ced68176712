#include "ui/BoardView.h"

#include "core/Opening.h"
#include "play/Words.h"
#include "ui/Bead.h"
#include "ui/Layout.h"
#include "ui/Outline.h"

#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <array>

namespace brastel {

namespace {

constexpr int FieldLineWidth = 3;
constexpr int CircleWidth = 5;

struct FieldLine {
    QPoint From;
    QPoint To;
};

/// line_Board: the centre line and the border, which is open at both goals.
constexpr std::array<FieldLine, 7> FieldLines{{
    {{60, 300}, {300, 300}},
    {{60, 60}, {60, 540}},
    {{300, 60}, {300, 540}},
    {{60, 60}, {140, 60}},
    {{220, 60}, {300, 60}},
    {{60, 540}, {140, 540}},
    {{220, 540}, {300, 540}},
}};

constexpr QColor HeldTint(0, 64, 255, 100);

constexpr QRect BoardBorder(BoardLeft, BoardTop, BoardWidth, BoardHeight);
/// shp_Circle, Red's and Blue's.
constexpr QRect RedCircle = TwipRect{7920, 2760, 612, 612}.InPixels();
constexpr QRect BlueCircle = TwipRect{8760, 2760, 612, 612}.InPixels();
/// Shape1.
constexpr QRect MessageFrame = TwipRect{7440, 5160, 2532, 612}.InPixels();

/// shp_board: squares side by side share a line.
QRect SquareOutline(int square) {
    return {SquareLeft(square), SquareTop(square), CellSize + 1, CellSize + 1};
}

void PaintSquares(QPainter& painter) {
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        if (InField(square)) PaintOutline(painter, SquareOutline(square));
    }
}

void PaintFieldLines(QPainter& painter) {
    for (const FieldLine& line : FieldLines) {
        PaintSharpLine(painter, line.From, line.To, FieldLineWidth);
    }
}

/// A circle inside the rectangle. Its outer edge touches the sides.
void PaintCircle(QPainter& painter, const QRect& rect) {
    constexpr qreal Half = CircleWidth / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, CircleWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(rect).adjusted(Half, Half, -Half, -Half));
    painter.restore();
}

/// shp_Ring, painted above the pieces: only a ring shows that a piece is a carrier.
void PaintRings(QPainter& painter) {
    for (const Int16 square : Pos.RingSquare) {
        PaintCircle(painter, {SquareLeft(square), SquareTop(square), CellSize, CellSize});
    }
}

}  // namespace

BoardView::BoardView(QWidget* parent) : QWidget(parent) {
    setObjectName("Form");
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BoardView::ShowTurn(Int16 side) {
    Turn = side;
    update(RedCircle);
    update(BlueCircle);
}

QRect BoardView::TurnCircle(Int16 side) { return side == Red ? RedCircle : BlueCircle; }

void BoardView::Mark(int& marked, int square) {
    if (marked == square) return;
    marked = square;
    update();
}

Piece BoardView::PieceAt(QPoint point) {
    if (!IsBoardPoint(point.x(), point.y())) return {};
    return PieceOn(SquareFromPoint(point.x(), point.y()));
}

QString BoardView::OpeningHelp() {
    if (BothRingsPlaced()) return {};
    const QString side = QString::fromStdString(SideInWords(Pos.SideToMove));
    QString ring = "Double-click a " + side + " piece to give it the ring";
    if (!InFreeSetup()) return ring;
    const int count = PieceCount(Pos.SideToMove);
    const QString add = "Click an empty square to add a " + side + " piece";
    if (count == 0) return add + "\nOptions > Change Piece Number has ready start positions";
    const QString end = ring + " and to end " + side + "'s setup";
    return count < MaxPieces ? add + '\n' + end : end;
}

QString BoardView::HelpAt(QPoint point) const {
    if (TurnCircle(Turn).contains(point)) return QString::fromStdString(TurnInWords(Turn));
    if (!BoardBorder.contains(point)) return {};
    const Piece piece = PieceAt(point);
    const bool isBarred = !MayPlaceRing(piece) && IsPlacingRing(piece.Side);
    return piece && isBarred ? "This piece cannot get the ring now" : OpeningHelp();
}

bool BoardView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    const QRect place = BoardBorder.contains(help.pos()) ? BoardBorder : TurnCircle(Turn);
    QToolTip::showText(help.globalPos(), HelpAt(help.pos()), this, place);
    return true;
}

const QPixmap& BoardView::BeadOf(int side) {
    QPixmap& bead = side == Red ? RedBead : BlueBead;
    if (bead.isNull() || bead.devicePixelRatio() != devicePixelRatioF()) {
        bead = BeadPicture(side, CellSize, devicePixelRatioF());
    }
    return bead;
}

void BoardView::PaintPieces(QPainter& painter) {
    for (const Int16 side : {Red, Blue}) {
        for (int i = 1; i <= PieceCount(side); ++i) {
            const int square = SquaresOf(side)[i];
            if (square == NoSquare) continue;
            painter.drawPixmap(SquareLeft(square), SquareTop(square), BeadOf(side));
        }
    }
}

void BoardView::PaintMarks(QPainter& painter) {
    if (Held != NoSquare) painter.fillRect(SquareOutline(Held), HeldTint);
    if (Focus != NoSquare && hasFocus()) PaintFrame(painter, SquareOutline(Focus));
}

/// Each part is painted above the parts before it. Lines come after pieces, because the
/// grey background of a piece would cover them. Rings come after the marks.
void BoardView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), WindowGround);
    PaintPieces(painter);
    PaintOutline(painter, BoardBorder);
    PaintSquares(painter);
    PaintFieldLines(painter);
    PaintMarks(painter);
    PaintRings(painter);
    PaintCircle(painter, TurnCircle(Turn));
    PaintOutline(painter, MessageFrame);
}

}  // namespace brastel
