#include "ui/Menus.h"

#include "engine/Strengths.h"
#include "play/GameState.h"
#include "play/Stepping.h"
#include "ui/Command.h"
#include "ui/Layout.h"
#include "ui/MainWindow.h"

#include <QMenuBar>

#include <span>

namespace brastel {

namespace {

/// One item; a separator has no command.
struct MenuItem {
    const char* Name;
    const char* Caption;
    void (*Command)(MainWindow&);
};

constexpr MenuItem OptionsItems[] = {
    {"mnu_NewGame", "&New Game", [](MainWindow&) { NewGameCommand(); }},
    {"mnuFileItem1", "&Load Game", [](MainWindow& window) { window.LoadGameCommand(); }},
    {"mnuFileItem2", "&Save Game", [](MainWindow& window) { window.SaveGameCommand(); }},
    {"mnu_SizeSep", "-", nullptr},
    {"mnu_GameSize", "&Change Piece Number",
     [](MainWindow& window) { window.ChangePieceNumberCommand(); }},
    {"mnu_ExitSep", "-", nullptr},
    {"mnu_Exit", "E&xit", [](MainWindow& window) { window.ExitCommand(); }},
};

constexpr MenuItem HelpItems[] = {
    {"mnu_Rules", "&Rules", [](MainWindow& window) { window.RulesCommand(); }},
};

QMenu* AddMenu(MainWindow& window, const char* name, const char* caption) {
    QMenu* menu = window.menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

void AddSeparator(QMenu& menu, const char* name) { menu.addSeparator()->setObjectName(name); }

void AddItems(QMenu& menu, MainWindow& window, std::span<const MenuItem> items) {
    for (const MenuItem& item : items) {
        if (item.Command == nullptr) {
            AddSeparator(menu, item.Name);
            continue;
        }
        QAction* action = menu.addAction(item.Caption);
        action->setObjectName(item.Name);
        QObject::connect(action, &QAction::triggered, &window, [&window, command = item.Command] {
            RunLater(&window, [&window, command] { command(window); });
        });
    }
}

void AddLevel(QMenu& levels, std::string_view name, std::string_view caption, Int16 level) {
    QAction* action = levels.addAction(QString::fromUtf8(caption.data()));
    action->setObjectName(QString::fromUtf8(name.data()));
    action->setData(level);
    QObject::connect(action, &QAction::triggered, &levels, [level, &levels] {
        SetLevel(level);
        CheckLevel(levels, Level);
    });
}

void AddLevels(QMenu& levels) {
    AddLevel(levels, "mnu_TwoPlayer", "&Two Player", TwoPlayerLevel);
    AddSeparator(levels, "mnu_TwoSep");
    for (const Strength& strength : Strengths) {
        AddLevel(levels, strength.Item, strength.Caption, strength.Depth);
    }
}

}  // namespace

QMenu* BuildMenus(MainWindow& window) {
    // In the window on every desktop: its height belongs to the window's.
    window.menuBar()->setNativeMenuBar(false);
    window.menuBar()->setPalette(QPalette(WindowGround));
    AddItems(*AddMenu(window, "mnu_Options", "&Options"), window, OptionsItems);
    QMenu* levels = AddMenu(window, "mnu_Level", "&Level");
    AddLevels(*levels);
    AddItems(*AddMenu(window, "mnu_Help", "&Help"), window, HelpItems);
    return levels;
}

/// An exclusive group of actions would show bullets instead of check marks, and checkable items
/// that are not checked would show empty boxes, as if one could check several.
void CheckLevel(const QMenu& levels, Int16 level) {
    for (QAction* action : levels.actions()) {
        const bool isChosen = action->data() == level;
        action->setCheckable(isChosen);
        action->setChecked(isChosen);
    }
}

}  // namespace brastel
