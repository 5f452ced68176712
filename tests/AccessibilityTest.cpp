#include "core/StartPosition.h"
#include "play/GameState.h"
#include "play/Words.h"
#include "tests/WindowTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>
#include <private/qguiapplication_p.h>
#include <vector>

namespace brastel {

namespace {

/// What assistive technology gets to know, through Qt's own interface.
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

    struct Event {
        QAccessible::Event Type;
        /// The part of the board that it tells of; null for widgets.
        QAccessibleInterface* Part;
    };
    static inline std::vector<Event> Heard;

    static void Hear(QAccessibleEvent* event) {
        const bool isPart = event->object() == nullptr;
        Heard.push_back({event->type(), isPart ? event->accessibleInterface() : nullptr});
    }
    bool HasHeard(QAccessible::Event type, int square) {
        return std::any_of(Heard.begin(), Heard.end(), [&](const Event& event) {
            return event.Type == type && event.Part == Square(square);
        });
    }

    /// Offscreen, nobody asks for events, and none are sent then.
    static void ActAsListened(bool isListened) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isListened);
    }

    QAccessibleInterface* Board() { return QAccessible::queryAccessibleInterface(Form); }
    QAccessibleInterface* Square(int square) { return Board()->child(square - 1); }
    static QString NameOf(QAccessibleInterface* object) { return object->text(QAccessible::Name); }
    QString NameOf(const char* control) {
        return NameOf(QAccessible::queryAccessibleInterface(Control<QWidget>(control)));
    }
    /// Also lets be done what was only asked for.
    void Do(int square, const QString& action) {
        Square(square)->actionInterface()->doAction(action);
        QCoreApplication::processEvents();
    }
    void PressSquare(int square) { Do(square, QAccessibleActionInterface::pressAction()); }

    QAccessibleInterface* Find(const QString& name) {
        for (int n = 0; n < Board()->childCount(); ++n) {
            if (NameOf(Board()->child(n)) == name) return Board()->child(n);
        }
        return nullptr;
    }

    /// Lets all be read out that was done so far.
    static void Forget() {
        QTest::qWait(10);
        Heard.clear();
    }

    /// Waits for a text and returns it.
    static std::string ReadOut() {
        std::string text;
        const bool isSpoken = QTest::qWaitFor([&text] {
            for (const auto& [type, part] : Heard) {
                const bool isText = type == QAccessible::ObjectShow && part != nullptr &&
                                    part->role() == QAccessible::Notification;
                if (isText) text = NameOf(part).toStdString();
            }
            return !text.empty();
        });
        EXPECT_TRUE(isSpoken);
        Heard.clear();
        return text;
    }
};

TEST_F(AccessibilityTest, EverySquareSaysWhatStandsThere) {
    OpenForTwo(3, 68, 44);
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        EXPECT_EQ(NameOf(Square(square)).toStdString(), SquareWithContent(square));
    }
    const QPoint place = Form->mapToGlobal(Centre(68));
    EXPECT_EQ(NameOf(Board()->childAt(place.x(), place.y())), NameOf(Square(68)));
}

TEST_F(AccessibilityTest, TheWholeTreeIsSound) {
    Open(5);
    QList<QAccessibleInterface*> open{QAccessible::queryAccessibleInterface(&Window)};
    int named = 0;
    while (!open.empty()) {
        QAccessibleInterface* object = open.takeLast();
        ASSERT_TRUE(object->isValid());
        named += !NameOf(object).isEmpty();
        for (int n = 0; n < object->childCount(); ++n) {
            QAccessibleInterface* child = object->child(n);
            ASSERT_NE(child, nullptr) << NameOf(object).toStdString() << " " << n;
            EXPECT_EQ(object->indexOfChild(child), n) << NameOf(child).toStdString();
            EXPECT_EQ(child->parent(), object) << NameOf(child).toStdString();
            open.append(child);
        }
    }
    EXPECT_EQ(Board()->child(-1), nullptr);
    EXPECT_EQ(Board()->child(Board()->childCount()), nullptr);
    EXPECT_GT(named, 112 + 20) << "squares, panel, menus";
}

TEST_F(AccessibilityTest, ThePanelHasNames) {
    OpenForTwo(3, 68, 44);
    EXPECT_NE(Find("Red's turn circle: to move"), nullptr);
    EXPECT_NE(Find("Blue's turn circle: waiting"), nullptr);
    Drag(69, 61);
    EXPECT_NE(Find("Blue's turn circle: to move"), nullptr);
    EXPECT_EQ(NameOf("lbl_Message"), "Status line: empty");
    ShowStatus(RedWinsText);
    EXPECT_EQ(NameOf("lbl_Message"), "Status line: Red Wins!");
    for (const char* button : {"Forward", "Backward", "Hint"}) EXPECT_NE(Find(button), nullptr);
    EXPECT_EQ(Find("Undo"), nullptr) << "never shown, so never read";
    const std::pair<const char*, const char*> descriptions[] = {
        {"Blue's turn circle: to move", "Blue to move"},
        {"Backward", "Takes back one move; the computer then waits"},
        {"Hint", "Plays the best move for the side to move"}};
    for (const auto& [name, description] : descriptions) {
        EXPECT_EQ(Find(name)->text(QAccessible::Description), description);
    }
    EXPECT_TRUE(Board()->text(QAccessible::Description).startsWith("Arrow keys move, "));
    Open(3);
    EXPECT_TRUE(Board()->text(QAccessible::Description).endsWith(" to give it the ring"));
}

TEST_F(AccessibilityTest, MovesAndMessagesAreReadOut) {
    OpenForTwo(0, 68, 44);
    Forget();
    Drag(69, 61);
    EXPECT_EQ(ReadOut(), "Red piece 2 from row 9, column 5 to row 8, column 5");
    Drag(45, 53);
    Forget();
    Drag(61, 53);
    EXPECT_EQ(ReadOut(),
              "Red piece 2 from row 8, column 5 to row 7, column 5, pushes Blue piece 2 to row 5, "
              "column 5");
    Drag(37, 53);
    EXPECT_EQ(ReadOut(), "You Cant't Push Back");
    ClickButton("btn_Backward");
    EXPECT_TRUE(ReadOut().starts_with("Taken back: ")) << "not told as a move";
    ChooseFromMenu("mnu_Options", "mnu_NewGame");
    EXPECT_EQ(ReadOut(), "At the start");
    SelectStartLayout(FreeSetupLayout);
    ChooseFromMenu("mnu_Options", "mnu_NewGame");
    EXPECT_EQ(ReadOut(), "At the start, the board is empty");
}

/// A player who does not see the board would wait for something to happen.
TEST_F(AccessibilityTest, WhatIsRefusedIsReadOut) {
    OpenForTwo(3, 68, 44);
    Forget();
    PressSquare(58);
    EXPECT_EQ(ReadOut(), "nothing here");
    Do(66, "Give ring");
    EXPECT_EQ(ReadOut(), "both rings are placed already");
}

TEST_F(AccessibilityTest, TheComputersAnswerIsReadOut) {
    Open(3);
    DoubleClick(69);
    Forget();
    Drag(67, 59);
    const std::string own = "Red piece 2 from row 9, column 3 to row 8, column 3. Blue piece ";
    const std::string text = ReadOut();
    EXPECT_TRUE(text.starts_with(own)) << text;
}

/// Hidden text boxes used to tell of each of their texts, hundreds after a move, and Orca, which
/// drops what comes when a hundred events wait, read out nothing.
TEST_F(AccessibilityTest, AMoveIsToldInFewEvents) {
    constexpr std::size_t Few = 50;
    Open(3);
    Forget();
    DoubleClick(69);
    ReadOut();
    for (const int from : {67, 66}) {
        Drag(from, from - 8);
        QTest::qWait(60);
        EXPECT_LT(Heard.size(), Few);
        Heard.clear();
    }
}

TEST_F(AccessibilityTest, ChangedSquaresAreTold) {
    OpenForTwo(3, 68, 44);
    Forget();
    Drag(66, 58);
    QTest::qWait(1);
    for (const int square : {66, 58}) {
        EXPECT_TRUE(HasHeard(QAccessible::NameChanged, square)) << square;
    }
    EXPECT_FALSE(HasHeard(QAccessible::NameChanged, 67));
}

TEST_F(AccessibilityTest, DialogsCanBeRead) {
    const char* const Rows[][4] = {
        {"mnu_Help", "mnu_Rules", "frm_Rules", "Orvel Game Rules: 1. The first player"},
        {"mnu_Options", "mnu_GameSize", "frm_GameSize", "Change Piece Number: "},
        {"mnu_Options", "mnu_GameSize", "btn_GameSize3", "8: Select Piece Number"},
        {"mnu_Options", "mnuFileItem2", "frmOpenSave", "Save Game: "},
        {"mnu_Options", "mnuFileItem2", "txtOpenSave", "File name: "},
        {"mnu_Options", "mnuFileItem2", "filOpenSave", "Files: "},
        {"mnu_Options", "mnuFileItem2", "dirOpenSave", "Folders: "},
        {"mnu_Options", "mnuFileItem2", "lblOpenSave3", "Drives: "},
        {"mnu_Options", "mnuFileItem2", "cmdOpenSave1", "Cancel: "}};
    for (const auto& row : Rows) {
        ChooseAndAnswer(row[0], row[1], {[&row](QWidget& dialog) {
                            auto* part = dialog.findChild<QWidget*>(row[2]);
                            auto* object = QAccessible::queryAccessibleInterface(
                                part != nullptr ? part : &dialog);
                            const QString words =
                                NameOf(object) + ": " + object->text(QAccessible::Description);
                            EXPECT_TRUE(words.startsWith(row[3])) << words.toStdString();
                            qobject_cast<QDialog*>(&dialog)->reject();
                        }});
    }
}

/// Calls of assistive technology are no events, so they reach the board even where mouse and
/// keyboard do not.
TEST_F(AccessibilityTest, SquaresCannotBePressedAtTheWrongTime) {
    Open(3);
    DoubleClick(69);
    WhileThinking([this] {
        PressSquare(70);
        Do(70, "Give ring");
        EXPECT_FALSE(Square(70)->state().selected);
    });
    Drag(67, 59);
    EXPECT_EQ(Pos.MoveCount, 5);
    const Position position = Pos;
    ChooseAndAnswer("mnu_Help", "mnu_Rules", {[this](QWidget& dialog) {
                        PressSquare(70);
                        PressSquare(62);
                        // A dialog behind a dialog could not be left.
                        Control<QAction>("mnuFileItem1")->trigger();
                        Control<QAbstractButton>("btn_Hint")->click();
                        QCoreApplication::processEvents();
                        dialog.close();
                    }});
    EXPECT_EQ(Pos, position);
}

}  // namespace

}  // namespace brastel
