#pragma once

#include "core/Position.h"
#include "ui/MainWindow.h"

#include <QImage>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <string>
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

    static QPoint Centre(int square);
    QPoint InWindow(QPoint point) { return Form->mapTo(&Window, point); }
    /// One of the gestures below at a point of the view.
    void DoAt(char gesture, QPoint point, Qt::MouseButton button = Qt::LeftButton);

    /// Does one thing after the other. Of a place, which is a square or "x,y": +68 clicks, !68
    /// double-clicks, v68 presses, "68 presses at once after a click, ^68 releases, >68 moves the
    /// mouse, ~68 notes the cursor, too, ?68 notes the tool tip, 68-60 drags; with m or r behind,
    /// by the middle or right button. The name of a button or menu item clicks it; with () behind,
    /// it is called without mouse and keys. "layout3" opens the window with that layout, "load"
    /// makes the game just played the loaded one. "elsewhere" opens another window, "lost" releases
    /// the mouse there, "unfocus" and "hide" are what the system may do at any time. All else are
    /// keys, as Alt+O; Left& is one that is held down.
    void Do(const std::string& gestures);
    /// What the window shows: entries played, who is to move, the visible controls, the level but
    /// Easy, what the keyboard points at and holds, what is wrong on the board, the message, and
    /// what was noted since the last time: dialogs that opened, and a * for each beep.
    std::string State();

    // ---- Dialogs ----
    using Answer = std::function<void(QWidget& dialog)>;
    /// Chooses a menu item and gives each dialog or box that then opens the next of the answers.
    /// One without an answer, and an answer without a dialog, is a failure.
    void ChooseAndAnswer(const std::string& item, std::vector<Answer> answers);

    // ---- What the window shows ----
    template <typename T>
    T* Control(const char* name) {
        return Window.findChild<T*>(name);
    }
    QImage Picture() { return Form->grab().toImage(); }

    /// Runs something once the computer thinks, in the pause before its search. It is a failure if
    /// the computer does not think until the test ends.
    void WhileThinking(const std::function<void()>& action);

    MainWindow Window;
    QWidget* Form;

private:
    static QPoint PlaceOf(const std::string& text);
    void DoNamed(const std::string& name);
    void PollDialogs();

    std::vector<Answer> Answers;
    QStringList Noted;
    QTimer ThinkingTimer;
    QWindow Elsewhere;
};

}  // namespace brastel
