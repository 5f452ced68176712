#include "tools/monkey/Monkey.h"

#include "engine/Random.h"
#include "play/GameState.h"
#include "tools/Chance.h"
#include "tools/monkey/Aims.h"
#include "tools/monkey/Deeds.h"
#include "tools/monkey/EventLog.h"
#include "tools/monkey/Hands.h"
#include "tools/monkey/Looks.h"

#include <QAction>
#include <QApplication>
#include <QThread>
#include <QTimer>

#include <iostream>

namespace brastel {

namespace {

/// Stronger ones only make the monkey wait; chosen by chance, they are set back.
#ifdef NDEBUG
constexpr int TopLevel = 4;
#else
constexpr int TopLevel = 2;
#endif

const char* const Levels[] = {"mnu_TwoPlayer", "mnu_Easy", "mnu_Medium", "mnu_Difficult",
                              "mnu_Advanced"};

constexpr int EventsBetweenPictures = 20;
constexpr int EventsBetweenCalms = 150;
/// Menus, dialogs and held buttons are never more than a few.
constexpr int MostCalmingEvents = 60;

/// Careful: it follows its plan without anything in between.
enum class Mood { Wild, Calming, Careful };

/// Where in the program events arrive, by the depth of its event loops and whether it thinks: an
/// event that opens a dialog or starts a search is still under way while others come in there.
using Whereabouts = std::pair<int, bool>;

int LastEvent = 0;
unsigned Seed = 0;
int Number = 0;
int NumberWhileThinking = 0;
int LeftInPause = 0;
Whereabouts Here{0, false};
Mood Present = Mood::Wild;
Plan Ahead;
int CalmingEvents = 0;

/// Every event draws from dice of its own, made from the seed and the event's number: how many
/// fitted into a pause, part 1 and more, does not matter for those after it. The same goes for the
/// computer's coin tosses.
void BeginEvent(int part) {
    ++(part == 0 ? Number : NumberWhileThinking);
    Chance.seed(Seed * 1000003U + static_cast<unsigned>(Number) * 64U +
                static_cast<unsigned>(part));
    SeedRandom(static_cast<std::uint32_t>(Chance()));
    if (part == 0) LeftInPause = Roll(10);
    EventName = std::to_string(Number) + (part > 0 ? " while thinking: " : ": ");
}

void TakeStep() {
    if (Ahead.empty()) return;
    const Step step = Ahead.front();
    Ahead.erase(Ahead.begin());
    step();
}

/// Now and then something else comes in between.
void ActWildly() {
    if (Ahead.empty() || OneIn(15)) Ahead = AnyDeed() + Ahead;
    TakeStep();
}

// ---- Calming down: now and then everything is left and looked at ----

/// A drag goes on here only if its release was lost on the way. False when there is nothing to do.
bool CalmGameWindow() {
    if (!GameWindow->isVisible()) return false;
    QWindow* window = GameWindow->windowHandle();
    if (GameWindow->isMinimized()) {
        Restore(window);
    } else if (QGuiApplication::focusWindow() != window) {
        Activate(window);
    } else if (Outline().isVisible()) {
        Move(GameWindow->rect().center());
    } else {
        return false;
    }
    return true;
}

/// Lets go, leaves what is open, and takes the keyboard back. False when there is nothing to do.
bool DoCalmingThing() {
    if (HeldButtons() != Qt::NoButton) {
        ReleaseOne({-50, -50});
        return true;
    }
    QWidget& top = Top();
    if (&top == GameWindow) return CalmGameWindow();
    if (!top.isVisible()) return false;
    QWindow* window = top.windowHandle();
    const bool hasKeyboard =
        QGuiApplication::focusWindow() == window || QApplication::activePopupWidget() != nullptr;
    if (!hasKeyboard) {
        Activate(window);
    } else if (CalmingEvents % 8 < 6) {
        KeyDown(Qt::Key_Escape, {}, {});
    } else {
        Close(window);
    }
    return true;
}

void LowerLevel() {
    auto* item = GameWindow->findChild<QAction*>(Levels[Roll(TopLevel + 1)]);
    Ahead = Choose("mnu_Level", item) +
            Plan{[item] { Expect(Level == item->data().toInt(), "the level cannot be chosen"); }};
}

void PlayLegally() {
    Ahead = LegalDeed();
    if (Ahead.empty()) return;
    Ahead.emplace_back(
        [before = Pos] { Expect(Pos != before, "the window does not listen to a legal action"); });
}

void CalmDown() {
    Ahead.clear();
    if (DoCalmingThing()) {
        return Expect(++CalmingEvents < MostCalmingEvents, "a dialog, menu or drag does not end");
    }
    const bool isBusyBelow = Here.first > 1;
    if (isBusyBelow) return;
    CalmingEvents = 0;
    LookAtRest();
    LookAtPicture();
    std::filesystem::current_path(GamesFolder);
    Present = Mood::Careful;
    if (Level > TopLevel) return LowerLevel();
    if (Number >= LastEvent) return Close(GameWindow->windowHandle());
    PlayLegally();
}

// ---- The course of things ----

void Act() {
    if (Present == Mood::Careful && !Ahead.empty()) return TakeStep();
    if (Present == Mood::Careful) Present = Mood::Wild;
    const bool mustCalm = Level > TopLevel || Number >= LastEvent;
    if (Present == Mood::Wild && (mustCalm || OneIn(EventsBetweenCalms))) Present = Mood::Calming;
    Present == Mood::Calming ? CalmDown() : ActWildly();
}

/// Several events at a time, as long as they arrive in this event loop.
void ActHere() {
    const QWidget* modal = QApplication::activeModalWidget();
    for (int n = 0; n < 20; ++n) {
        BeginEvent(0);
        Act();
        if (GameWindow->IsClosing()) return;
        LookAtGame();
        if (Number % EventsBetweenPictures == 0) LookAtPicture();
        if (modal != QApplication::activeModalWidget()) return;
    }
}

/// A plan that led to this search is gone on with when it is over.
void ActWhileThinking() {
    Plan ahead = std::exchange(Ahead, {});
    const Position position = Pos;
    for (int n = 0; n < 3 && LeftInPause > 0 && !GameWindow->IsClosing(); ++n) {
        BeginEvent(LeftInPause--);
        ActWildly();
        Expect(IsThinking && Pos == position, "the game went on while the computer thought");
        Expect(&Top() == GameWindow && !Outline().isVisible(), "input reached the window");
        LookAtGame();
    }
    Ahead = std::move(ahead);
}

/// Called again and again, inside dialogs, menus and the pause before a search, too, and while an
/// event is handled: if no dialog and no search has begun meanwhile, that is not yet the time for
/// another one.
void Tick() {
    const Whereabouts place{QThread::currentThread()->loopLevel(), IsThinking};
    if (place == Here || GameWindow->IsClosing()) return;
    const Whereabouts before = std::exchange(Here, place);
    IsThinking ? ActWhileThinking() : ActHere();
    Here = before;
}

}  // namespace

void PlayMonkey(int events, unsigned seed) {
    LastEvent = events;
    Seed = seed;
    QWindow other;
    other.setObjectName("elsewhere");
    other.resize(100, 100);
    other.show();
    OtherWindow = &other;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&timer] {
        timer.start(1);
        Tick();
    });
    int windows = 0;
    while (Number < events) {
        MainWindow window;
        GameWindow = &window;
        ++windows;
        window.OpenMainWindow();
        RememberWindow();
        Ahead.clear();
        Present = Mood::Wild;
        timer.start(1);
        QApplication::exec();
        LookAtEnd();
    }
    OtherWindow = nullptr;
    std::cout << events << " events and " << NumberWhileThinking
              << " while the computer thought, in " << windows << " windows, seed " << seed << "\n";
}

}  // namespace brastel
