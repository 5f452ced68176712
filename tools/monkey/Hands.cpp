#include "tools/monkey/Hands.h"

#include "tools/monkey/Aims.h"
#include "tools/monkey/EventLog.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

namespace brastel {

namespace {

constexpr int Unhurried = 600;
constexpr int Quick = 30;

Qt::MouseButtons Held;
/// The window that has the mouse as long as a button is held.
QPointer<QWindow> Grabber;
int Milliseconds = 0;

QWindow* MouseTarget() {
    const bool isGrabbed = Held != Qt::NoButton && Grabber != nullptr;
    return isGrabbed ? Grabber.data() : Top().windowHandle();
}

bool IsBlocked(const QWindow* window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->windowHandle() != window;
}

/// Notes an event, and lets it come to the window if that is there.
template <typename Event>
void Send(const QString& words, QWindow* window, Event event) {
    const QString name = window == nullptr ? "nowhere" : window->objectName();
    NoteEvent((words + " in " + name).toStdString());
    if (window == nullptr || !window->isVisible()) return;
    event();
    QCoreApplication::processEvents();
}

QString At(QPoint place) { return QString(" at %1,%2").arg(place.x()).arg(place.y()); }

void SendMouse(const QString& words, QEvent::Type type, QWindow* window, QPoint place,
               Qt::MouseButton button) {
    Milliseconds += Quick;
    Send(words + At(place), window, [=] {
        qt_handleMouseEvent(window, place, window->mapToGlobal(place), Held, button, type,
                            QApplication::keyboardModifiers(), Milliseconds);
    });
}

void SendKey(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QWindow* window = QGuiApplication::focusWindow();
    const QString words = type == QEvent::KeyPress ? "key %1 + %2" : "key %1 + %2 up";
    Send(words.arg(modifiers, 0, 16).arg(key, 0, 16), window,
         [&] { qt_handleKeyEvent(window, type, key, modifiers, text); });
}

}  // namespace

// ---- Mouse ----

Qt::MouseButtons HeldButtons() { return Held; }

void Press(QPoint place, Qt::MouseButton button) {
    Milliseconds += Unhurried;
    PressAgain(place, button);
}

void PressAgain(QPoint place, Qt::MouseButton button) {
    QWindow* window = MouseTarget();
    if (Held == Qt::NoButton) Grabber = window;
    Held |= button;
    SendMouse(QString("press %1").arg(button), QEvent::MouseButtonPress, window, place, button);
}

void Move(QPoint place) {
    SendMouse("move", QEvent::MouseMove, MouseTarget(), place, Qt::NoButton);
}

void Release(QPoint place, Qt::MouseButton button) {
    QWindow* window = MouseTarget();
    Held &= ~Qt::MouseButtons(button);
    SendMouse(QString("release %1").arg(button), QEvent::MouseButtonRelease, window, place, button);
}

void ReleaseOne(QPoint place) {
    const unsigned held = Held.toInt();
    Release(place, static_cast<Qt::MouseButton>(held & -held));
}

void Wheel(QPoint place, int delta) {
    QWindow* window = MouseTarget();
    Send("wheel" + At(place), window, [=] {
        QWheelEvent event(place, window->mapToGlobal(place), {}, {0, delta}, Held, {},
                          Qt::NoScrollPhase, false);
        if (!IsBlocked(window)) QApplication::sendEvent(window, &event);
    });
}

void Tap(QPoint place) {
    static QPointingDevice* const screen = QTest::createTouchDevice();
    const QPointer<QWindow> window = MouseTarget();
    Send("tap" + At(place), window, [=] {
        QTest::touchEvent(window, screen).press(0, place);
        if (window != nullptr && window->isVisible()) {
            QTest::touchEvent(window, screen).release(0, place);
        }
    });
}

// ---- Keyboard ----

/// Alt has an effect of its own, and can close the menu that had the keyboard.
void KeyDown(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    if (modifiers.testFlag(Qt::AltModifier)) SendKey(QEvent::KeyPress, Qt::Key_Alt, {}, {});
    SendKey(QEvent::KeyPress, key, modifiers, text);
}

void KeyUp(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    SendKey(QEvent::KeyRelease, key, modifiers, text);
    if (modifiers.testFlag(Qt::AltModifier)) SendKey(QEvent::KeyRelease, Qt::Key_Alt, {}, {});
}

void Commit(const QString& text) {
    Send("text " + text, QGuiApplication::focusWindow(), [&] {
        QInputMethodEvent event;
        event.setCommitString(text);
        QObject* focus = QGuiApplication::focusObject();
        if (focus != nullptr) QApplication::sendEvent(focus, &event);
    });
}

// ---- Window manager ----

void Activate(QWindow* window) {
    Send("activate", window, [=] { window->requestActivate(); });
}

void Restore(QWindow* window) {
    Send("restore", window, [=] { window->showNormal(); });
}

void LeaveWindow(QWindow* window) {
    QEvent event(QEvent::Leave);
    Send("leave", window, [&] { QApplication::sendEvent(window, &event); });
}

void Close(QWindow* window) {
    Send("close", window, [=] {
        if (!IsBlocked(window)) window->close();
    });
}

}  // namespace brastel
