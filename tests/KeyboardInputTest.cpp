#include "tests/WindowTest.h"
#include "ui/KeyboardInput.h"

#include <QAbstractButton>

namespace brastel {

namespace {

constexpr QRgb MarkBlue = qRgb(0, 64, 255);

class KeyboardInputTest : public WindowTest {
protected:
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Window.windowHandle(), key, modifiers);
    }

    /// Walks with the arrow keys: first along the row, then along the column.
    void Go(int square) {
        const int right = Column(square) - Column(Focus());
        const int down = Row(square) - Row(Focus());
        for (int n = 0; n < std::abs(right); ++n) Key(right > 0 ? Qt::Key_Right : Qt::Key_Left);
        for (int n = 0; n < std::abs(down); ++n) Key(down > 0 ? Qt::Key_Down : Qt::Key_Up);
        ASSERT_EQ(Focus(), square);
    }
    void Carry(int from, int to, Qt::Key key) {
        Go(from);
        Key(key);
        Go(to);
        Key(key);
    }

    int Focus() { return Keyboard().FocusSquare(); }
    int Held() { return Keyboard().HeldSquare(); }
    bool IsMarked(int square) {
        const QImage picture = Picture();
        const double ratio = picture.devicePixelRatio();
        const QPointF edge(SquareLeft(square) + CellSize / 2 + 0.5, SquareTop(square) - 0.5);
        return picture.pixel((edge * ratio).toPoint()) == MarkBlue;
    }

private:
    KeyboardInput& Keyboard() { return *Form->findChild<KeyboardInput*>(); }
};

TEST_F(KeyboardInputTest, AWholeGameNeedsNoMouse) {
    Open(3);
    ASSERT_TRUE(Form->hasFocus()) << "the first key must reach the board";
    Go(68);
    Key(Qt::Key_R);
    ASSERT_EQ(Pos.MoveCount, 3) << "Blue places its ring at once";
    EXPECT_EQ(Pos.RingSquare[0], 68);
    Carry(67, 59, Qt::Key_Return);
    EXPECT_EQ(Pos.MoveCount, 5) << "Blue answers";
    EXPECT_EQ(Pos.Board[59], Red);
    EXPECT_EQ(Held(), NoSquare);
    // A ring pass, on to a piece.
    Carry(68, 59, Qt::Key_Space);
    EXPECT_EQ(Pos.RingSquare[0], 59);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Space);
    EXPECT_EQ(Pos.MoveCount, 6) << "Backward comes next after the board";
}

TEST_F(KeyboardInputTest, TheFocusStopsAtTheEdges) {
    constexpr std::pair<int, Qt::Key> Corners[] = {
        {1, Qt::Key_Up}, {1, Qt::Key_Left}, {112, Qt::Key_Down}, {112, Qt::Key_Right}};
    for (const auto& [corner, key] : Corners) {
        Go(corner);
        Key(key);
        EXPECT_EQ(Focus(), corner);
        EXPECT_TRUE(IsMarked(corner));
    }
}

TEST_F(KeyboardInputTest, TheMarkIsSeenOnlyOnceTheKeyboardIsUsed) {
    Open(3);
    EXPECT_FALSE(IsMarked(Focus()));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(IsMarked(Focus())) << "it may have ended a drag of the mouse";
    Key(Qt::Key_Left);
    EXPECT_TRUE(IsMarked(Focus()));
    ClickAt(Centre(60));
    EXPECT_FALSE(IsMarked(Focus()));
    EXPECT_EQ(Focus(), 60) << "the keyboard goes on where the mouse was";
    Key(Qt::Key_Tab);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(IsMarked(60));
}

TEST_F(KeyboardInputTest, WhatIsHeldIsLetGoWithoutADrop) {
    OpenForTwo(3, 68, 44);
    const Position position = Pos;
    const auto ways = std::to_array<std::function<void()>>({
        [this] { Key(Qt::Key_Escape); },
        [this] { Key(Qt::Key_Tab), Form->setFocus(); },
        [this] {
            ClickAt({700, 300}), Go(58);
        },
        [this] { Form->clearFocus(), Form->setFocus(); },
        [this] { Key(Qt::Key_R); },
    });
    for (const auto& letGo : ways) {
        Go(66);
        Key(Qt::Key_Space);
        EXPECT_EQ(Held(), 66);
        Go(58);
        letGo();
        EXPECT_EQ(Held(), NoSquare);
        Key(Qt::Key_Space);
        EXPECT_EQ(Pos, position);
    }
}

/// The piece that is held could be another one after a step along the record, or none.
TEST_F(KeyboardInputTest, AChangeOfTheBoardLetsGo) {
    OpenForTwo(3, 68, 44);
    const auto changes = std::to_array<std::function<void()>>({
        [this] { Control<QAbstractButton>("btn_Hint")->click(); },
        [this] { Control<QAbstractButton>("btn_Backward")->click(); },
        [this] { Control<QAction>("mnu_NewGame")->trigger(); },
    });
    for (const auto& change : changes) {
        Go(66);
        Key(Qt::Key_Space);
        EXPECT_EQ(Held(), 66);
        change();
        QCoreApplication::processEvents();
        EXPECT_EQ(Held(), NoSquare);
    }
}

TEST_F(KeyboardInputTest, OtherKeysAreLeftToOthers) {
    Open(3);
    const int focus = Focus();
    Key(Qt::Key_Left, Qt::ControlModifier);
    Key(Qt::Key_R, Qt::ControlModifier);
    Key(Qt::Key_X);
    EXPECT_EQ(Focus(), focus);
    EXPECT_EQ(Pos.MoveCount, 1);
    EXPECT_FALSE(IsMarked(focus));
}

}  // namespace

}  // namespace brastel
