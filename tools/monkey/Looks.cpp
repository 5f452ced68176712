#include "tools/monkey/Looks.h"

#include "core/Consistency.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tests/ShownPosition.h"
#include "tools/monkey/Aims.h"
#include "ui/KeyboardInput.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>

#include <cstdlib>
#include <iostream>

namespace brastel {

namespace {

constexpr std::array StatusTexts{BlankText, ThinkingText, RedWinsText, BlueWinsText, PushBackText};
/// Menus, tool tips and the like that Qt keeps once they have been shown.
constexpr int SpareWidgets = 40;

QString FixedAtFirst;
qsizetype WidgetsAtFirst = 0;

/// Places and sizes of the window's parts.
QString FixedParts() {
    QString parts;
    QDebug out(&parts);
    out << GameWindow->size() << GameWindow->menuBar()->geometry();
    for (const QWidget* part : GameWindow->centralWidget()->findChildren<QWidget*>()) {
        if (part != &Outline()) out << part->objectName() << part->geometry();
    }
    return parts;
}

QImage Screenshot() {
    const QRect board = GameWindow->centralWidget()->geometry();
    return GameWindow->screen()
        ->grabWindow(GameWindow->winId(), board.x(), board.y(), board.width(), board.height())
        .toImage();
}

}  // namespace

void Expect(bool isRight, const std::string& otherwise) {
    if (isRight) return;
    std::cerr << "FAILED: " << otherwise << std::endl;
    std::_Exit(EXIT_FAILURE);
}

void RememberWindow() {
    FixedAtFirst = FixedParts();
    WidgetsAtFirst = QApplication::allWidgets().size();
}

/// While the window is away, a game is read from a file, and nothing need fit.
void LookAtGame() {
    if (!GameWindow->isVisible()) return;
    const std::string fault = FirstInconsistency();
    Expect(fault.empty(), fault);
    const auto isShown = [](const char* name) {
        return GameWindow->findChild<QWidget*>(name)->isVisibleTo(GameWindow->centralWidget());
    };
    Expect(isShown("btn_Forward") == ForwardVisible, "Forward is not as the game has it");
    Expect(isShown("btn_Backward") == BackwardVisible, "Backward is not as the game has it");
    Expect(isShown("btn_Hint"), "Hint is hidden");
    for (const QAction* item : GameWindow->findChild<QMenu*>("mnu_Level")->actions()) {
        const bool isLevel = item->isCheckable() && item->data().toInt() == Level;
        Expect(item->isChecked() == isLevel, "the level's check mark");
    }
    const std::string text = GameWindow->findChild<QLabel*>("lbl_Message")->text().toStdString();
    Expect(std::ranges::count(StatusTexts, text) == 1, "the status line says " + text);
    Expect((text == ThinkingText) == IsThinking, "the status line says " + text);
    Expect((QApplication::overrideCursor() != nullptr) == IsThinking, "the busy cursor");
}

/// What is on the screen, not what would be painted now. A piece that is dragged or picked up has
/// other colours.
void LookAtPicture() {
    const auto isSeen = [] {
        const bool isHeld = GameWindow->findChild<KeyboardInput*>()->HeldSquare() != NoSquare;
        return GameWindow->isVisible() && !GameWindow->isMinimized() && !Outline().isVisible() &&
               !isHeld;
    };
    std::string wrong;
    for (int attempt = 0; attempt < 50 && isSeen(); ++attempt) {
        wrong = FirstWrongShown(Screenshot());
        if (wrong.empty()) return;
        QTest::qWait(10);
    }
    Expect(!isSeen(), "the window does not show the position: " + wrong);
}

void LookAtRest() {
    Expect(GameWindow->isVisible(), "the window is away, and no dialog is there");
    Expect(FixedParts() == FixedAtFirst, "a control or the window has another place or size");
    const qsizetype widgets = QApplication::allWidgets().size();
    Expect(widgets <= WidgetsAtFirst + SpareWidgets,
           std::to_string(WidgetsAtFirst) + " widgets became " + std::to_string(widgets));
}

void LookAtEnd() {
    Expect(GameWindow->IsClosing() && !GameWindow->isVisible(), "the program ended by itself");
    Expect(!IsThinking, "the program ended, but the computer thinks");
    Expect(QApplication::overrideCursor() == nullptr, "the program ended with a busy cursor");
    Expect(QApplication::activeModalWidget() == nullptr, "the program ended under a dialog");
}

}  // namespace brastel
