#include "ui/KeyboardInput.h"

#include "play/GameState.h"
#include "play/HumanAction.h"
#include "play/Words.h"
#include "ui/MouseInput.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace brastel {

namespace {

struct Binding {
    int Key;
    /// True if the key repeats while it is held down.
    bool Repeats;
    void (*Action)(KeyboardInput&);
};

/// Moves the focus one square, unless it is at the edge.
template <int Rows, int Columns>
void Step(KeyboardInput& keyboard) {
    const int square = keyboard.FocusSquare();
    keyboard.FocusOn(SquareAt(Row(square) + Rows, Column(square) + Columns));
}

constexpr auto Press = [](KeyboardInput& keyboard) { keyboard.Press(); };

constexpr Binding Bindings[] = {
    {Qt::Key_Up, true, Step<-1, 0>},
    {Qt::Key_Down, true, Step<1, 0>},
    {Qt::Key_Left, true, Step<0, -1>},
    {Qt::Key_Right, true, Step<0, 1>},
    {Qt::Key_Return, false, Press},
    {Qt::Key_Enter, false, Press},
    {Qt::Key_Space, false, Press},
    {Qt::Key_Select, false, Press},
    {Qt::Key_R, false, [](KeyboardInput& keyboard) { keyboard.DoubleClick(); }},
    {Qt::Key_Escape, false, [](KeyboardInput& keyboard) { keyboard.PutBack(); }},
};

bool IsByKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

QString PieceName(int square) { return QString::fromStdString(PieceInWords(PieceOn(square))); }

}  // namespace

KeyboardInput::KeyboardInput(BoardView* view, MouseInput* mouse) : BoardInput(view), Mouse(mouse) {
    FocusTimer.setSingleShot(true);
    FocusTimer.callOnTimeout(this, &KeyboardInput::SendFocus);
}

bool KeyboardInput::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            return Handle(static_cast<QKeyEvent&>(*event));
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            FollowMouse(PixelOf(static_cast<QMouseEvent&>(*event)));
            return false;
        case QEvent::FocusIn:
            if (IsByKeyboard(static_cast<QFocusEvent&>(*event).reason())) IsFocusShown = true;
            ShowFocus();
            // After Qt has notified assistive technology that the whole view has the focus.
            FocusTimer.start(0);
            return false;
        case QEvent::FocusOut:
        case QEvent::WindowDeactivate:
        case QEvent::Hide:
            PutBack();
            return false;
        default:
            return false;
    }
}

/// Keys with Control, Alt or Meta belong to the menus and the desktop.
bool KeyboardInput::Handle(const QKeyEvent& event) {
    constexpr auto Foreign = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const auto binding =
        std::find_if(std::begin(Bindings), std::end(Bindings),
                     [&event](const Binding& candidate) { return candidate.Key == event.key(); });
    if (binding == std::end(Bindings) || (event.modifiers() & Foreign)) return false;
    if (event.isAutoRepeat() && !binding->Repeats) return true;
    Mouse->Cancel();
    // Escape can also end a drag of the mouse, so it does not show the focus.
    if (event.key() != Qt::Key_Escape) IsFocusShown = true;
    binding->Action(*this);
    ShowFocus();
    return true;
}

void KeyboardInput::FollowMouse(QPoint point) {
    PutBack();
    IsFocusShown = false;
    if (IsBoardPoint(point.x(), point.y())) FocusOn(SquareFromPoint(point.x(), point.y()));
    ShowFocus();
}

void KeyboardInput::SendFocus() {
    if (Form->hasFocus()) emit FocusMoved(Focus);
}

void KeyboardInput::ShowFocus() { Form->ShowFocus(IsFocusShown ? Focus : NoSquare); }

QPoint KeyboardInput::FocusCorner() const { return {SquareLeft(Focus), SquareTop(Focus)}; }

void KeyboardInput::FocusOn(int square) {
    if (IsThinking || !IsOnBoard(square)) return;
    Focus = square;
    ShowFocus();
    SendFocus();
}

void KeyboardInput::Try(const std::function<void()>& gesture, const QString& failure) {
    const Position before = Pos;
    gesture();
    if (Pos == before) emit Announced(failure);
}

void KeyboardInput::Press() {
    if (IsThinking) return;
    Mouse->Cancel();
    if (Held != NoSquare) return DropHere();
    const QPoint corner = FocusCorner();
    if (IsPieceAt(corner.x(), corner.y())) return PickUp();
    Try([&] { ClickBoard(corner.x(), corner.y()); }, "nothing here");
}

void KeyboardInput::PickUp() {
    Held = Focus;
    Form->ShowHeld(Held);
    emit Announced(PieceName(Held) + " picked up");
}

void KeyboardInput::DropHere() {
    const Piece held = PieceOn(Held);
    const QString name = PieceName(Held);
    Release();
    Try([&] { Drop(held, FocusCorner()); }, name + " stays");
}

void KeyboardInput::DoubleClick() {
    if (IsThinking) return;
    Mouse->Cancel();
    PutBack();
    const Piece piece = PieceOn(Focus);
    if (!piece) return emit Announced("nothing here");
    DoubleClickPiece(piece);
}

void KeyboardInput::PutBack() {
    if (Held == NoSquare) return;
    emit Announced(PieceName(Held) + " put back");
    Release();
}

void KeyboardInput::Release() {
    Held = NoSquare;
    Form->ShowHeld(NoSquare);
}

}  // namespace brastel
