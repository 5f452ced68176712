#pragma once

#include "core/Position.h"
#include "ui/MainWindow.h"

#include <QImage>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace brastel {

/// The real window, driven by events that go through the window system's queue as those of a mouse
/// and a keyboard do.
class WindowTest : public testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;

    /// Opens the window with a start layout, without the dialog.
    void Open(int layout);
    /// Opens it for two people and places both rings by double-clicks.
    void OpenForTwo(int layout, int redRing, int blueRing);

    // ---- Mouse; points are in view coordinates ----
    static QPoint Centre(int square);
    QPoint InWindow(QPoint point) { return Form->mapTo(&Window, point); }
    void Press(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    void Move(QPoint point);
    void Release(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton);
    void Drag(int from, int to) { Drag(Centre(from), Centre(to)); }
    void DoubleClick(int square);
    void ClickAt(QPoint point);
    void ClickButton(const char* name);
    void ChooseFromMenu(const char* menu, const char* item);

    // ---- Dialogs ----
    using Answer = std::function<void(QWidget& dialog)>;
    /// Chooses a menu item and gives each dialog or box that then opens the next of the answers.
    /// One without an answer, and an answer without a dialog, is a failure.
    void ChooseAndAnswer(const char* menu, const char* item, std::vector<Answer> answers);
    /// Chooses Change Piece Number and leaves the dialog by the named button.
    void ChoosePieceNumber(const char* button);
    /// Clicks a control of a dialog with the mouse.
    static void ClickIn(QWidget& dialog, const char* name);
    /// Enter on a button, which in the piece-number dialog once pressed OK. Closes a dialog without
    /// such a button.
    static void PressByEnter(QWidget& dialog, const char* name);

    // ---- What the window shows ----
    template <typename T>
    T* Control(const char* name) {
        return Window.findChild<T*>(name);
    }
    bool IsShown(const char* name) { return Control<QWidget>(name)->isVisible(); }
    QString Message() { return Control<QLabel>("lbl_Message")->text().trimmed(); }
    QImage Picture() { return Form->grab().toImage(); }
    /// What has been painted so far, and not what would be painted now.
    QImage OnScreen();
    /// The item of the Level menu has a check mark, alone.
    bool IsItemChecked(const char* name);
    /// Every square shows the piece and ring that the position has there, and nothing else.
    void ExpectViewShowsPosition();

    /// Runs something once the computer thinks, in the pause before its search. It is a failure if
    /// the computer does not think until the test ends.
    void WhileThinking(const std::function<void()>& action);

    MainWindow Window;
    QWidget* Form;

private:
    void PollDialogs();

    std::vector<Answer> Answers;
    bool IsPolling = false;
    QTimer ThinkingTimer;
};

}  // namespace brastel
