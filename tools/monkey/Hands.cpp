#include "tools/monkey/Hands.h"

#include "tools/monkey/EventLog.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>

namespace brastel {

namespace {

constexpr int Unhurried = 600;
constexpr int Quick = 30;

void Note(const QString& words, const QWindow* window) {
    const QString in = window == nullptr ? "nowhere" : window->objectName();
    NoteEvent((words + " in " + in).toStdString());
}

QString At(QPoint place) { return QString(" at %1,%2").arg(place.x()).arg(place.y()); }

bool IsThere(const QWindow* window) { return window != nullptr && window->isVisible(); }

bool IsBlocked(const QWindow& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->windowHandle() != &window;
}

}  // namespace

Hands::Hands() : Screen(QTest::createTouchDevice()) {}

// ---- Mouse ----

void Hands::Mouse(QEvent::Type type, QWindow* window, QPoint place, Qt::MouseButton button) {
    if (!IsThere(window)) return;
    qt_handleMouseEvent(window, place, window->mapToGlobal(place), Held, button, type,
                        QApplication::keyboardModifiers(), Milliseconds);
    QCoreApplication::processEvents();
}

void Hands::Press(QWindow* window, QPoint place, Qt::MouseButton button) {
    Milliseconds += Unhurried;
    PressAgain(window, place, button);
}

void Hands::PressAgain(QWindow* window, QPoint place, Qt::MouseButton button) {
    Note(QString("press %1").arg(button) + At(place), window);
    if (Held == Qt::NoButton) Grabber = window;
    Held |= button;
    Milliseconds += Quick;
    Mouse(QEvent::MouseButtonPress, window, place, button);
}

void Hands::Move(QWindow* window, QPoint place) {
    Note("move" + At(place), window);
    Milliseconds += Quick;
    Mouse(QEvent::MouseMove, window, place, Qt::NoButton);
}

void Hands::Release(QWindow* window, QPoint place, Qt::MouseButton button) {
    Note(QString("release %1").arg(button) + At(place), window);
    Held &= ~Qt::MouseButtons(button);
    Milliseconds += Quick;
    Mouse(QEvent::MouseButtonRelease, window, place, button);
}

void Hands::Wheel(QWindow* window, QPoint place, int delta) {
    Note("wheel" + At(place), window);
    if (!IsThere(window) || IsBlocked(*window)) return;
    QWheelEvent event(place, window->mapToGlobal(place), {}, {0, delta}, Held, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(window, &event);
    QCoreApplication::processEvents();
}

void Hands::Tap(QWindow* window, QPoint place) {
    Note("tap" + At(place), window);
    if (!IsThere(window)) return;
    const QPointer<QWindow> tapped = window;
    QTest::touchEvent(window, Screen.get()).press(0, place);
    if (IsThere(tapped)) QTest::touchEvent(tapped, Screen.get()).release(0, place);
}

// ---- Keyboard ----

void Hands::Key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QWindow* window = QGuiApplication::focusWindow();
    const QString way = type == QEvent::KeyPress ? "key %1 + %2" : "key %1 + %2 up";
    Note(way.arg(modifiers, 0, 16).arg(key, 0, 16), window);
    if (!IsThere(window)) return;
    qt_handleKeyEvent(window, type, key, modifiers, text);
    QCoreApplication::processEvents();
}

/// Alt has an effect of its own, and can close the menu that had the keyboard.
void Hands::KeyDown(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    if (modifiers.testFlag(Qt::AltModifier)) Key(QEvent::KeyPress, Qt::Key_Alt, {}, {});
    Key(QEvent::KeyPress, key, modifiers, text);
}

void Hands::KeyUp(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    Key(QEvent::KeyRelease, key, modifiers, text);
    if (modifiers.testFlag(Qt::AltModifier)) Key(QEvent::KeyRelease, Qt::Key_Alt, {}, {});
}

void Hands::Commit(const QString& text) {
    Note("text " + text, QGuiApplication::focusWindow());
    QInputMethodEvent event;
    event.setCommitString(text);
    QObject* focus = QGuiApplication::focusObject();
    if (focus != nullptr) QApplication::sendEvent(focus, &event);
    QCoreApplication::processEvents();
}

// ---- Window manager ----

void Hands::Activate(QWindow* window) {
    Note("activate", window);
    if (IsThere(window)) window->requestActivate();
    QCoreApplication::processEvents();
}

void Hands::LeaveWindow(QWindow* window) {
    Note("leave", window);
    QEvent event(QEvent::Leave);
    if (IsThere(window)) QApplication::sendEvent(window, &event);
    QCoreApplication::processEvents();
}

void Hands::Close(QWindow* window) {
    Note("close", window);
    if (IsThere(window) && !IsBlocked(*window)) window->close();
    QCoreApplication::processEvents();
}

}  // namespace brastel
