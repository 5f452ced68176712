#include "tests/WindowTest.h"

#include "core/StartPosition.h"
#include "play/GameState.h"
#include "tests/ShownPosition.h"

#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include <algorithm>

namespace brastel {

WindowTest::WindowTest() : Form(Window.centralWidget()) { Open(FreeSetupLayout); }

WindowTest::~WindowTest() {
    EXPECT_FALSE(ThinkingTimer.isActive()) << "the computer never thought";
}

void WindowTest::Open(int layout) {
    SelectStartLayout(layout);
    Window.OpenMainWindow();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window));
}

void WindowTest::OpenForTwo(int layout, int redRing, int blueRing) {
    Open(layout);
    ChooseFromMenu("mnu_Level", "mnu_TwoPlayer");
    DoubleClick(redRing);
    DoubleClick(blueRing);
    ASSERT_EQ(Pos.MoveCount, 3);
}

QPoint WindowTest::Centre(int square) {
    return {SquareLeft(square) + CellSize / 2, SquareTop(square) + CellSize / 2};
}

void WindowTest::Press(QPoint point, Qt::MouseButton button) {
    QTest::mousePress(Window.windowHandle(), button, {}, InWindow(point));
}

void WindowTest::Move(QPoint point) { QTest::mouseMove(Window.windowHandle(), InWindow(point)); }

void WindowTest::Release(QPoint point, Qt::MouseButton button) {
    QTest::mouseRelease(Window.windowHandle(), button, {}, InWindow(point));
}

void WindowTest::Drag(QPoint from, QPoint to, Qt::MouseButton button) {
    Press(from, button);
    Move((from + to) / 2);
    Move(to);
    Release(to, button);
}

void WindowTest::DoubleClick(int square) {
    QTest::mouseDClick(Window.windowHandle(), Qt::LeftButton, {}, InWindow(Centre(square)));
}

void WindowTest::ClickAt(QPoint point) {
    Press(point);
    Release(point);
}

void WindowTest::ClickButton(const char* name) {
    ClickAt(Control<QWidget>(name)->geometry().center());
}

void WindowTest::ChooseFromMenu(const char* menu, const char* item) {
    auto* popup = Control<QMenu>(menu);
    QMenuBar* bar = Window.menuBar();
    const QPoint entry = bar->actionGeometry(popup->menuAction()).center();
    QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, bar->mapTo(&Window, entry));
    ASSERT_TRUE(popup->isVisible());
    const QPoint place = popup->actionGeometry(Control<QAction>(item)).center();
    QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, place);
}

/// Every poll is a timer of its own: a timer does not fire again while its answer still runs, and
/// answers open further boxes.
void WindowTest::PollDialogs() {
    QTimer::singleShot(5, &Window, [this] {
        if (!IsPolling) return;
        PollDialogs();
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog->property("answered").toBool()) return;
        dialog->setProperty("answered", true);
        if (Answers.empty()) {
            ADD_FAILURE() << "unexpected: " << dialog->windowTitle().toStdString();
            dialog->close();
            return;
        }
        const Answer answer = Answers.front();
        Answers.erase(Answers.begin());
        const QPointer<QWidget> guard(dialog);
        answer(*dialog);
        if (guard == nullptr || !dialog->isVisible()) return;
        ADD_FAILURE() << "left open: " << dialog->windowTitle().toStdString();
        dialog->close();
    });
}

void WindowTest::ChooseAndAnswer(const char* menu, const char* item, std::vector<Answer> answers) {
    Answers = std::move(answers);
    IsPolling = true;
    PollDialogs();
    ChooseFromMenu(menu, item);
    IsPolling = false;
    EXPECT_TRUE(Answers.empty()) << "a dialog did not open";
}

void WindowTest::ClickIn(QWidget& dialog, const char* name) {
    auto* control = dialog.findChild<QWidget*>(name);
    const QPoint centre = control->mapTo(&dialog, control->rect().center());
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, centre);
}

void WindowTest::PressByEnter(QWidget& dialog, const char* name) {
    auto* button = dialog.findChild<QPushButton*>(name);
    if (button == nullptr) {
        dialog.close();
        return;
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(dialog.focusWidget()->objectName(), "btn_OK");
    button->setFocus();
    EXPECT_FALSE(button->isDefault());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
}

void WindowTest::ChoosePieceNumber(const char* button) {
    ChooseAndAnswer("mnu_Options", "mnu_GameSize", {[this, button](QWidget& dialog) {
                        EXPECT_FALSE(Window.isVisible());
                        EXPECT_EQ(dialog.windowTitle(), "About Orvel Geme");
                        EXPECT_EQ(dialog.size(), QSize(477, 353));
                        PressByEnter(dialog, button);
                    }});
    EXPECT_TRUE(Window.isVisible());
}

bool WindowTest::IsItemChecked(const char* name) {
    const QList<QAction*> items = Control<QMenu>("mnu_Level")->actions();
    const auto checked = std::ranges::count_if(items, &QAction::isChecked);
    return checked == 1 && Control<QAction>(name)->isChecked();
}

QImage WindowTest::OnScreen() {
    QCoreApplication::processEvents();
    return Window.screen()->grabWindow(Window.winId()).toImage();
}

void WindowTest::ExpectViewShowsPosition() { EXPECT_EQ(FirstWrongShown(Picture()), ""); }

/// It waits for the computer, not for a time: on a slow machine the gesture that makes the computer
/// think can take longer than any.
void WindowTest::WhileThinking(const std::function<void()>& action) {
    ThinkingTimer.callOnTimeout(&ThinkingTimer, [this, action] {
        if (!IsThinking) return;
        ThinkingTimer.stop();
        action();
    });
    ThinkingTimer.start(1);
}

}  // namespace brastel
