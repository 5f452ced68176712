#include "tests/WindowTest.h"

#include "core/StartPosition.h"
#include "engine/Strengths.h"
#include "play/GameState.h"
#include "testing/ShownGame.h"
#include "testing/ShownPosition.h"
#include "ui/BoardView.h"
#include "ui/KeyboardInput.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>
#include <QPointer>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

namespace {

int Beeps = 0;

}  // namespace

/// In place of the toolkit's own, which is silent offscreen.
void QApplication::beep() { ++Beeps; }

namespace brastel {

WindowTest::WindowTest() : Form(Window.centralWidget()) {
    Beeps = LoadedCount = 0;
    PollDialogs();
    Open(FreeSetupLayout);
}

WindowTest::~WindowTest() {
    EXPECT_TRUE(Noted.isEmpty()) << "unexpected: " << Noted.join(' ').toStdString();
    EXPECT_FALSE(ThinkingTimer.isActive()) << "the computer never thought";
}

void WindowTest::Open(int layout) {
    SelectStartLayout(layout);
    Window.OpenMainWindow();
    Window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
}

QPoint WindowTest::Centre(int square) {
    return {SquareLeft(square) + CellSize / 2, SquareTop(square) + CellSize / 2};
}

QPoint WindowTest::PlaceOf(const std::string& text) {
    const auto comma = text.substr(0, text.find('-', 1)).find(',');
    if (comma == text.npos) return Centre(std::stoi(text));
    return {std::stoi(text), std::stoi(text.substr(comma + 1))};
}

void WindowTest::DoAt(char gesture, QPoint place, Qt::MouseButton button) {
    QWindow* window = Window.windowHandle();
    const QPoint point = InWindow(place);
    const auto isOneOf = [gesture](std::string_view list) {
        return list.find(gesture) != list.npos;
    };
    if (gesture == '"') QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    if (isOneOf("v+\"")) QTest::mousePress(window, button, {}, point);
    if (isOneOf("^+")) QTest::mouseRelease(window, button, {}, point);
    if (isOneOf("!")) QTest::mouseDClick(window, button, {}, point);
    if (isOneOf(">~")) QTest::mouseMove(window, point);
    const auto shapes = QMetaEnum::fromType<Qt::CursorShape>();
    if (isOneOf("~")) Noted += shapes.valueToKey(Form->cursor().shape());
    const QString help = static_cast<BoardView*>(Form)->HelpAt(place);
    if (isOneOf("?")) Noted += '(' + QString(help).replace('\n', " / ") + ')';
}

void WindowTest::DoNamed(const std::string& name) {
    if (name.ends_with("()")) {
        auto* control = Control<QObject>(name.substr(0, name.size() - 2).c_str());
        QMetaObject::invokeMethod(control, control->isWidgetType() ? "click" : "trigger");
    } else if (auto* item = Control<QAction>(name.c_str())) {
        auto* menu = qobject_cast<QMenu*>(item->associatedObjects().first());
        const QMenuBar* bar = Window.menuBar();
        const QPoint entry = bar->actionGeometry(menu->menuAction()).center();
        QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, bar->mapTo(&Window, entry));
        ASSERT_TRUE(menu->isVisible());
        const QPoint place = menu->actionGeometry(item).center();
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, place);
    } else if (const auto* button = Control<QPushButton>(name.c_str())) {
        DoAt('+', button->geometry().center());
    } else if (name == "elsewhere") {
        Elsewhere.show();
        Elsewhere.requestActivate();
    } else if (name == "lost") {
        QTest::mouseRelease(&Elsewhere, Qt::LeftButton, {}, {5, 5});
    } else if (name == "unfocus") {
        Form->clearFocus();
    } else if (name == "hide") {
        Window.hide();
        Window.show();
    } else if (name == "load") {
        LoadPlayedGame(), BeginLoadedGame();
    } else if (name.starts_with("layout")) {
        Open(name.back() - '0');
    } else if (name.ends_with('&')) {
        const int key = QKeySequence::fromString(name.substr(0, name.size() - 1).c_str())[0].key();
        QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QApplication::sendEvent(Form, &repeated);
    } else {
        QTest::keySequence(Window.windowHandle(), QKeySequence::fromString(name.c_str()));
    }
}

void WindowTest::Do(const std::string& gestures) {
    std::istringstream list(gestures);
    Window.activateWindow();
    for (std::string word; list >> word; QCoreApplication::processEvents()) {
        const auto button = word.ends_with('r')   ? Qt::RightButton
                            : word.ends_with('m') ? Qt::MiddleButton
                                                  : Qt::LeftButton;
        if (std::isdigit(word[0])) {
            const QPoint from = PlaceOf(word), to = PlaceOf(word.substr(word.find('-') + 1));
            DoAt('v', from, button);
            DoAt('>', to);
            DoAt('^', to, button);
        } else if (word.size() > 1 && word.find_first_of("+!v\"^>~?") == 0) {
            DoAt(word[0], PlaceOf(word.substr(1)), button);
        } else {
            DoNamed(word);
        }
    }
}

std::string WindowTest::State() {
    QStringList state{QString::number(Pos.MoveCount - 1), Pos.SideToMove == Red ? "Red" : "Blue"};
    for (const QWidget* part : Form->findChildren<QWidget*>()) {
        const bool isSeen = part->isVisible() && part->objectName() != "lbl_Message";
        if (isSeen) state += part->objectName().section('_', -1);
    }
    QString level;
    for (const QAction* item : Control<QMenu>("mnu_Level")->actions()) {
        if (item->isChecked()) level += item->objectName().section('_', -1) + ' ';
    }
    level += QString::number(Level);
    if (level != "Easy 1") state += level;
    const auto& keyboard = *Form->findChild<KeyboardInput*>();
    const QImage picture = Picture();
    const int focus = keyboard.FocusSquare();
    const QPointF edge(SquareLeft(focus) + 1, SquareTop(focus) - 1);
    const QRgb mark = picture.pixel((edge * picture.devicePixelRatio()).toPoint());
    if (mark == qRgb(0, 64, 255)) state += "at " + QString::number(focus);
    if (keyboard.HeldSquare()) state += "holds " + QString::number(keyboard.HeldSquare());
    state += FirstWrongShown(picture).c_str();
    state += Control<QLabel>("lbl_Message")->text().trimmed();
    state += std::exchange(Noted, {}) + QStringList(QString(std::exchange(Beeps, 0), '*'));
    state.removeAll("");
    return state.join(' ').toStdString();
}

/// Every poll is a timer of its own: a timer does not fire again while its answer still runs, and
/// answers open further boxes.
void WindowTest::PollDialogs() {
    QTimer::singleShot(5, &Window, [this] {
        PollDialogs();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog->property("answered").toBool()) return;
        dialog->setProperty("answered", true);
        const QPointer<QWidget> guard(dialog);
        if (!Answers.empty()) {
            const Answer answer = Answers.front();
            Answers.erase(Answers.begin());
            answer(*dialog);
        }
        if (guard == nullptr || !dialog->isVisible()) return;
        Noted += dialog->objectName() + '!';
        dialog->reject();
    });
}

void WindowTest::ChooseAndAnswer(const std::string& item, std::vector<Answer> answers) {
    Answers = std::move(answers);
    DoNamed(item);
    EXPECT_TRUE(Answers.empty()) << "a dialog did not open";
}

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
