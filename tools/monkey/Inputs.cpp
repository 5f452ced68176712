#include "tools/monkey/Inputs.h"

#include "testing/RandomSource.h"
#include "tools/monkey/Events.h"

#include <QLineEdit>
#include <QMenuBar>

namespace brastel {

namespace {

// clang-format off
constexpr Qt::MouseButton Buttons[] = {
    Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton,
    Qt::BackButton, Qt::ForwardButton};
constexpr Qt::KeyboardModifiers Modifiers[] = {
    {}, {}, {}, Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier, Qt::MetaModifier};
/// Access keys of menus, items and dialogs; cut, copy, paste, select all; what presses a button.
constexpr std::string_view Letters = "olhnscxrtedapgkyvz*.    ";
/// From Escape to Page Down; among the many behind them are F1 to F10, Alt, Menu and Help.
constexpr int CommonKeys = Qt::Key_PageDown - Qt::Key_Escape + 1;
constexpr int AllKeys = Qt::Key_Help - Qt::Key_Escape + 1;
constexpr int MenuKeys[] = {Qt::Key_O, Qt::Key_L, Qt::Key_L, Qt::Key_H};

/// In their folder, or to be made there.
const char* const Games[] = {
    "good/03-example.txt", "good/200-entries.txt", "good/01-free-setup-red-ready.txt",
    "damaged/04-image.txt", "good/neu"};
/// A fuzz target types all other names, without a window.
const QString OddNames[] = {
    "*.*", "?", "good", "..", "/", "/proc", "/dev/zero", "/root", "", "no/such/folder", "%s%n",
    "名前", "\u202eabc", "a\nb", QString(5000, 'y')};
// clang-format on

// ---- Places ----

/// A point of the view in the main window.
QPoint InWindow(QPoint point) { return GameWindow->centralWidget()->mapTo(GameWindow, point); }

QPoint Centre(int square) {
    const QPoint corner(SquareLeft(square), SquareTop(square));
    return InWindow(corner + QPoint(CellSize / 2, CellSize / 2));
}

QPoint AnyIn(QRect area) {
    const int x = area.x() + Roll(qMax(1, area.width()));
    return {x, area.y() + Roll(qMax(1, area.height()))};
}

/// A place worth a click in the top window, or anywhere in it or around it.
QPoint AnyPlace() {
    QWidget& top = Top();
    if (OneIn(8)) return AnyIn(top.rect().marginsAdded(QMargins() + 100));
    if (&top == GameWindow && OneIn(2)) return Centre(1 + Roll(LastSquare));
    QList<QWidget*> parts = top.findChildren<QWidget*>() << &top;
    const QWidget* part = AnyOf(parts);
    return part->mapTo(&top, OneIn(3) ? part->rect().center() : AnyIn(part->rect()));
}

// ---- Parts of inputs ----

/// A click can open or close a window: the next one goes to the window that is then on top.
void Click(QPoint place, int count = 1, Qt::MouseButton button = Qt::LeftButton) {
    for (int n = 0; n < count; ++n) {
        Press(place, button, n > 0);
        Release(place, button);
    }
}

void Click(const char* name) {
    const auto* part = Top().findChild<QWidget*>(name);
    if (part != nullptr) Click(part->mapTo(&Top(), part->rect().center()));
}

/// Chooses an item of the named menu.
void Choose(const char* name, QAction* item) {
    auto* menu = GameWindow->findChild<QMenu*>(name);
    const QMenuBar* bar = GameWindow->menuBar();
    Click(bar->mapTo(GameWindow, bar->actionGeometry(menu->menuAction()).center()));
    Click(menu->actionGeometry(item).center());
}

// ---- Inputs ----

void PlayGesture() {
    if (const InputSequence inputs = InputsOf(DrawGesture())) inputs();
}

/// Now and then many times.
void ClickAnywhere() {
    const QPoint place = AnyPlace();
    const Qt::MouseButton button = AnyOf(Buttons);
    Click(place, OneIn(30) ? Roll(60) : 1 + Roll(2), button);
}

void TypeKey() {
    const Qt::KeyboardModifiers modifiers = AnyOf(Modifiers);
    if (OneIn(20)) return Type(0, {}, QString(QChar(' ' + Roll(0xFFE0))));
    if (OneIn(5)) return Type(AnyOf(MenuKeys), Qt::AltModifier);
    const int keys = OneIn(4) ? AllKeys : CommonKeys;
    if (!OneIn(4)) return Type(Qt::Key_Escape + Roll(keys), modifiers);
    const QChar letter(AnyOf(Letters));
    Type(letter.toUpper().unicode(), modifiers, letter);
}

void ChooseByMouse() {
    constexpr std::array Menus{"mnu_Options", "mnu_Options", "mnu_Level", "mnu_Help"};
    const char* menu = AnyOf(Menus);
    QList<QAction*> items = GameWindow->findChild<QMenu*>(menu)->actions();
    Choose(menu, AnyOf(items));
}

void TypeName() {
    const QString folder = QString::fromStdString(GamesFolder) + "/";
    const QString name = OneIn(2) ? folder + AnyOf(Games) : AnyOf(OddNames);
    Click("txtOpenSave");
    Type(Qt::Key_A, Qt::ControlModifier);
    Type(0, {}, name);
    Type(Qt::Key_Return);
}

/// Closes dialogs more often than the main window, since a new main window begins a new game.
void ManageWindow() {
    const int how = Roll(7);
    if (how < 4) ChangeWindow(how, AnyIn({-500, -500, 2000, 2000}));
    if (how == 4) Activate(OtherWindow);
    if (how == 5) Activate(Top().windowHandle());
    if (how == 6 && (&Top() != GameWindow || OneIn(4))) Close();
}

struct Row {
    int Weight;
    void (*Do)();
};

constexpr std::array Rows{
    Row{28, PlayGesture},
    Row{28, ClickAnywhere},
    Row{6, [] { Press(AnyPlace(), Qt::LeftButton); }},
    Row{6, [] { Release(AnyPlace(), Qt::LeftButton); }},
    Row{10, [] { Move(AnyPlace()); }},
    Row{3, [] { Tap(AnyPlace()); }},
    Row{26, TypeKey},
    Row{10, ChooseByMouse},
    Row{20, [] { Top().findChild<QWidget*>("txtOpenSave") ? TypeName() : ClickAnywhere(); }},
    Row{8, ManageWindow},
};

}  // namespace

void SendAnything() { DrawWeighted(Rows).Do(); }

InputSequence InputsOf(const Gesture& gesture) {
    const auto& [what, actor, target, x, y, number] = gesture;
    const int from = SquareOf(actor);
    const QPoint to = target ? Centre(SquareOf(target)) : InWindow({x, y});
    const Qt::MouseButton button = AnyOf(Buttons);
    if (what == Kind::Hint) return [] { Click("btn_Hint"); };
    if (what == Kind::Forward) return [] { Click("btn_Forward"); };
    if (what == Kind::Backward) return [] { Click("btn_Backward"); };
    if (what == Kind::NewGame) {
        return [] { Choose("mnu_Options", GameWindow->findChild<QAction*>("mnu_NewGame")); };
    }
    for (QAction* item : GameWindow->findChild<QMenu*>("mnu_Level")->actions()) {
        const bool isChosen = what == Kind::LevelChoice && item->data() == number;
        if (isChosen) return [item] { Choose("mnu_Level", item); };
    }
    if (what == Kind::Click) return [=] { Click(to, 1, button); };
    if (!IsOnBoard(from) || (target && !IsOnBoard(SquareOf(target)))) return {};
    if (what == Kind::DoubleClick) return [=] { Click(Centre(from), 2, button); };
    if (what != Kind::Drop) return {};
    return [=] {
        Press(Centre(from), button);
        Move((Centre(from) + to) / 2);
        Move(to);
        Release(to, button);
    };
}

}  // namespace brastel
