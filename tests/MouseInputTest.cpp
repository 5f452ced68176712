#include "tests/ShownPosition.h"
#include "tests/WindowTest.h"

#include <array>

namespace brastel {

namespace {

using MouseInputTest = WindowTest;

TEST_F(MouseInputTest, EveryButtonDragsAPiece) {
    OpenForTwo(3, 68, 44);
    Drag(Centre(66), Centre(58), Qt::LeftButton);
    Drag(Centre(42), Centre(50), Qt::RightButton);
    Drag(Centre(67), Centre(59), Qt::MiddleButton);
    EXPECT_EQ(Pos.MoveCount, 6);
    ExpectViewShowsPosition();
}

TEST_F(MouseInputTest, TheOutlineFollowsThePointerAndGoes) {
    OpenForTwo(3, 68, 44);
    auto* outline = Control<QWidget>("DragOutline");
    const QImage before = OnScreen();
    Press(Centre(66) + QPoint(5, -7));
    EXPECT_TRUE(outline->isVisible());
    // Over lines, pieces, circles and buttons.
    for (int n = 0; n < 90; ++n) {
        Move({80 + n * 7, 340 + n * 37 % 211 - 60});
        OnScreen();
    }
    Move({700, 300});
    EXPECT_EQ(outline->geometry().center(), QRect(700 - 25, 300 - 13, 41, 41).center());
    EXPECT_NE(FirstWrongShown(Picture()), "") << "the piece is tinted";
    Release({700, 300});
    EXPECT_FALSE(outline->isVisible());
    EXPECT_EQ(OnScreen(), before) << "something is left behind";
}

TEST_F(MouseInputTest, TheCursorTellsWhatCanBeDone) {
    const auto over = [this](int square) {
        Move(Centre(square));
        return Form->cursor().shape();
    };
    Open(4);
    ChooseFromMenu("mnu_Level", "mnu_TwoPlayer");
    EXPECT_EQ(over(69), Qt::PointingHandCursor);
    EXPECT_EQ(over(28), Qt::ArrowCursor) << "number 9 cannot get the ring";
    EXPECT_EQ(over(44), Qt::ArrowCursor);
    DoubleClick(68);
    DoubleClick(44);
    EXPECT_EQ(over(66), Qt::OpenHandCursor);
    EXPECT_EQ(over(42), Qt::ArrowCursor);
    EXPECT_EQ(over(50), Qt::ArrowCursor);
    Press(Centre(66));
    EXPECT_EQ(over(58), Qt::ClosedHandCursor);
    Release(Centre(58));
    EXPECT_EQ(Form->cursor().shape(), Qt::ArrowCursor) << "Blue is to move";
}

/// The board's columns and rows are told by division. A drop right of the board would be taken for
/// column 0 of the next row, and the strips left of and above it for the first column and row.
TEST_F(MouseInputTest, ARefusedDropLeavesNoTrace) {
    OpenForTwo(3, 68, 44);
    Drag(66, 58);
    Drag(47, 55);
    const QImage before = Picture();
    const Position position = Pos;
    const QPoint places[] = {
        // Onto itself, too far, onto a friend, onto an outside cell.
        Centre(58),
        Centre(26),
        Centre(67),
        Centre(57),
        // Beside the board; column 9 of row 7 would be column 1 of row 8, next to the piece.
        {20 + 9 * 40 + 5, 300 + 5},
        {345, 300},
        {10, 300},
        {40, 10},
        {40, 585},
        {2000, 300}};
    for (const QPoint place : places) {
        Drag(Centre(58), place);
        EXPECT_EQ(Pos, position) << place.x() << ", " << place.y();
    }
    Drag(42, 50);
    EXPECT_EQ(Pos, position) << "out of turn";
    EXPECT_EQ(Picture(), before);
}

TEST_F(MouseInputTest, ADragEndsWithoutADropWhenItIsBrokenOff) {
    OpenForTwo(3, 68, 44);
    const Position position = Pos;
    const auto breakOffs = std::to_array<std::function<void()>>({
        [this] { QTest::keyClick(Window.windowHandle(), Qt::Key_Escape); },
        [this] { QTest::keyClick(Window.windowHandle(), Qt::Key_Left); },
        [this] { Form->clearFocus(); },
    });
    for (const auto& breakOff : breakOffs) {
        Press(Centre(66));
        Move(Centre(60));
        breakOff();
        EXPECT_FALSE(IsShown("DragOutline"));
        Move(Centre(58));
        Release(Centre(58));
        EXPECT_EQ(Pos, position);
    }
}

/// A drag whose release another program got used to go on: its outline stayed, and the next click
/// dropped its piece.
TEST_F(MouseInputTest, ADragWhoseReleaseIsLostIsOver) {
    QWindow elsewhere;
    elsewhere.resize(100, 100);
    elsewhere.show();
    OpenForTwo(3, 68, 44);
    Window.windowHandle()->requestActivate();
    const Position position = Pos;
    const auto next = std::to_array<std::function<void()>>({
        [this] { Move(Centre(60)); },
        [this] { Press(Centre(58)), Release(Centre(58)); },
        [this] { DoubleClick(58); },
    });
    for (const auto& event : next) {
        Press(Centre(66));
        QTest::mouseRelease(&elsewhere, Qt::LeftButton, {}, {5, 5});
        EXPECT_TRUE(IsShown("DragOutline"));
        event();
        EXPECT_FALSE(IsShown("DragOutline"));
        EXPECT_EQ(Pos, position);
    }
}

TEST_F(MouseInputTest, AnotherButtonDuringADragChangesNothing) {
    OpenForTwo(3, 68, 44);
    Press(Centre(66), Qt::LeftButton);
    Press(Centre(67), Qt::RightButton);
    Release(Centre(67), Qt::RightButton);
    Move(Centre(58));
    Release(Centre(58), Qt::LeftButton);
    EXPECT_EQ(Pos.Board[58], Red);
    EXPECT_EQ(Pos.Board[67], Red);
}

/// Whoever clicks a piece and at once drags it makes a double-click without meaning to.
TEST_F(MouseInputTest, TheSecondPressOfADoubleClickDrags) {
    const auto clickAndPress = [this](int square) {
        ClickAt(Centre(square));
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
        Press(Centre(square));
    };
    OpenForTwo(3, 68, 44);
    clickAndPress(66);
    EXPECT_TRUE(IsShown("DragOutline"));
    Release(Centre(58));
    EXPECT_EQ(Pos.Board[58], Red);
    Open(3);
    WhileThinking([this] { Release(Centre(69)); });
    clickAndPress(69);
    EXPECT_EQ(Pos.MoveCount, 3) << "the ring is given, and Blue has answered";
    EXPECT_FALSE(IsShown("DragOutline")) << "the button is up";
}

/// Qt rounds this point to the corner of the next square.
TEST_F(MouseInputTest, TheLastHalfPixelBelongsToItsSquare) {
    const QPointF point = InWindow(Centre(69)) + QPointF(19.5, 19.5);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isDown = type == QEvent::MouseButtonPress;
        qt_handleMouseEvent(Window.windowHandle(), point, Window.windowHandle()->mapToGlobal(point),
                            isDown ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type, {},
                            ++QTest::lastMouseTimestamp);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(Pos.Board[69], Red);
}

/// A double-click on an empty square places a piece with its first click; the second one hits that
/// piece, but nobody meant to give it the ring. On a piece, the second release is no click.
TEST_F(MouseInputTest, AFreeSetupIsClickedTogether) {
    // Left of and above the board still counts as its first column and row here; right of it and
    // on a control nothing does.
    for (const QPoint point :
         {QPoint(5, 330), QPoint(150, 5), QPoint(345, 330), QPoint(740, 505)}) {
        ClickAt(point);
    }
    // A click that ends outside the window is none.
    Press({5, 250});
    Release({-10, 250});
    EXPECT_EQ(Pos.RedPlaced, 2);
    EXPECT_EQ(Pos.Board[57], Red);
    EXPECT_EQ(Pos.Board[4], Red);
    DoubleClick(68);
    EXPECT_EQ(Pos.RedPlaced, 3);
    EXPECT_EQ(Pos.MoveCount, 1);
    ClickAt(Centre(69));
    DoubleClick(68);
    EXPECT_EQ(Pos.MoveCount, 2);
    EXPECT_EQ(Pos.RedCount, 4);
    EXPECT_EQ(Pos.BluePlaced, 0);
    ExpectViewShowsPosition();
}

}  // namespace

}  // namespace brastel
