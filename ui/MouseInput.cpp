#include "ui/MouseInput.h"

#include "core/Opening.h"
#include "play/HumanAction.h"
#include "ui/BoardView.h"
#include "ui/Outline.h"

#include <QGuiApplication>
#include <QPainter>

namespace brastel {

namespace {

/// The moving outline of a dragged piece. It is a widget, above the controls too, so that Qt
/// repaints the places that it leaves.
class DragOutline : public QWidget {
public:
    explicit DragOutline(QWidget* parent) : QWidget(parent) {
        setObjectName("DragOutline");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        const int edge = CellSize + 1 + 2 * FrameMargin;
        resize(edge, edge);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        PaintFrame(painter, rect().marginsRemoved(QMargins() + FrameMargin));
    }
};

/// An open hand over a piece that can be dragged, a pointing hand over a piece that can get the
/// ring.
Qt::CursorShape CursorOver(Piece piece) {
    if (MayPlaceRing(piece)) return Qt::PointingHandCursor;
    const int square = SquareOf(piece);
    const bool mayAct = BothRingsPlaced() && piece.Side == Pos.SideToMove &&
                        (InField(square) || IsRingSquare(square));
    return mayAct ? Qt::OpenHandCursor : Qt::ArrowCursor;
}

bool IsFormPoint(const QWidget& form, QPoint point) {
    return form.rect().contains(point) && form.childAt(point) == nullptr;
}

}  // namespace

MouseInput::MouseInput(BoardView* view) : BoardInput(view), Outline(new DragOutline(view)) {
    // Moves without a button set the cursor and show that a release was sent to another window.
    Form->setMouseTracking(true);
    for (QWidget* control : Form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        control->setCursor(Qt::ArrowCursor);
    }
}

void MouseInput::Cancel() {
    if (Current == Gesture::Drag) {
        Outline->hide();
        Form->ShowHeld(NoSquare);
    }
    Current = Gesture::None;
    ShowCursor();
}

void MouseInput::ShowCursor() {
    const auto shape =
        Current == Gesture::Drag ? Qt::ClosedHandCursor : CursorOver(BoardView::PieceAt(Pointer));
    if (Form->cursor().shape() != shape) Form->setCursor(shape);
}

bool MouseInput::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            Press(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonDblClick:
            DoubleClick(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseMove:
            Move(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonRelease:
            Release(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::FocusOut:
        case QEvent::WindowDeactivate:
        case QEvent::Hide:
            Cancel();
            return false;
        default:
            return false;
    }
}

/// Ends a gesture whose button is no longer down. Its release was sent to another window; without
/// this, the next release would drop the piece.
void MouseInput::Follow(const QMouseEvent& event) {
    Pointer = PixelOf(event);
    const Qt::MouseButtons heldBefore = event.buttons() & ~Qt::MouseButtons(event.button());
    if (!heldBefore.testFlag(Button)) Cancel();
}

void MouseInput::Press(const QMouseEvent& event) {
    Follow(event);
    if (Current != Gesture::None) return;
    Button = event.button();
    Pressed = BoardView::PieceAt(Pointer);
    if (Pressed) {
        TakePiece();
    } else {
        Current = Gesture::Click;
    }
}

void MouseInput::TakePiece() {
    const int square = SquareOf(Pressed);
    DragOffset = Pointer - QPoint(SquareLeft(square), SquareTop(square));
    Current = Gesture::Drag;
    Form->ShowHeld(square);
    ShowOutline();
    ShowCursor();
}

/// The second press of a double-click begins a gesture like any other press, unless the button was
/// released while the computer answered. A piece that the first click added does not get the ring.
void MouseInput::DoubleClick(const QMouseEvent& event) {
    Follow(event);
    if (Current != Gesture::None) return;
    const Piece piece = BoardView::PieceAt(Pointer);
    if (piece && piece == Pressed) DoubleClickPiece(piece);
    if (QGuiApplication::mouseButtons().testFlag(event.button())) Press(event);
}

void MouseInput::Move(const QMouseEvent& event) {
    Follow(event);
    if (Current == Gesture::Drag) ShowOutline();
    ShowCursor();
}

void MouseInput::Release(const QMouseEvent& event) {
    Pointer = PixelOf(event);
    if (Current == Gesture::None || event.button() != Button) return;
    const Gesture ended = Current;
    Cancel();
    if (!IsFormPoint(*Form, Pointer)) return;
    if (ended == Gesture::Drag) {
        Drop(Pressed, Pointer);
    } else {
        ClickBoard(Pointer.x(), Pointer.y());
    }
}

void MouseInput::ShowOutline() {
    Outline->move(Pointer - DragOffset - QPoint(FrameMargin, FrameMargin));
    Outline->show();
}

}  // namespace brastel
