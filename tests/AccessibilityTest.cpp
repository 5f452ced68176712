#include "play/GameState.h"
#include "play/Words.h"
#include "tests/Rows.h"
#include "tests/WindowTest.h"
#include "ui/BoardView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>
#include <private/qguiapplication_p.h>
#include <vector>

namespace brastel {

namespace {

/// What assistive technology reads, through Qt's own interface.
class AccessibilityTest : public WindowTest {
protected:
    AccessibilityTest() {
        Heard.clear();
        QAccessible::installUpdateHandler(Hear);
        ActAsListened(true);
    }
    ~AccessibilityTest() override {
        ActAsListened(false);
        QAccessible::installUpdateHandler(nullptr);
    }

    /// With the part of the board that it tells of; null for widgets.
    using Event = std::pair<QAccessible::Event, QAccessibleInterface*>;
    static inline std::vector<Event> Heard;

    static void Hear(QAccessibleEvent* event) {
        const bool isPart = event->object() == nullptr;
        Heard.emplace_back(event->type(), isPart ? event->accessibleInterface() : nullptr);
    }
    bool HasHeard(QAccessible::Event type, int child) {
        return std::ranges::count(Heard, Event(type, Child(child))) > 0;
    }

    /// Offscreen, nobody asks for events, and then Qt sends none.
    static void ActAsListened(bool isListened) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isListened);
    }

    QAccessibleInterface* Board() { return QAccessible::queryAccessibleInterface(Form); }
    /// A square, or what comes behind the squares.
    QAccessibleInterface* Child(int number) { return Board()->child(number - 1); }
    static QString NameOf(QAccessibleInterface* object) { return object->text(QAccessible::Name); }
    /// Also waits for commands that run later.
    void Act(int square, const QString& action) {
        Child(square)->actionInterface()->doAction(action);
        QCoreApplication::processEvents();
    }

    /// Waits for a text and returns it.
    std::string ReadOut() {
        constexpr int Announcement = LastSquare + 3;
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return HasHeard(QAccessible::ObjectShow, Announcement) &&
                   !NameOf(Child(Announcement)).isEmpty();
        }));
        EXPECT_EQ(Child(Announcement)->role(), QAccessible::Notification);
        return NameOf(Child(Announcement)).toStdString();
    }
};

TEST_F(AccessibilityTest, EverySquareSaysWhatStandsThere) {
    Do("layout3 mnu_TwoPlayer");
    for (const int square : {68, 44}) Act(square, "Give ring");
    EXPECT_EQ(Pos.MoveCount, 3);
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        QAccessibleInterface* part = Child(square);
        EXPECT_EQ(NameOf(part).toStdString(), SquareWithContent(square));
        EXPECT_EQ(part->role(), QAccessible::Button);
        const QPoint place = Form->mapToGlobal(Centre(square));
        EXPECT_EQ(part->rect(), QRect(place - QPoint(20, 20), QSize(40, 40)));
        EXPECT_EQ(Board()->childAt(place.x(), place.y()), part);
        EXPECT_EQ(part->state().focused, square == 44);
        EXPECT_TRUE(part->state().focusable && part->state().selectable);
    }
    Act(66, "SetFocus");
    EXPECT_EQ(Board()->focusChild(), Child(66));
    Act(66, "Press");
    EXPECT_TRUE(Child(66)->state().selected);
    QAccessibleActionInterface* actions = Child(66)->actionInterface();
    EXPECT_EQ(actions->actionNames(), QStringList({"Press", "SetFocus", "Give ring"}));
    EXPECT_EQ(actions->keyBindingsForAction("Press"), QStringList("Space"));
    EXPECT_EQ(actions->keyBindingsForAction("Give ring"), QStringList("R"));
}

/// The parts after the squares, and the index of every part.
TEST_F(AccessibilityTest, ThePanelIsRead) {
    const auto description = [this](QAccessibleInterface* part) {
        return part->text(QAccessible::Description).toStdString();
    };
    EXPECT_TRUE(description(Board()).starts_with("Arrow keys move, ") &&
                description(Board()).ends_with(BoardView::OpeningHelp().toStdString()));
    Do("layout3 mnu_TwoPlayer !68 !44 69-61");
    ShowStatus(RedWinsText);
    QString words;
    for (int n = 0; n < Board()->childCount(); ++n) {
        QAccessibleInterface* part = Board()->child(n);
        EXPECT_TRUE(part->parent() == Board() && Board()->indexOfChild(part) == n);
        if (n >= LastSquare) words += NameOf(part) + ", ";
    }
    EXPECT_EQ(words.toStdString(),
              "Red's turn circle: waiting, Blue's turn circle: to move, Red piece 4 from row 9, "
              "column 5 to row 8, column 5, Forward, Backward, Hint, Status line: Red Wins!, ");
    EXPECT_EQ(Board()->child(-1), nullptr);
    EXPECT_EQ(Board()->child(Board()->childCount()), nullptr);
    EXPECT_EQ(description(Child(113)) + description(Child(114)), "Blue to move");
}

/// In few events: hidden text boxes used to tell of each of their texts, hundreds after a move, and
/// Orca, which drops what comes when a hundred events wait, read out nothing.
TEST_F(AccessibilityTest, WhatHappensIsReadOut) {
    for (const auto& [gestures, words] : RowsOf("/reading.txt")) {
        Heard.clear();
        Do(gestures);
        const std::string text = ReadOut();
        EXPECT_EQ(words.ends_with(' ') ? text.substr(0, words.size()) : text, words) << gestures;
        EXPECT_LT(Heard.size(), 100) << gestures;
    }
}

TEST_F(AccessibilityTest, ChangedPartsAreTold) {
    Do("layout3 mnu_TwoPlayer !68 !44");
    Heard.clear();
    Do("66-58");
    constexpr int Circles = LastSquare + 1;
    for (const int child : {66, 58, Circles, Circles + 1}) {
        EXPECT_TRUE(HasHeard(QAccessible::NameChanged, child)) << child;
    }
    EXPECT_FALSE(HasHeard(QAccessible::NameChanged, 67));
    for (const char* gestures : {"Left", "Tab Shift+Tab"}) {
        Heard.clear();
        Do(gestures);
        EXPECT_TRUE(HasHeard(QAccessible::Focus, 65)) << gestures;
    }
}

/// Calls of assistive technology are no events, so they reach the board even where mouse and
/// keyboard do not.
TEST_F(AccessibilityTest, SquaresCannotBePressedAtTheWrongTime) {
    Do("layout3 !69");
    WhileThinking([this] {
        Act(70, "Press");
        Act(70, "Give ring");
        EXPECT_FALSE(Child(70)->state().selected);
    });
    Do("67-59");
    EXPECT_EQ(Pos.MoveCount, 5);
    const Position position = Pos;
    ChooseAndAnswer("mnu_Rules", {[this](QWidget& dialog) {
                        Act(70, "Press");
                        Act(62, "Press");
                        // A dialog behind a dialog could not be left.
                        Do("mnuFileItem1() btn_Hint()");
                        dialog.close();
                    }});
    // A command directly after another one that opens a dialog.
    for (const char* item : {"mnu_Rules", "mnu_NewGame"}) Control<QAction>(item)->trigger();
    QCoreApplication::processEvents();
    EXPECT_TRUE(State().ends_with("frm_Rules!"));
    EXPECT_EQ(Pos, position);
}

}  // namespace

}  // namespace brastel
