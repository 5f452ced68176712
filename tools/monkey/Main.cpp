/// Sends random inputs to the real window, offscreen. It must neither crash nor hang nor show
/// anything but the position. The same seed gives the same events, which are printed as they come.
/// Ends with status 1 after a failure, with 77 where there can be no sandbox, and by SIGALRM after
/// a minute in which the program does not go on or a menu, dialog or drag does not end.

#include "engine/Random.h"
#include "play/GameState.h"
#include "testing/GameLine.h"
#include "testing/GestureChecks.h"
#include "testing/RandomSource.h"
#include "testing/Require.h"
#include "testing/Sandbox.h"
#include "tools/CommandLine.h"
#include "tools/monkey/Events.h"
#include "tools/monkey/Inputs.h"
#include "tools/monkey/WindowChecks.h"

#include <QApplication>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace brastel {

namespace {

/// Stronger levels only make the run longer. One that was chosen at random is set back.
constexpr int TopLevel = 2;
constexpr int InputsBetweenChecks = 60;
constexpr int MostInputsInPause = 10;
constexpr unsigned PatienceSeconds = 60;

/// The depth of the program's event loops, and whether the computer thinks. An input that opens a
/// dialog or starts a search is not over yet when other inputs come in there.
using LoopState = std::pair<int, bool>;

RandomRun Run;
int Number = 0;
int InputsInPause = 0;
LoopState CurrentLoop{0, false};
bool IsSettling = false;

/// Seeds both random generators from the seed of the run and the number of the input. The inputs
/// that fit into a pause (part 1 and more) differ from run to run, and must not change those after.
void BeginEvent(int part) {
    InputsInPause = part;
    RandomSource = Dice(static_cast<unsigned>(Run.Seed) * 1000003U +
                        static_cast<unsigned>(Number * 64 + part));
    SeedRandom(static_cast<std::uint32_t>(RandomSource()));
    EventName = std::to_string(Number) + (part > 0 ? " while thinking: " : ": ");
}

// ---- Settling: now and then everything is closed, and the window is checked ----

/// Releases a button, closes a dialog, or takes the keyboard back. A drag can only go on here if
/// its release was lost on the way. False when there is nothing to do.
bool CloseSomething() {
    const unsigned held = QTestPrivate::qtestMouseButtons.toInt();
    QWidget& top = Top();
    QWindow* window = top.windowHandle();
    if (!top.isVisible()) return false;
    if (held != 0) return Release({-50, -50}, static_cast<Qt::MouseButton>(held & -held)), true;
    if (&top != GameWindow) return Close(), true;
    if (GameWindow->isMinimized()) return GameWindow->showNormal(), true;
    if (QGuiApplication::focusWindow() != window) return Activate(window), true;
    const bool isDragging = Outline().isVisible();
    if (isDragging) Move(GameWindow->rect().center());
    return isDragging;
}

/// Commands run after the event that gives them, and the keyboard focus changes even later.
void AwaitCommands() {
    QCoreApplication::processEvents();
    const auto isDone = [] {
        const auto timers = GameWindow->findChildren<QTimer*>(Qt::FindDirectChildrenOnly);
        return std::ranges::none_of(timers, &QTimer::isActive);
    };
    Require(QTest::qWaitFor(isDone), "a command is never run");
}

/// A gesture of the common list, with the common checks.
void PlayCheckedGesture() {
    Gesture gesture = DrawGesture();
    if (Level > TopLevel) gesture = {Kind::LevelChoice, {}, {}, 0, 0, Roll(TopLevel + 1)};
    const InputSequence inputs = InputsOf(gesture);
    if (!inputs) return;
    BeginWatching();
    const auto check = Watch(gesture);
    inputs();
    AwaitCommands();
    check();
}

void Settle() {
    AwaitCommands();
    const bool isBusyBelow = CurrentLoop.first > 1;
    if (CloseSomething() || isBusyBelow) return;
    IsSettling = false;
    CheckRest();
    CheckPicture();
    std::filesystem::current_path(GamesFolder);
    if (Level <= TopLevel && Number >= Run.Times) return Close();
    PlayCheckedGesture();
}

// ---- When inputs come ----

void ActHere() {
    ++Number;
    BeginEvent(0);
    if (Level > TopLevel || Number >= Run.Times || OneIn(InputsBetweenChecks)) IsSettling = true;
    if (!IsSettling) alarm(PatienceSeconds);
    IsSettling ? Settle() : SendAnything();
    if (GameWindow->IsClosing()) return;
    CheckControls();
    if (OneIn(20)) CheckPicture();
}

void ActWhileThinking() {
    if (InputsInPause == MostInputsInPause) return;
    const Snapshot before = CopyOfGameData();
    BeginEvent(InputsInPause + 1);
    SendAnything();
    Require(IsThinking && GameData() == before, "the game went on while the computer thought");
    Require(&Top() == GameWindow && !Outline().isVisible(), "input reached the window");
    CheckControls();
}

/// Called again and again, also inside dialogs, menus and the pause before a search. While an input
/// is handled, another one is sent only if a dialog or a search has begun meanwhile.
void Tick() try {
    const LoopState place{QThread::currentThread()->loopLevel(), IsThinking};
    if (place == CurrentLoop || GameWindow->IsClosing()) return;
    const LoopState before = std::exchange(CurrentLoop, place);
    IsThinking ? ActWhileThinking() : ActHere();
    CurrentLoop = before;
} catch (const std::exception& fault) {
    std::cerr << "FAILED: " << fault.what() << std::endl;
    std::_Exit(EXIT_FAILURE);
}

/// Opens the window again whenever it has been closed.
void PlayMonkey() {
    QWindow other;
    other.setObjectName("elsewhere");
    other.resize(100, 100);
    other.show();
    OtherWindow = &other;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&timer] {
        timer.start(0);
        Tick();
    });
    StatusLine = [] { return GameWindow->findChild<QLabel*>("lbl_Message")->text().toStdString(); };
    while (Number < Run.Times) {
        MainWindow window;
        GameWindow = &window;
        window.OpenMainWindow();
        RememberWindow();
        IsSettling = false;
        timer.start(0);
        QApplication::exec();
        CheckEnd();
    }
    OtherWindow = nullptr;
}

int Main(int count, char** texts) {
    CLI::App app("Sends random inputs to the real window, offscreen.\n", "window_monkey");
    if (const auto status = ReadRandomRun(app, "INPUTS", Run, count, texts)) return *status;
    EnterSandbox(texts);
    // It saves games anywhere.
    if (!IsInSandbox()) return std::cerr << "Skipped: this system allows no sandbox.\n", 77;
    std::filesystem::copy(BRASTEL_TEST_DATA, GamesFolder, std::filesystem::copy_options::recursive);
    std::filesystem::current_path(GamesFolder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* name : {"QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR"}) qunsetenv(name);
    // The platform complains at every dialog, and the fonts at odd characters.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int oneName = 1;
    const QApplication application(oneName, texts);
    QApplication::setQuitOnLastWindowClosed(false);
    PlayMonkey();
    std::cout << Number << " inputs, seed " << Run.Seed << "\n";
    return Done;
}

}  // namespace

}  // namespace brastel

int main(int count, char** texts) {
    return brastel::RunProgram("window_monkey", brastel::Main, count, texts);
}
