#include "tools/monkey/WindowChecks.h"

#include "play/GameState.h"
#include "play/Stepping.h"
#include "testing/Require.h"
#include "testing/ShownPosition.h"
#include "tools/monkey/Events.h"
#include "ui/KeyboardInput.h"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>
#include <QTest>

namespace brastel {

namespace {

/// Menus, tool tips and the like that Qt keeps once they have been shown.
constexpr int SpareWidgets = 40;

QSize SizeAtFirst;
qsizetype WidgetsAtFirst = 0;

/// The content of the screen, not what would be painted now.
QImage Screenshot() {
    const QRect board = GameWindow->centralWidget()->geometry();
    return GameWindow->screen()
        ->grabWindow(GameWindow->winId(), board.x(), board.y(), board.width(), board.height())
        .toImage();
}

/// A piece that is dragged or picked up has other colours.
bool IsPositionSeen() {
    const auto* keyboard = GameWindow->findChild<KeyboardInput*>();
    return GameWindow->isVisible() && !GameWindow->isMinimized() && !Outline().isVisible() &&
           keyboard->HeldSquare() == NoSquare;
}

bool IsShown(const char* name) {
    return GameWindow->findChild<QWidget*>(name)->isVisibleTo(GameWindow->centralWidget());
}

}  // namespace

QWidget& Outline() { return *GameWindow->findChild<QWidget*>("DragOutline"); }

void RememberWindow() {
    SizeAtFirst = GameWindow->size();
    WidgetsAtFirst = QApplication::allWidgets().size();
}

/// While the window is closed, a game is read from a file, and the controls need not fit it.
void CheckControls() {
    if (!GameWindow->isVisible()) return;
    Require(IsShown("btn_Forward") == ForwardVisible, "Forward is not as the game has it");
    Require(IsShown("btn_Backward") == BackwardVisible, "Backward is not as the game has it");
    for (const QAction* item : GameWindow->findChild<QMenu*>("mnu_Level")->actions()) {
        Require(item->isChecked() == (item->data() == Level), "the level's check mark");
    }
    const std::string text = GameWindow->findChild<QLabel*>("lbl_Message")->text().toStdString();
    Require((text == ThinkingText) == IsThinking, "the status line says " + text);
    Require((QApplication::overrideCursor() != nullptr) == IsThinking, "the busy cursor");
}

void CheckPicture() {
    std::string wrong;
    const auto isRight = [&] {
        return !IsPositionSeen() || (wrong = FirstWrongShown(Screenshot())).empty();
    };
    Require(QTest::qWaitFor(isRight), "the window does not show the position: " + wrong);
}

void CheckRest() {
    Require(GameWindow->isVisible(), "the window is away, and no dialog is there");
    Require(GameWindow->size() == SizeAtFirst, "the window has another size");
    const qsizetype widgets = QApplication::allWidgets().size();
    Require(widgets <= WidgetsAtFirst + SpareWidgets,
            std::to_string(WidgetsAtFirst) + " widgets became " + std::to_string(widgets));
}

void CheckEnd() {
    Require(GameWindow->IsClosing() && !GameWindow->isVisible(), "the program ended by itself");
    Require(!IsThinking && QApplication::overrideCursor() == nullptr, "the computer still thinks");
    Require(QApplication::activeModalWidget() == nullptr, "the program ended under a dialog");
}

}  // namespace brastel
