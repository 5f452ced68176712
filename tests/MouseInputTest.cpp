#include "tests/ShownPosition.h"
#include "tests/WindowTest.h"

namespace brastel {

namespace {

using MouseInputTest = WindowTest;

TEST_F(MouseInputTest, TheOutlineFollowsThePointerAndGoes) {
    Do("layout3 mnu_TwoPlayer !68 !44");
    const auto* outline = Control<QWidget>("DragOutline");
    // What has been painted so far, and not what would be painted now.
    const auto screen = [this] {
        QCoreApplication::processEvents();
        return Window.screen()->grabWindow(Window.winId()).toImage();
    };
    const QImage before = screen();
    DoAt('v', Centre(66) + QPoint(5, -7));
    EXPECT_TRUE(outline->isVisible());
    // Over lines, pieces, circles and buttons.
    for (int n = 0; n < 90; ++n) {
        DoAt('>', {80 + n * 7, 340 + n * 37 % 211 - 60});
        screen();
    }
    Do(">700,300");
    EXPECT_EQ(outline->geometry().center(), QRect(700 - 25, 300 - 13, 41, 41).center());
    EXPECT_NE(FirstWrongShown(Picture()), "") << "the piece is tinted";
    Do("^700,300");
    EXPECT_FALSE(outline->isVisible());
    EXPECT_EQ(screen(), before) << "something is left behind";
}

/// The second press of a double-click begins a drag, but not if it was released meanwhile.
TEST_F(MouseInputTest, AReleaseWhileTheComputerThinksIsNoticed) {
    Do("layout3 +69");
    WhileThinking([this] { DoAt('^', Centre(69)); });
    Do("\"69");
    EXPECT_EQ(State(), "2 Red Backward Hint");
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

}  // namespace

}  // namespace brastel
