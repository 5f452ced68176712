#include "play/GameState.h"
#include "tests/WindowTest.h"

#include <QMenuBar>

namespace brastel {

namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, TheFirstWindowIsAnEmptyFreeSetup) {
    ExpectViewShowsPosition();
    EXPECT_EQ(Form->size(), QSize(930, 778));
    EXPECT_EQ(Window.minimumSize(), Window.maximumSize());
    EXPECT_TRUE(IsShown("btn_Hint"));
    for (const char* hidden :
         {"btn_Forward", "btn_Backward", "btn_Undo", "lbl_Score0", "Text1_1", "Text2_0"}) {
        EXPECT_FALSE(IsShown(hidden)) << hidden;
    }
    EXPECT_TRUE(IsItemChecked("mnu_Easy"));
    EXPECT_EQ(Control<QAction>("mnu_Easy")->actionGroup(), nullptr) << "it would show bullets";
    ClickButton("btn_Hint");
    EXPECT_EQ(Pos.MoveCount, 1) << "there is nobody to play for yet";
}

/// The window is larger than the screen of these tests.
TEST_F(MainWindowTest, ASmallScreenHasTheTitleBarAndMenuOnIt) {
    const QRect screen = Window.screen()->availableGeometry();
    ASSERT_GT(Window.width(), screen.width());
    EXPECT_EQ(Window.frameGeometry().topLeft(), screen.topLeft());
}

TEST_F(MainWindowTest, ThePieceNumberDialogChangesTheLayout) {
    const std::pair<const char*, int> Choices[] = {{"btn_GameSize3", 8}, {"btn_GameSize5", 12},
                                                   {"btn_GameSize0", 2}, {"btn_OK", 2},
                                                   {"close box", 2},     {"btn_GameSize6", 0}};
    for (const auto& [button, count] : Choices) {
        ChooseFromMenu("mnu_Level", "mnu_Master");
        ChooseFromMenu("mnu_Level", "mnu_Master");
        EXPECT_TRUE(IsItemChecked("mnu_Master"));
        ChoosePieceNumber(button);
        EXPECT_EQ(Pos.RedCount, count) << button;
        EXPECT_EQ(Pos.BlueCount, count) << button;
        EXPECT_EQ(Level, 1) << "a window built anew starts at the lowest strength";
        EXPECT_TRUE(IsItemChecked("mnu_Easy"));
        ExpectViewShowsPosition();
    }
}

/// The keyboard went on to the Hint button when Backward disappeared, and the next press of the
/// space bar played a move.
TEST_F(MainWindowTest, SteppingBackWithTheSpaceBarStopsAtTheStart) {
    OpenForTwo(3, 68, 44);
    Control<QWidget>("btn_Backward")->setFocus();
    for (int n = 0; n < 4; ++n) QTest::keyClick(Window.windowHandle(), Qt::Key_Space);
    EXPECT_EQ(Pos.MoveCount, 1);
}

/// Clicks of impatient players used to be played after the search, as moves nobody had meant.
TEST_F(MainWindowTest, WhatIsDoneWhileTheComputerThinksIsDropped) {
    Open(3);
    DoubleClick(69);
    const Int16 levelBefore = Level;
    WhileThinking([this] {
        Drag(68, 60);
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Space, Qt::Key_Right, Qt::Key_Space}) {
            QTest::keyClick(Window.windowHandle(), key);
        }
        ClickButton("btn_Backward");
        ClickButton("btn_Hint");
        const QMenuBar* bar = Window.menuBar();
        auto* menu = Control<QMenu>("mnu_Level");
        QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {},
                          bar->mapTo(&Window, bar->actionGeometry(menu->menuAction()).center()));
        EXPECT_FALSE(menu->isVisible());
        // By a way that is neither mouse nor key.
        for (const char* item : {"mnu_God", "mnu_NewGame", "mnu_GameSize"}) {
            Control<QAction>(item)->trigger();
        }
        // Pressed now, released after the move.
        Press(Centre(70));
    });
    Drag(67, 59);
    Release(Centre(62));
    EXPECT_EQ(Pos.MoveCount, 5);
    EXPECT_EQ(Pos.Board[68], Red);
    EXPECT_EQ(Level, levelBefore);
    EXPECT_TRUE(IsItemChecked("mnu_Easy"));
    EXPECT_FALSE(IsThinking);
    ExpectViewShowsPosition();
}

TEST_F(MainWindowTest, ClosingWhileTheComputerThinksEndsWithoutAMove) {
    Open(3);
    DoubleClick(69);
    WhileThinking([this] { Window.close(); });
    Drag(67, 59);
    EXPECT_EQ(Pos.MoveCount, 4) << "Red's move stands, Blue's is not begun";
    EXPECT_FALSE(Window.isVisible());
    EXPECT_FALSE(IsThinking);
}

}  // namespace

}  // namespace brastel
