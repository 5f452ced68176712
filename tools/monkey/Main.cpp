/// Random deeds on the real window, offscreen, which must neither crash nor hang nor show anything
/// but the position. The same seed gives the same events; they are printed as they come. Status 1
/// after a failure, 77 where there can be no sandbox, SIGALRM after a minute in which the program
/// does not go on, or a menu, dialog or drag not end.

#include "engine/Random.h"
#include "play/GameState.h"
#include "tests/Sandbox.h"
#include "tools/ReadNumber.h"
#include "tools/monkey/Deeds.h"
#include "tools/monkey/Hands.h"
#include "tools/monkey/Looks.h"
#include "tools/player/Chance.h"
#include "tools/player/GameLine.h"
#include "tools/player/Require.h"
#include "tools/player/Watch.h"

#include <QApplication>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace brastel {

namespace {

/// Stronger ones only make the monkey wait; chosen by chance, they are set back.
constexpr int TopLevel = 2;
constexpr int EventsBetweenCalms = 60;
constexpr int MostDeedsInPause = 10;
constexpr unsigned PatienceSeconds = 60;

/// Where in the program events arrive, by the depth of its event loops and whether it thinks: a
/// deed that opens a dialog or starts a search is still under way while others come in there.
using Whereabouts = std::pair<int, bool>;

std::int64_t LastEvent = 0;
unsigned Seed = 0;
int Number = 0;
int DeedsInPause = 0;
Whereabouts Here{0, false};
bool IsCalming = false;

/// Every deed draws from dice of its own, made from the seed and the deed's number: how many fitted
/// into a pause, part 1 and more, does not matter for those after it. The same goes for the
/// computer's coin tosses.
void BeginEvent(int part) {
    DeedsInPause = part;
    Chance = Dice(Seed * 1000003U + static_cast<unsigned>(Number * 64 + part));
    SeedRandom(static_cast<std::uint32_t>(Chance()));
    EventName = std::to_string(Number) + (part > 0 ? " while thinking: " : ": ");
}

// ---- Calming down: now and then everything is left and looked at ----

/// Lets go, leaves what is open, and takes the keyboard back. A drag goes on here only if its
/// release was lost on the way. False when there is nothing to do.
bool DoCalmingThing() {
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

/// Commands come after the event that gives them, and the keyboard changes hands even later.
void AwaitCommands() {
    QCoreApplication::processEvents();
    const auto isDone = [] {
        const auto timers = GameWindow->findChildren<QTimer*>(Qt::FindDirectChildrenOnly);
        return std::ranges::none_of(timers, &QTimer::isActive);
    };
    Require(QTest::qWaitFor(isDone), "a command is never run");
}

/// A gesture of the common list, with the common checks.
void PlayCarefully() {
    Gesture gesture = DrawGesture();
    if (Level > TopLevel) gesture = {Kind::LevelChoice, {}, {}, 0, 0, Roll(TopLevel + 1)};
    const Deed deed = DeedOf(gesture);
    if (!deed) return;
    BeginWatching();
    const auto look = Watch(gesture);
    deed();
    AwaitCommands();
    look();
}

void CalmDown() {
    AwaitCommands();
    const bool isBusyBelow = Here.first > 1;
    if (DoCalmingThing() || isBusyBelow) return;
    IsCalming = false;
    LookAtRest();
    LookAtPicture();
    std::filesystem::current_path(GamesFolder);
    Level <= TopLevel&& Number >= LastEvent ? Close() : PlayCarefully();
}

// ---- The course of things ----

void ActHere() {
    ++Number;
    BeginEvent(0);
    if (Level > TopLevel || Number >= LastEvent || OneIn(EventsBetweenCalms)) IsCalming = true;
    if (!IsCalming) alarm(PatienceSeconds);
    IsCalming ? CalmDown() : DoAnything();
    if (GameWindow->IsClosing()) return;
    LookAtControls();
    if (OneIn(20)) LookAtPicture();
}

void ActWhileThinking() {
    if (DeedsInPause == MostDeedsInPause) return;
    const Snapshot before = CopyOfGameData();
    BeginEvent(DeedsInPause + 1);
    DoAnything();
    Require(IsThinking && GameData() == before, "the game went on while the computer thought");
    Require(&Top() == GameWindow && !Outline().isVisible(), "input reached the window");
    LookAtControls();
}

/// Called again and again, inside dialogs, menus and the pause before a search, too, and while an
/// event is handled: if no dialog and no search has begun meanwhile, that is not yet the time for
/// another one.
void Tick() try {
    const Whereabouts place{QThread::currentThread()->loopLevel(), IsThinking};
    if (place == Here || GameWindow->IsClosing()) return;
    const Whereabouts before = std::exchange(Here, place);
    IsThinking ? ActWhileThinking() : ActHere();
    Here = before;
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
    while (Number < LastEvent) {
        MainWindow window;
        GameWindow = &window;
        window.OpenMainWindow();
        RememberWindow();
        IsCalming = false;
        timer.start(0);
        QApplication::exec();
        LookAtEnd();
    }
    OtherWindow = nullptr;
}

}  // namespace

}  // namespace brastel

int main(int count, char** texts) {
    using namespace brastel;
    constexpr std::int64_t Plenty = 1'000'000'000;
    const auto events = ReadNumber(count == 2 || count == 3 ? texts[1] : "", 0, Plenty);
    const auto seed = ReadNumber(count == 3 ? texts[2] : "1", 0, Plenty);
    if (!events || !seed) return std::cerr << "Usage: window_monkey DEEDS [SEED]\n", 2;
    EnterSandbox(texts);
    // It saves games anywhere.
    if (!IsInSandbox()) return std::cerr << "Skipped: this system allows no sandbox.\n", 77;
    LastEvent = *events;
    Seed = static_cast<unsigned>(*seed);
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
    std::cout << Number << " deeds, seed " << Seed << "\n";
}
