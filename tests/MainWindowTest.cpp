#include "play/GameState.h"
#include "tests/Rows.h"
#include "tests/WindowTest.h"

#include <QMenuBar>
#include <QScreen>

namespace brastel {

namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, EveryGestureDoesItsOwn) {
    for (const auto& [gestures, state] : RowsOf("/window.txt")) {
        Do(gestures);
        EXPECT_EQ(State(), state) << "after " << gestures;
    }
    EXPECT_EQ(Control<QAction>("mnu_Easy")->actionGroup(), nullptr) << "it would show bullets";
}

/// On a screen that is too small, the title bar and the menu are seen.
TEST_F(MainWindowTest, ItStandsInTheMiddleOfItsScreen) {
    for (QScreen* screen : QGuiApplication::screens()) {
        Window.setScreen(screen);
        Window.move(screen->geometry().topLeft() + QPoint(9, 9));
        Open(3);
        QCoreApplication::processEvents();
        const QRect frame = Window.frameGeometry();
        const QSize room = screen->size() - frame.size();
        EXPECT_EQ(frame.topLeft() - screen->geometry().topLeft(),
                  QPoint(qMax(0, room.width() / 2), qMax(0, room.height() / 2)));
    }
}

TEST_F(MainWindowTest, LeavingTheWindowEndsTheProgram) {
    const auto closeWhileThinking = [this] {
        Do("!69");
        WhileThinking([this] { Window.close(); });
        Do("67-59");
        EXPECT_EQ(Pos.MoveCount, 4) << "Red's move stands, Blue's is not begun";
    };
    for (const char* way : {"", "mnu_Exit", "Alt+O X"}) {
        Open(3);
        QTimer::singleShot(0, [&] { *way ? Do(way) : closeWhileThinking(); });
        QTimer::singleShot(10000, &Window, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QApplication::exec(), 0);
        EXPECT_FALSE(Window.isVisible());
    }
}

/// Clicks during a search used to be played after it, as moves that nobody had meant.
TEST_F(MainWindowTest, WhatIsDoneWhileTheComputerThinksIsDropped) {
    Open(3);
    Do("!69");
    // Also at the last moment.
    QTimer last;
    last.callOnTimeout([this] {
        if (IsThinking) Control<QAction>("mnu_NewGame")->trigger();
    });
    last.start(0);
    WhileThinking([this] {
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_EQ(State(), "3 Blue Backward Hint Thinking ...");
        Do("68-60 Left Space Right Space btn_Backward btn_Hint Alt+L");
        const QMenuBar* bar = Window.menuBar();
        auto* menu = Control<QMenu>("mnu_Level");
        EXPECT_FALSE(menu->isVisible());
        QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {},
                          bar->mapTo(&Window, bar->actionGeometry(menu->menuAction()).center()));
        EXPECT_FALSE(menu->isVisible());
        // Not by mouse or keyboard.
        Do("mnu_God() mnu_NewGame() mnu_GameSize()");
        // Pressed now, released after the move.
        Do("v70");
    });
    Do("67-59 ^62");
    EXPECT_EQ(State(), "4 Red Backward Hint");
    EXPECT_EQ(Pos.Board[68], Red);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

/// The second press of a double-click begins a drag, but not if it was released meanwhile.
TEST_F(MainWindowTest, AReleaseWhileTheComputerThinksIsNoticed) {
    Do("layout3 +69");
    WhileThinking([this] { DoAt('^', Centre(69)); });
    Do("\"69");
    EXPECT_EQ(State(), "2 Red Backward Hint");
}

}  // namespace

}  // namespace brastel
