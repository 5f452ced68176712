#include "tools/monkey/Events.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <iostream>

namespace brastel {

namespace {

/// Prints an event. True if the window exists and is visible.
bool Reaches(const QWindow* window, const QString& words) {
    const QString name = window == nullptr ? "nowhere" : window->objectName();
    std::cerr << EventName << words.toStdString() << " in " << name.toStdString() << '\n';
    return window != nullptr && window->isVisible();
}

/// Mouse events go to the window in which a button was pressed, until it is released.
void SendMouse(const char* words, QTest::MouseAction action, QPoint place, Qt::MouseButton button) {
    static QPointer<QWindow> window;
    const bool isHeld = QTestPrivate::qtestMouseButtons != Qt::NoButton;
    const bool isThere = window != nullptr && window->isVisible();
    if (!isHeld || !isThere) window = Top().windowHandle();
    const QString text = QString("%1 %2 at %3,%4").arg(words).arg(button).arg(place.x());
    if (Reaches(window, text.arg(place.y()))) QTest::mouseEvent(action, window, button, {}, place);
}

}  // namespace

QWidget& Top() {
    if (QWidget* popup = QApplication::activePopupWidget()) return *popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return *modal;
    return *GameWindow;
}

void Press(QPoint place, Qt::MouseButton button, bool again) {
    if (again) QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    SendMouse("press", QTest::MousePress, place, button);
}

void Move(QPoint place) { SendMouse("move", QTest::MouseMove, place, Qt::NoButton); }

void Release(QPoint place, Qt::MouseButton button) {
    SendMouse("release", QTest::MouseRelease, place, button);
}

void Tap(QPoint place) {
    static QPointingDevice* const screen = QTest::createTouchDevice();
    QWindow* window = Top().windowHandle();
    if (!Reaches(window, QString("tap at %1,%2").arg(place.x()).arg(place.y()))) return;
    QTest::touchEvent(window, screen).press(0, place);
    QTest::touchEvent(Top().windowHandle(), screen).release(0, place);
}

void Type(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QWindow* window = QGuiApplication::focusWindow();
    const QString words = QString("key %1 + %2 ").arg(modifiers, 0, 16).arg(key, 0, 16) + text;
    if (!Reaches(window, words)) return;
    QTest::sendKeyEvent(QTest::Click, window, static_cast<Qt::Key>(key), text, modifiers);
}

void Activate(QWindow* window) {
    if (Reaches(window, "activate")) window->requestActivate();
}

void ChangeWindow(int how, QPoint by) {
    QWidget& top = Top();
    if (!Reaches(top.windowHandle(), QString("change %1").arg(how))) return;
    if (top.windowType() == Qt::Popup) return;
    if (how == 0) top.resize(by.x(), by.y());
    if (how == 1) top.move(by);
    if (how == 2) top.showMinimized();
    if (how == 3) top.showNormal();
}

void Close() {
    QWindow* window = Top().windowHandle();
    if (Reaches(window, "close")) window->close();
}

}  // namespace brastel
