#include "ui/MouseInput.h"

#include "ui/BoardView.h"
#include "ui/Outline.h"

#include <QGuiApplication>
#include <QPainter>

namespace brastel {

namespace {

/// Device pixels of the outline can lie beside its logical ones, where one is no whole number of
/// the others.
constexpr int OutlineMargin = 1;

/// The moving outline of a dragged piece. A widget of its own, above the controls too, so that Qt
/// repaints what it leaves behind.
class DragOutline : public QWidget {
public:
    explicit DragOutline(QWidget* parent) : QWidget(parent) {
        setObjectName("DragOutline");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(CellSize + 2 * OutlineMargin, CellSize + 2 * OutlineMargin);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        PaintOutline(painter, rect().marginsRemoved(QMargins() + OutlineMargin));
    }
};

bool IsFormPoint(const QWidget& form, QPoint point) {
    return form.rect().contains(point) && form.childAt(point) == nullptr;
}

}  // namespace

MouseInput::MouseInput(BoardView* view) : BoardInput(view), Outline(new DragOutline(view)) {
    // Moves without a button tell that a release went elsewhere.
    Form->setMouseTracking(true);
}

void MouseInput::Cancel() {
    Current = Gesture::None;
    Outline->hide();
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

/// Ends a gesture whose button is no longer down: its release went elsewhere, and the next one
/// would drop the piece wherever it comes.
void MouseInput::CancelIfLost(const QMouseEvent& event) {
    const Qt::MouseButtons heldBefore = event.buttons() & ~Qt::MouseButtons(event.button());
    if (!heldBefore.testFlag(Button)) Cancel();
}

void MouseInput::Press(const QMouseEvent& event) {
    CancelIfLost(event);
    if (Current != Gesture::None) return;
    const QPoint point = PixelOf(event);
    Button = event.button();
    Pressed = BoardView::PieceAt(point);
    Current = Pressed ? Gesture::Drag : Gesture::Click;
    if (!Pressed) return;
    const int square = SquareOf(Pressed);
    Grip = point - QPoint(SquareLeft(square), SquareTop(square));
    // The keyboard must reach the form, or Escape would not end the drag.
    Form->setFocus(Qt::MouseFocusReason);
    ShowOutline(point);
}

/// The second press of a double-click begins a gesture like any other press, unless the button went
/// up while the computer answered. A piece that the first click has only just added gets no ring.
void MouseInput::DoubleClick(const QMouseEvent& event) {
    CancelIfLost(event);
    if (Current != Gesture::None) return;
    const Piece piece = BoardView::PieceAt(PixelOf(event));
    if (piece && piece == Pressed) emit Piece_DblClick(piece);
    if (QGuiApplication::mouseButtons().testFlag(event.button())) Press(event);
}

void MouseInput::Move(const QMouseEvent& event) {
    CancelIfLost(event);
    if (Current == Gesture::Drag) ShowOutline(PixelOf(event));
}

void MouseInput::Release(const QMouseEvent& event) {
    if (Current == Gesture::None || event.button() != Button) return;
    const Gesture ended = Current;
    Cancel();
    const QPoint point = PixelOf(event);
    if (!IsFormPoint(*Form, point)) return;
    if (ended == Gesture::Drag) {
        Drop(Pressed, point);
    } else {
        emit Form_MouseUp(point.x(), point.y());
    }
}

void MouseInput::ShowOutline(QPoint pointer) {
    Outline->move(pointer - Grip - QPoint(OutlineMargin, OutlineMargin));
    Outline->raise();
    Outline->show();
}

}  // namespace brastel
