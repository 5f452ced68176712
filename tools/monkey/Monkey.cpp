#include "core/Consistency.h"
#include "core/Opening.h"
#include "engine/Random.h"
#include "engine/Strengths.h"
#include "files/FileChooser.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tools/monkey/EventLog.h"
#include "tools/monkey/Hands.h"
#include "tests/RandomPlay.h"
#include "tools/monkey/ScratchFolder.h"
#include "tests/ShownPosition.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <array>
#include <charconv>
#include <cstdlib>
#include <functional>
#include <iostream>

/// A monkey at the mouse and the keyboard of the real window.
namespace brastel {
namespace {

constexpr std::string_view Usage =
    "Usage: window_monkey EVENTS [SEED]\n"
    "Random events on the real window, offscreen, which must neither crash nor hang nor show\n"
    "anything but the position. The same seed, 1 by default, gives the same events. A failure\n"
    "prints the last of them and ends with status 1.\n";

/// Stronger ones only make the monkey wait; chosen by chance, they are set back.
#ifdef NDEBUG
constexpr int TopLevel = 4;
#else
constexpr int TopLevel = 2;
#endif

constexpr int EventsBetweenPictures = 20;
constexpr int EventsBetweenCalms = 150;
/// Menus, dialogs and held buttons are never more than a few.
constexpr int MostCalmingEvents = 60;
/// Menus, tool tips and the like that Qt keeps once they have been shown.
constexpr int SpareWidgets = 40;

constexpr QPoint Outside(-50, -50);

// clang-format off
constexpr Qt::MouseButton Buttons[] = {
    Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton,
    Qt::BackButton, Qt::ForwardButton};

constexpr int Keys[] = {
    Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space,
    Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Backspace,
    Qt::Key_F1, Qt::Key_F4, Qt::Key_F10, Qt::Key_Alt, Qt::Key_Menu, Qt::Key_Help};
constexpr Qt::KeyboardModifiers Modifiers[] = {
    {}, {}, {}, Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier, Qt::MetaModifier};
/// Access keys of menus, items and dialogs; cut, copy, paste, select all.
constexpr std::string_view Letters = "olhnscxrtedapgkyvz*.";

const char* const Menus[] = {
    "mnu_Options", "mnu_Options", "mnu_Options", "mnu_Level", "mnu_Level", "mnu_Help"};

/// In the scratch folder.
const QString Games[] = {
    "03-example.txt", "06-passes.txt", "200-entries.txt", "01-free-setup-red-ready.txt",
    "06-free-setup-uneven.txt", "unter/06-thirteen-red.txt", "unter/04-image.txt",
    "unter/03-empty.txt", "unter/05-square-113.txt", "neu", "unter/tief/neu"};
const QString OddNames[] = {
    "*.*", "*.txt", "?", "[a", "*", "unter", "unter/tief", "..", ".", "../..", "/", "//", "/proc",
    "/dev/zero", "/proc/self/mem", "/root", "~", "", " ", "no such", "unter/../neu",
    "no/such/folder", "\"quoted\"", "%s%n", "名前", "\u202eabc", "a\nb", QString(300, 'x'),
    QString(5000, 'y'), QString(3000, '/')};
// clang-format on

const std::array StatusTexts{BlankText, ThinkingText, RedWinsText, BlueWinsText, PushBackText};

/// A single event, decided at the moment at which it is due.
using Step = std::function<void()>;
using Plan = std::vector<Step>;

Plan operator+(Plan first, const Plan& then) {
    first.insert(first.end(), then.begin(), then.end());
    return first;
}

/// It acts from a timer, so that it goes on inside dialogs, menus and the pause before a search,
/// and looks at the window after each event. Every event draws from dice of its own, made from the
/// seed and the event's number: how many fitted into a pause does not matter for those after it.
class WindowMonkey {
public:
    WindowMonkey(int events, unsigned seed, const ScratchFolder& scratch);

    /// Plays until the events are used up, and opens the window again whenever it has been closed.
    /// A failure ends the program.
    void Run();
    int EventsWhileThinking() const { return ThinkingNumber; }
    int Windows() const { return WindowCount; }

private:
    /// Careful: it follows its plan without anything in between.
    enum class Mood { Wild, Calming, Careful };
    /// Where in the program the events arrive: one that opens a dialog or starts a search is still
    /// under way while others come in there.
    struct Place {
        int Loop = 0;
        bool Thinking = false;
        bool operator==(const Place&) const = default;
    };
    struct Deed {
        int Weight;
        Plan (WindowMonkey::*Make)();
    };
    static const Deed Deeds[];

    // ---- Dice ----
    int Roll(int n) { return Below(Numbers, n); }
    template <typename List>
    auto& Any(List& list) {
        return std::data(list)[Roll(static_cast<int>(std::size(list)))];
    }

    // ---- The course of things ----
    void Tick();
    void ActHere();
    void ActWhileThinking();
    void BeginEvent(int part);
    void Act();
    void ActWildly();
    void TakeStep();
    void CalmDown();
    bool DoCalmingThing();
    void GoOnFromCalm();
    bool SaveLeadsOutside() const;

    // ---- Deeds: they plan what is to come ----
    Plan Click() { return ClicksAt(Spot(), 1, Any(Buttons)); }
    Plan DoubleClick() { return ClicksAt(Spot(), 2, Any(Buttons)); }
    Plan PressOnly();
    Plan ReleaseOnly();
    Plan MoveOnly();
    Plan DragPiece();
    Plan PlayLegally();
    Plan ClickButton();
    Plan ChooseByMouse();
    Plan ChooseByKeys();
    Plan TypeKey();
    Plan TypeCharacter();
    Plan UseFileDialog();
    Plan TurnWheel();
    Plan Tap();
    Plan ChangeFocus();
    Plan ShakeWindow();
    Plan CloseWindow();

    // ---- Parts of deeds ----
    Plan ClicksAt(QPoint place, int count, Qt::MouseButton button);
    Plan Drag(QPoint from, QPoint to, Qt::MouseButton button);
    Plan TypeName(const QWidget& box);
    Plan Choose(const char* menu, QAction* item);
    Plan Key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
    /// Changes the position if the window listens; empty where the rules leave nothing to do.
    Plan LegalDeed();
    Plan LegalOpening();

    // ---- Aims ----
    QWidget* Outline() const { return Window->findChild<QWidget*>("DragOutline"); }
    QWidget* Top() const;
    QWindow* MouseTarget() const;
    QPoint Spot();
    QPoint SpotOn(QWidget& widget);
    QPoint Centre(int square) const;
    int SomePieceSquare();

    // ---- Looking ----
    [[noreturn]] void Fail(const std::string& what) const;
    void Expect(bool isRight, const std::string& what) const {
        if (!isRight) Fail(what);
    }
    void LookAtGame() const;
    void LookAtPicture() const;
    void LookAtRest() const;
    QString FixedParts() const;

    const int Events;
    const unsigned Seed;
    const ScratchFolder& Scratch;
    Dice Numbers;
    int Number = 0;
    int ThinkingNumber = 0;
    int WindowCount = 0;
    int LeftInPause = 0;
    QTimer Timer;
    Place Here;
    Mood Present = Mood::Wild;
    Plan Ahead;
    int CalmingEvents = 0;

    Hands Hand;
    /// Another program's.
    QWindow Elsewhere;
    MainWindow* Window = nullptr;
    QWidget* Form = nullptr;
    QString FixedAtFirst;
    qsizetype WidgetsAtFirst = 0;
};

const WindowMonkey::Deed WindowMonkey::Deeds[] = {
    {10, &WindowMonkey::Click},
    {6, &WindowMonkey::PressOnly},
    {6, &WindowMonkey::ReleaseOnly},
    {10, &WindowMonkey::MoveOnly},
    {8, &WindowMonkey::DoubleClick},
    {14, &WindowMonkey::DragPiece},
    {14, &WindowMonkey::PlayLegally},
    {10, &WindowMonkey::ClickButton},
    {8, &WindowMonkey::ChooseByMouse},
    {6, &WindowMonkey::ChooseByKeys},
    {16, &WindowMonkey::TypeKey},
    {4, &WindowMonkey::TypeCharacter},
    {20, &WindowMonkey::UseFileDialog},
    {3, &WindowMonkey::TurnWheel},
    {3, &WindowMonkey::Tap},
    {4, &WindowMonkey::ChangeFocus},
    {3, &WindowMonkey::ShakeWindow},
    {2, &WindowMonkey::CloseWindow},
};

WindowMonkey::WindowMonkey(int events, unsigned seed, const ScratchFolder& scratch)
    : Events(events), Seed(seed), Scratch(scratch) {
    Timer.setSingleShot(true);
    QObject::connect(&Timer, &QTimer::timeout, [this] { Tick(); });
    Elsewhere.setObjectName("elsewhere");
    Elsewhere.resize(100, 100);
    Elsewhere.show();
}

void WindowMonkey::Run() {
    while (Number < Events) {
        MainWindow window;
        Window = &window;
        Form = window.centralWidget();
        ++WindowCount;
        window.OpenMainWindow();
        FixedAtFirst = FixedParts();
        WidgetsAtFirst = QApplication::allWidgets().size();
        Ahead.clear();
        Present = Mood::Wild;
        Timer.start(1);
        QApplication::exec();
        Expect(window.IsClosing() && !window.isVisible(), "the program ended by itself");
        Expect(!IsThinking, "the program ended, but the computer thinks");
        Expect(QApplication::overrideCursor() == nullptr, "the program ended with a busy cursor");
        Expect(QApplication::activeModalWidget() == nullptr, "the program ended under a dialog");
    }
}

void WindowMonkey::Fail(const std::string& what) const {
    Scratch.Remove();
    PrintLastEvents(("FAILED: " + what).c_str());
    std::_Exit(EXIT_FAILURE);
}

// ---- The course of things ----

/// The timer also fires while an event is handled. If no dialog and no search has begun meanwhile,
/// that is not yet the time for another one.
void WindowMonkey::Tick() {
    Timer.start(1);
    const Place place{QThread::currentThread()->loopLevel(), IsThinking};
    if (place == Here || Window->IsClosing()) return;
    const Place before = std::exchange(Here, place);
    if (IsThinking) {
        ActWhileThinking();
    } else {
        ActHere();
    }
    Here = before;
}

/// Several events at a time, as long as they arrive in this event loop.
void WindowMonkey::ActHere() {
    const QWidget* modal = QApplication::activeModalWidget();
    for (int n = 0; n < 20; ++n) {
        BeginEvent(0);
        Act();
        if (Window->IsClosing()) return;
        LookAtGame();
        if (Number % EventsBetweenPictures == 0) LookAtPicture();
        if (modal != QApplication::activeModalWidget()) return;
    }
}

/// A plan that led to this search is gone on with when it is over.
void WindowMonkey::ActWhileThinking() {
    Plan ahead = std::exchange(Ahead, {});
    const Position position = Pos;
    for (int n = 0; n < 3 && LeftInPause > 0 && !Window->IsClosing(); ++n) {
        BeginEvent(LeftInPause--);
        ++ThinkingNumber;
        ActWildly();
        Expect(IsThinking && Pos == position, "the game went on while the computer thought");
        Expect(Top() == Window && !Outline()->isVisible(), "input reached the window");
        LookAtGame();
    }
    Ahead = std::move(ahead);
}

/// Dice for the event to come, and the same for the computer's coin tosses.
void WindowMonkey::BeginEvent(int part) {
    if (part == 0) ++Number;
    Numbers.seed(Seed * 1000003U + static_cast<unsigned>(Number) * 64U +
                 static_cast<unsigned>(part));
    SeedRandom(static_cast<std::uint32_t>(Numbers()));
    if (part == 0) LeftInPause = Roll(10);
    NumberEvents(Number, part);
}

void WindowMonkey::Act() {
    if (SaveLeadsOutside()) Present = Mood::Calming;
    if (Present == Mood::Careful && !Ahead.empty()) return TakeStep();
    if (Present == Mood::Careful) Present = Mood::Wild;
    const bool isTooStrong = Level > TopLevel;
    if (Present == Mood::Wild &&
        (isTooStrong || Number >= Events || Roll(EventsBetweenCalms) == 0)) {
        Present = Mood::Calming;
    }
    if (Present == Mood::Calming) return CalmDown();
    ActWildly();
}

/// Now and then something else comes in between.
void WindowMonkey::ActWildly() {
    if (Ahead.empty() || Roll(15) == 0) {
        int left = 0;
        for (const Deed& deed : Deeds) left += deed.Weight;
        left = Roll(left);
        const Deed* deed = Deeds;
        while (left >= deed->Weight) left -= (deed++)->Weight;
        Ahead = (this->*deed->Make)() + Ahead;
    }
    TakeStep();
}

void WindowMonkey::TakeStep() {
    if (Ahead.empty()) return;
    const Step step = Ahead.front();
    Ahead.erase(Ahead.begin());
    step();
}

void WindowMonkey::CalmDown() {
    Ahead.clear();
    if (DoCalmingThing()) {
        Expect(++CalmingEvents < MostCalmingEvents, "a dialog, a menu or a drag does not end");
        return;
    }
    const bool isBusyBelow = Here.Loop > 1;
    if (isBusyBelow) return;
    CalmingEvents = 0;
    LookAtRest();
    LookAtPicture();
    GoOnFromCalm();
}

/// Lets go, leaves what is open, and takes the keyboard back. False when there is nothing to do.
bool WindowMonkey::DoCalmingThing() {
    for (const Qt::MouseButton button : Buttons) {
        if (!Hand.Held.testFlag(button)) continue;
        Hand.Release(MouseTarget(), Outside, button);
        return true;
    }
    QWidget* top = Top();
    if (!top->isVisible()) return false;
    QWindow* window = top->windowHandle();
    if (top == Window && Window->isMinimized()) {
        NoteEvent("restore");
        Window->showNormal();
        QCoreApplication::processEvents();
    } else if (QApplication::activePopupWidget() == nullptr &&
               QGuiApplication::focusWindow() != window) {
        Hand.Activate(window);
    } else if (top == Window) {
        if (!Outline()->isVisible()) return false;
        // A release was lost on the way; the pointer's way back tells the window.
        Hand.Move(window, Window->rect().center());
    } else if (CalmingEvents % 8 < 6) {
        Hand.KeyDown(Qt::Key_Escape, {}, {});
    } else {
        Hand.Close(window);
    }
    return true;
}

void WindowMonkey::GoOnFromCalm() {
    std::filesystem::current_path(Scratch.Path());
    Present = Mood::Careful;
    if (Level > TopLevel) {
        const int level = Roll(TopLevel + 1);
        const auto* item = level == TwoPlayerLevel
                               ? "mnu_TwoPlayer"
                               : Strengths[static_cast<std::size_t>(level - 1)].Item.data();
        Ahead = Choose("mnu_Level", Window->findChild<QAction*>(item)) +
                Plan{[this, level] { Expect(Level == level, "the level cannot be chosen"); }};
    } else if (Number >= Events) {
        Hand.Close(Window->windowHandle());
    } else {
        Ahead = LegalDeed();
        if (Ahead.empty()) return;
        Ahead.emplace_back([this, before = Pos] {
            Expect(Pos != before, "the window does not listen to a legal action");
        });
    }
}

/// True while a confirmed name would be written outside the scratch folder.
bool WindowMonkey::SaveLeadsOutside() const {
    const auto isFileDialog = [](const QWidget* widget) {
        return widget->objectName() == "frmOpenSave" && widget->isVisible();
    };
    if (std::ranges::none_of(QApplication::topLevelWidgets(), isFileDialog)) return false;
    if (Chooser.Mode != ChooserMode::Save) return false;
    const std::filesystem::path name = Chooser.NameBox.c_str();
    return !Scratch.Holds(Chooser.Folder) || !Scratch.Holds(Chooser.Folder / name);
}

// ---- Aims ----

/// What gets mouse and keyboard.
QWidget* WindowMonkey::Top() const {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return Window;
}

QWindow* WindowMonkey::MouseTarget() const {
    const bool isGrabbed = Hand.Held != Qt::NoButton && Hand.Grabber != nullptr;
    return isGrabbed ? Hand.Grabber.data() : Top()->windowHandle();
}

QPoint WindowMonkey::Centre(int square) const {
    const QPoint middle(CellSize / 2, CellSize / 2);
    return Form->mapTo(Window, QPoint(SquareLeft(square), SquareTop(square)) + middle);
}

int WindowMonkey::SomePieceSquare() {
    const int side = Roll(4) > 0 ? Pos.SideToMove : -Pos.SideToMove;
    const int count = PieceCount(side);
    const int square = count > 0 ? SquaresOf(side)[1 + Roll(count)] : NoSquare;
    return square == NoSquare ? 1 + Roll(LastSquare) : square;
}

QPoint WindowMonkey::SpotOn(QWidget& widget) {
    QList<QAction*> actions = widget.actions();
    if (auto* menu = qobject_cast<QMenu*>(&widget); menu != nullptr && !actions.empty()) {
        return menu->actionGeometry(Any(actions)).center();
    }
    if (auto* bar = qobject_cast<QMenuBar*>(&widget); bar != nullptr && Roll(3) > 0) {
        return bar->actionGeometry(Any(actions)).center();
    }
    if (auto* list = qobject_cast<QListWidget*>(widget.parent()); list != nullptr) {
        return list->visualItemRect(list->item(Roll(qMax(1, list->count())))).center();
    }
    if (Roll(3) == 0) return widget.rect().center();
    return {Roll(qMax(1, widget.width())), Roll(qMax(1, widget.height()))};
}

/// A place worth a click in the window that has the mouse, or anywhere in it or around it.
QPoint WindowMonkey::Spot() {
    QWidget* top = Top();
    if (Roll(8) == 0) return {Roll(top->width() + 200) - 100, Roll(top->height() + 200) - 100};
    if (top == Window && Roll(2) == 0) return Centre(SomePieceSquare());
    QList<QWidget*> parts{top};
    for (QWidget* part : top->findChildren<QWidget*>()) {
        if (part->isVisible() && part->window() == top) parts.push_back(part);
    }
    QWidget* part = Any(parts);
    return part->mapTo(top, SpotOn(*part));
}

// ---- Deeds ----

Plan WindowMonkey::PressOnly() {
    return {[this] { Hand.Press(MouseTarget(), Spot(), Any(Buttons)); }};
}

Plan WindowMonkey::ReleaseOnly() {
    return {[this] { Hand.Release(MouseTarget(), Spot(), Any(Buttons)); }};
}

Plan WindowMonkey::MoveOnly() {
    return {[this] { Hand.Move(MouseTarget(), Spot()); }};
}

/// Press and release, and again; the place may come to lie in another window on the way.
Plan WindowMonkey::ClicksAt(QPoint place, int count, Qt::MouseButton button) {
    Plan plan;
    for (int n = 0; n < count; ++n) {
        plan.emplace_back([=, this] {
            if (n == 0) Hand.Press(MouseTarget(), place, button);
            if (n > 0) Hand.PressAgain(MouseTarget(), place, button);
        });
        plan.emplace_back([=, this] { Hand.Release(MouseTarget(), place, button); });
    }
    return plan;
}

Plan WindowMonkey::Drag(QPoint from, QPoint to, Qt::MouseButton button) {
    return {
        [=, this] { Hand.Press(MouseTarget(), from, button); },
        [=, this] { Hand.Move(MouseTarget(), (from + to) / 2); },
        [=, this] { Hand.Move(MouseTarget(), to); },
        [=, this] { Hand.Release(MouseTarget(), to, button); },
    };
}

Plan WindowMonkey::DragPiece() {
    const int from = SomePieceSquare();
    const int to = from + Roll(5) - 2 + (Roll(5) - 2) * Down;
    return Drag(Centre(from), IsOnBoard(to) ? Centre(to) : Spot(), Any(Buttons));
}

Plan WindowMonkey::ClickButton() {
    QList<QPushButton*> buttons;
    for (QPushButton* button : Top()->findChildren<QPushButton*>()) {
        if (button->isVisible()) buttons.push_back(button);
    }
    if (buttons.empty()) return Click();
    const QPushButton* button = Any(buttons);
    const bool isImpatient = Roll(8) == 0;
    return ClicksAt(button->mapTo(Top(), button->rect().center()), isImpatient ? Roll(60) : 1,
                    Qt::LeftButton);
}

Plan WindowMonkey::Choose(const char* name, QAction* item) {
    auto* menu = Window->findChild<QMenu*>(name);
    const QMenuBar* bar = Window->menuBar();
    const QPoint entry = bar->mapTo(Window, bar->actionGeometry(menu->menuAction()).center());
    const auto place = [=] { return menu->actionGeometry(item).center(); };
    return ClicksAt(entry, 1, Qt::LeftButton) +
           Plan{[=, this] { Hand.Press(menu->windowHandle(), place(), Qt::LeftButton); },
                [=, this] { Hand.Release(menu->windowHandle(), place(), Qt::LeftButton); }};
}

/// Or only opens a menu.
Plan WindowMonkey::ChooseByMouse() {
    const char* name = Any(Menus);
    QList<QAction*> items = Window->findChild<QMenu*>(name)->actions();
    Plan plan = Choose(name, Any(items));
    if (Roll(5) == 0) plan.resize(2);
    return plan;
}

Plan WindowMonkey::ChooseByKeys() {
    constexpr int Entries[] = {Qt::Key_O, Qt::Key_L, Qt::Key_L, Qt::Key_H};
    Plan plan = Key(Any(Entries), Qt::AltModifier);
    if (Roll(2) == 0) return plan + TypeCharacter();
    for (int n = Roll(12); n > 0; --n) plan = plan + Key(Qt::Key_Down);
    return plan + Key(Qt::Key_Return);
}

Plan WindowMonkey::Key(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    return {[=, this] { Hand.KeyDown(key, modifiers, text); },
            [=, this] { Hand.KeyUp(key, modifiers, text); }};
}

Plan WindowMonkey::TypeKey() { return Key(Any(Keys), Any(Modifiers)); }

Plan WindowMonkey::TypeCharacter() {
    if (Roll(4) == 0) return Key(0, {}, QString(QChar(' ' + Roll(0xFFF0))));
    const QChar letter(Any(Letters));
    return Key(letter.toUpper().unicode(), Any(Modifiers), letter);
}

/// Mostly names and lists: the dialog's other parts are clicked by chance.
Plan WindowMonkey::UseFileDialog() {
    const auto* box = Top()->findChild<QLineEdit*>("txtOpenSave");
    if (box == nullptr) return Click();
    if (Roll(2) == 0) return TypeName(*box);
    const auto* list = Top()->findChild<QListWidget*>(Roll(3) > 0 ? "filOpenSave" : "dirOpenSave");
    QWidget* rows = list->viewport();
    return ClicksAt(rows->mapTo(Top(), SpotOn(*rows)), 1 + Roll(2), Qt::LeftButton);
}

Plan WindowMonkey::TypeName(const QWidget& box) {
    const QString folder = QString::fromStdString(Scratch.Path()) + "/";
    const QString name = Roll(2) == 0 ? folder + Any(Games) : Any(OddNames);
    return ClicksAt(box.geometry().center(), 1, Qt::LeftButton) +
           Key(Qt::Key_A, Qt::ControlModifier) + Plan{[=, this] { Hand.Commit(name); }} +
           Key(Qt::Key_Return);
}

Plan WindowMonkey::TurnWheel() {
    return {[this] { Hand.Wheel(MouseTarget(), Spot(), Roll(2) == 0 ? 120 : -120); }};
}

Plan WindowMonkey::Tap() {
    return {[this] { Hand.Tap(MouseTarget(), Spot()); }};
}

Plan WindowMonkey::ChangeFocus() {
    return {[this] {
        const int dice = Roll(4);
        if (dice == 0) return Hand.Activate(&Elsewhere);
        if (dice == 1) return Hand.LeaveWindow(Top()->windowHandle());
        Hand.Activate(Top()->windowHandle());
    }};
}

/// Resizing is refused by every window.
Plan WindowMonkey::ShakeWindow() {
    return {[this] {
        NoteEvent("shake");
        QWidget* top = Top();
        if (!top->isVisible() || top->windowType() == Qt::Popup) return;
        const int dice = Roll(4);
        if (dice == 0) top->resize(Roll(2000), Roll(2000));
        if (dice == 1) top->move(Roll(2000) - 500, Roll(2000) - 500);
        if (dice == 2) top->showMinimized();
        if (dice == 3) top->showNormal();
        QCoreApplication::processEvents();
    }};
}

/// Mostly a dialog: a new main window is a new game.
Plan WindowMonkey::CloseWindow() {
    return {[this] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal != nullptr) return Hand.Close(modal->windowHandle());
        if (Roll(4) == 0) Hand.Close(Window->windowHandle());
    }};
}

Plan WindowMonkey::PlayLegally() { return IsThinking ? DragPiece() : LegalDeed(); }

Plan WindowMonkey::LegalDeed() {
    if (!BothRingsPlaced()) return LegalOpening();
    if (IsRecordFull()) {
        const auto* button = Window->findChild<QWidget*>("btn_Backward");
        return ClicksAt(button->mapTo(Window, button->rect().center()), 1, Qt::LeftButton);
    }
    GenerateMoves(1);
    const auto [from, to] = DrawAction(Numbers);
    if (from == NoSquare) return {};
    return Drag(Centre(from), Centre(to), Any(Buttons));
}

Plan WindowMonkey::LegalOpening() {
    const int side = IsPlacingRing(Red) ? Red : Blue;
    if (InFreeSetup() && PieceCount(side) < (Roll(8) == 0 ? 1 : MaxPieces)) {
        int square = 1 + Roll(LastSquare);
        while (!InField(square) || Pos.Board[square] != Empty) square = 1 + Roll(LastSquare);
        return ClicksAt(Centre(square), 1, Any(Buttons));
    }
    for (int i = std::min(PieceCount(side), LastRingPiece); i >= 1; --i) {
        const int square = SquaresOf(side)[i];
        if (square != NoSquare) return ClicksAt(Centre(square), 2, Any(Buttons));
    }
    return {};
}

// ---- Looking ----

/// While the window is away, a game is read from a file, and nothing need fit.
void WindowMonkey::LookAtGame() const {
    if (!Window->isVisible()) return;
    Expect(PositionIsConsistent(), FirstInconsistency());
    const auto isShown = [this](const char* name) {
        return Window->findChild<QWidget*>(name)->isVisibleTo(Form);
    };
    Expect(isShown("btn_Forward") == ForwardVisible, "Forward is not as the game has it");
    Expect(isShown("btn_Backward") == BackwardVisible, "Backward is not as the game has it");
    Expect(isShown("btn_Hint"), "Hint is hidden");
    for (const QAction* item : Window->findChild<QMenu*>("mnu_Level")->actions()) {
        const bool isLevel = item->isCheckable() && item->data().toInt() == Level;
        Expect(item->isChecked() == isLevel, "the level's check mark");
    }
    const std::string text = Window->findChild<QLabel*>("lbl_Message")->text().toStdString();
    Expect(std::ranges::count(StatusTexts, text) == 1, "the status line says " + text);
    Expect((text == ThinkingText) == IsThinking, "the status line says " + text);
    Expect((QApplication::overrideCursor() != nullptr) == IsThinking, "the busy cursor");
}

/// What is on the screen, not what would be painted now.
void WindowMonkey::LookAtPicture() const {
    const auto isSeen = [this] {
        return Window->isVisible() && !Window->isMinimized() && !Outline()->isVisible();
    };
    std::string wrong;
    for (int attempt = 0; attempt < 50 && isSeen(); ++attempt) {
        const QRect place = Form->geometry();
        wrong = FirstWrongShown(
            Window->screen()
                ->grabWindow(Window->winId(), place.x(), place.y(), place.width(), place.height())
                .toImage());
        if (wrong.empty()) return;
        QTest::qWait(10);
    }
    Expect(!isSeen() || wrong.empty(), "the window does not show the position: " + wrong);
}

void WindowMonkey::LookAtRest() const {
    Expect(Window->isVisible(), "the window is away, and no dialog is there");
    Expect(FixedParts() == FixedAtFirst, "a control or the window has another place or size");
    const qsizetype widgets = QApplication::allWidgets().size();
    Expect(widgets <= WidgetsAtFirst + SpareWidgets,
           std::to_string(WidgetsAtFirst) + " widgets became " + std::to_string(widgets));
}

/// Places and sizes of the window's parts.
QString WindowMonkey::FixedParts() const {
    QString parts;
    QDebug out(&parts);
    out << Window->size() << Window->menuBar()->geometry();
    for (const QWidget* part : Form->findChildren<QWidget*>()) {
        if (part->objectName() != "DragOutline") out << part->objectName() << part->geometry();
    }
    return parts;
}

// ---- The program ----

bool ReadNumber(std::string_view text, unsigned& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// Nothing of the user's is read, and nothing but the scratch folder is written.
void PrepareEnvironment(const ScratchFolder& scratch) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* name : {"HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(name, QByteArray::fromStdString(scratch.Path()));
    }
}

/// What the platform says about itself at every dialog, and the fonts at odd characters, is left
/// out.
void PrintMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    for (const auto* usual : {"This plugin does not support", "OpenType support missing"}) {
        if (text.contains(usual)) return;
    }
    std::cerr << text.toStdString() << std::endl;
}

int Play(unsigned events, unsigned seed) {
    const ScratchFolder scratch;
    PrepareEnvironment(scratch);
    WatchEvents("Seed " + std::to_string(seed) + ", the last events:");
    int count = 1;
    char name[] = "window_monkey";
    char* names[] = {name, nullptr};
    qInstallMessageHandler(PrintMessage);
    const QApplication application(count, names);
    QApplication::setQuitOnLastWindowClosed(false);
    WindowMonkey monkey(static_cast<int>(events), seed, scratch);
    monkey.Run();
    std::cout << events << " events and " << monkey.EventsWhileThinking()
              << " while the computer thought, in " << monkey.Windows() << " windows, seed " << seed
              << "\n";
    return 0;
}

}  // namespace
}  // namespace brastel

int main(int count, char** texts) {
    using namespace brastel;
    unsigned events = 0;
    unsigned seed = 1;
    const bool isRight = (count == 2 || count == 3) && ReadNumber(texts[1], events) &&
                         (count == 2 || ReadNumber(texts[2], seed));
    if (!isRight || events > 1000000000) {
        std::cerr << Usage;
        return 2;
    }
    return Play(events, seed);
}
