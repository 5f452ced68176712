#pragma once

#include "core/Position.h"
#include "ui/MainWindow.h"

#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>

namespace brastel {

/// The real window, driven by events that go through the window system's queue as those of a mouse
/// and a keyboard do.
class WindowTest : public testing::Test {
protected:
    WindowTest();

    /// Opens the window with a start layout, without the dialog.
    void Open(int layout);
    /// Opens it for two people and places both rings by double-clicks.
    void OpenForTwo(int layout, int redRing, int blueRing);

    // ---- Mouse; points are in view coordinates ----
    static QPoint Centre(int square);
    void Press(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    void Move(QPoint point);
    void Release(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton);
    void Drag(int from, int to) { Drag(Centre(from), Centre(to)); }
    void DoubleClick(int square);
    void ClickAt(QPoint point);
    void ClickButton(const char* name);
    void ChooseFromMenu(const char* menu, const char* item);
    /// Chooses Change Piece Number and leaves the dialog by the named button.
    void ChoosePieceNumber(const char* button);

    // ---- What the window shows ----
    template <typename T>
    T* Control(const char* name) {
        return Window.findChild<T*>(name);
    }
    bool IsShown(const char* name) { return Control<QWidget>(name)->isVisible(); }
    QString Message() { return Control<QLabel>("lbl_Message")->text().trimmed(); }
    QImage Picture() { return Form->grab().toImage(); }
    bool IsItemChecked(const char* name) { return Control<QAction>(name)->isChecked(); }
    /// Every square shows the piece and ring that the position has there, and nothing else.
    void ExpectViewShowsPosition();

    /// Runs something in the middle of the computer's pause.
    static void WhileThinking(const std::function<void()>& action);

    MainWindow Window;
    QWidget* Form;

private:
    QPoint InWindow(QPoint point) { return Form->mapTo(&Window, point); }
};

}  // namespace brastel
