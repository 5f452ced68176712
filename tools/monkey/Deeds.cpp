#include "tools/monkey/Deeds.h"

#include "core/Opening.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tools/Chance.h"
#include "tools/monkey/Aims.h"
#include "tools/monkey/EventLog.h"
#include "tools/monkey/Hands.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>

namespace brastel {

namespace {

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

constexpr int MenuKeys[] = {Qt::Key_O, Qt::Key_L, Qt::Key_L, Qt::Key_H};

/// In their folder, or to be made there.
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

// ---- Parts of deeds ----

/// Press and release, and again; the place may come to lie in another window on the way.
Plan Clicks(QPoint place, int count, Qt::MouseButton button) {
    Plan plan;
    for (int n = 0; n < count; ++n) {
        plan.emplace_back([=] { n == 0 ? Press(place, button) : PressAgain(place, button); });
        plan.emplace_back([=] { Release(place, button); });
    }
    return plan;
}

Plan Drag(QPoint from, QPoint to, Qt::MouseButton button) {
    return {
        [=] { Press(from, button); },
        [=] { Move((from + to) / 2); },
        [=] { Move(to); },
        [=] { Release(to, button); },
    };
}

Plan Type(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    return {[=] { KeyDown(key, modifiers, text); }, [=] { KeyUp(key, modifiers, text); }};
}

Plan TypeName(const QWidget& box) {
    const QString folder = QString::fromStdString(GamesFolder) + "/";
    const QString name = OneIn(2) ? folder + AnyOf(Games) : AnyOf(OddNames);
    return Clicks(MiddleOf(box), 1, Qt::LeftButton) + Type(Qt::Key_A, Qt::ControlModifier) +
           Plan{[=] { Commit(name); }} + Type(Qt::Key_Return);
}

// ---- Deeds ----

Plan DragPiece() {
    const int from = AnyPieceSquare();
    const int to = from + Roll(5) - 2 + (Roll(5) - 2) * Down;
    return Drag(Centre(from), IsOnBoard(to) ? Centre(to) : AnyPlace(), AnyOf(Buttons));
}

Plan ClickButton() {
    QList<QPushButton*> buttons;
    for (QPushButton* button : Top().findChildren<QPushButton*>()) {
        if (button->isVisible()) buttons.push_back(button);
    }
    if (buttons.empty()) return Clicks(AnyPlace(), 1, AnyOf(Buttons));
    const QPushButton* button = AnyOf(buttons);
    const bool isImpatient = OneIn(8);
    return Clicks(MiddleOf(*button), isImpatient ? Roll(60) : 1, Qt::LeftButton);
}

/// Or only opens a menu.
Plan ChooseByMouse() {
    const char* menu = AnyOf(Menus);
    QList<QAction*> items = GameWindow->findChild<QMenu*>(menu)->actions();
    Plan plan = Choose(menu, AnyOf(items));
    if (OneIn(5)) plan.resize(2);
    return plan;
}

Plan TypeCharacter() {
    if (OneIn(4)) return Type(0, {}, QString(QChar(' ' + Roll(0xFFF0))));
    const QChar letter(AnyOf(Letters));
    return Type(letter.toUpper().unicode(), AnyOf(Modifiers), letter);
}

Plan ChooseByKeys() {
    Plan plan = Type(AnyOf(MenuKeys), Qt::AltModifier);
    if (OneIn(2)) return plan + TypeCharacter();
    for (int n = Roll(12); n > 0; --n) plan = plan + Type(Qt::Key_Down);
    return plan + Type(Qt::Key_Return);
}

/// Mostly names and lists: the dialog's other parts are clicked by chance.
Plan UseFileDialog() {
    const auto* box = Top().findChild<QLineEdit*>("txtOpenSave");
    if (box == nullptr) return Clicks(AnyPlace(), 1, AnyOf(Buttons));
    if (OneIn(2)) return TypeName(*box);
    const auto* list = Top().findChild<QListWidget*>(OneIn(3) ? "dirOpenSave" : "filOpenSave");
    QWidget* rows = list->viewport();
    return Clicks(rows->mapTo(&Top(), PlaceOn(*rows)), 1 + Roll(2), Qt::LeftButton);
}

void ChangeFocus() {
    const int dice = Roll(4);
    if (dice == 0) return Activate(OtherWindow);
    if (dice == 1) return LeaveWindow(Top().windowHandle());
    Activate(Top().windowHandle());
}

/// Resizing is refused by every window.
void ShakeWindow() {
    NoteEvent("shake");
    QWidget& top = Top();
    if (!top.isVisible() || top.windowType() == Qt::Popup) return;
    const int dice = Roll(4);
    if (dice == 0) top.resize(Roll(2000), Roll(2000));
    if (dice == 1) top.move(Roll(2000) - 500, Roll(2000) - 500);
    if (dice == 2) top.showMinimized();
    if (dice == 3) top.showNormal();
    QCoreApplication::processEvents();
}

/// Mostly a dialog: a new main window is a new game.
void CloseWindow() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr) return Close(modal->windowHandle());
    if (OneIn(4)) Close(GameWindow->windowHandle());
}

Plan LegalOpening() {
    const int side = IsPlacingRing(Red) ? Red : Blue;
    if (InFreeSetup() && PieceCount(side) < (OneIn(8) ? 1 : MaxPieces)) {
        int square = NoSquare;
        while (!InField(square) || Pos.Board[square] != Empty) square = 1 + Roll(LastSquare);
        return Clicks(Centre(square), 1, AnyOf(Buttons));
    }
    for (int i = std::min(PieceCount(side), LastRingPiece); i >= 1; --i) {
        const int square = SquaresOf(side)[i];
        if (square != NoSquare) return Clicks(Centre(square), 2, AnyOf(Buttons));
    }
    return {};
}

struct Deed {
    int Weight;
    Plan (*Make)();
};

constexpr Deed Deeds[] = {
    {10, [] { return Clicks(AnyPlace(), 1, AnyOf(Buttons)); }},
    {6, [] { return Plan{[] { Press(AnyPlace(), AnyOf(Buttons)); }}; }},
    {6, [] { return Plan{[] { Release(AnyPlace(), AnyOf(Buttons)); }}; }},
    {10, [] { return Plan{[] { Move(AnyPlace()); }}; }},
    {8, [] { return Clicks(AnyPlace(), 2, AnyOf(Buttons)); }},
    {14, DragPiece},
    {14, [] { return IsThinking ? DragPiece() : LegalDeed(); }},
    {10, ClickButton},
    {8, ChooseByMouse},
    {6, ChooseByKeys},
    {16, [] { return Type(AnyOf(Keys), AnyOf(Modifiers)); }},
    {4, TypeCharacter},
    {20, UseFileDialog},
    {3, [] { return Plan{[] { Wheel(AnyPlace(), OneIn(2) ? 120 : -120); }}; }},
    {3, [] { return Plan{[] { Tap(AnyPlace()); }}; }},
    {4, [] { return Plan{ChangeFocus}; }},
    {3, [] { return Plan{ShakeWindow}; }},
    {2, [] { return Plan{CloseWindow}; }},
};

}  // namespace

void MakeGames() {
    namespace fs = std::filesystem;
    const fs::path from = BRASTEL_TEST_DATA;
    fs::create_directories(GamesFolder / "unter" / "tief");
    for (const auto* name : {"03-example.txt", "06-passes.txt", "200-entries.txt",
                             "01-free-setup-red-ready.txt", "06-free-setup-uneven.txt"}) {
        fs::copy(from / "good" / name, GamesFolder);
    }
    fs::copy(from / "damaged", GamesFolder / "unter");
}

Plan operator+(Plan first, const Plan& then) {
    first.insert(first.end(), then.begin(), then.end());
    return first;
}

Plan AnyDeed() {
    int left = 0;
    for (const Deed& deed : Deeds) left += deed.Weight;
    left = Roll(left);
    const Deed* deed = Deeds;
    while (left >= deed->Weight) left -= (deed++)->Weight;
    return deed->Make();
}

Plan LegalDeed() {
    if (!BothRingsPlaced()) return LegalOpening();
    if (IsRecordFull()) {
        const auto* button = GameWindow->findChild<QWidget*>("btn_Backward");
        return Clicks(MiddleOf(*button), 1, Qt::LeftButton);
    }
    GenerateMoves(1);
    const auto [from, to] = DrawAction(Chance);
    if (from == NoSquare) return {};
    return Drag(Centre(from), Centre(to), AnyOf(Buttons));
}

Plan Choose(const char* name, QAction* item) {
    auto* menu = GameWindow->findChild<QMenu*>(name);
    const QMenuBar* bar = GameWindow->menuBar();
    const QPoint entry = bar->mapTo(GameWindow, bar->actionGeometry(menu->menuAction()).center());
    const auto place = [=] { return menu->actionGeometry(item).center(); };
    return Clicks(entry, 1, Qt::LeftButton) +
           Plan{[=] { Press(place(), Qt::LeftButton); }, [=] { Release(place(), Qt::LeftButton); }};
}

}  // namespace brastel
