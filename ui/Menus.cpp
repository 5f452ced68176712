#include "ui/Menus.h"

#include "engine/Strengths.h"
#include "files/FileView.h"
#include "play/GameState.h"
#include "play/Stepping.h"
#include "ui/Command.h"
#include "ui/FileDialog.h"
#include "ui/Layout.h"
#include "ui/PieceNumberDialog.h"
#include "ui/RulesWindow.h"

#include <QMenuBar>

#include <span>

namespace brastel {

namespace {

// ---- Commands ----

void NewGame(QWidget& /*window*/) { NewGameCommand(); }

/// The close box of the dialog closes the main window, too. False then.
bool RunFileDialog(QWidget& window, ChooserMode mode) {
    FileDialog dialog(mode);
    dialog.exec();
    if (dialog.WasClosedByBox()) window.close();
    return !dialog.WasClosedByBox();
}

void LoadGame(QWidget& window) {
    if (RunFileDialog(window, ChooserMode::Open)) BeginLoadedGame();
}

void SaveGame(QWidget& window) { RunFileDialog(window, ChooserMode::Save); }

void ChangePieceNumber(QWidget& /*window*/) {
    FileWindows->CloseMainWindow();
    PieceNumberDialog().exec();
    FileWindows->OpenMainWindow();
}

/// Ends the program.
void Exit(QWidget& window) { window.close(); }

void Rules(QWidget& /*window*/) { RulesWindow().exec(); }

// ---- Items ----

/// A separator has no command.
struct MenuItem {
    const char* Name;
    const char* Caption;
    void (*Command)(QWidget& window);
};

constexpr MenuItem OptionsItems[] = {
    {"mnu_NewGame", "&New Game", NewGame},
    {"mnuFileItem1", "&Load Game", LoadGame},
    {"mnuFileItem2", "&Save Game", SaveGame},
    {"mnu_SizeSep", "-", nullptr},
    {"mnu_GameSize", "&Change Piece Number", ChangePieceNumber},
    {"mnu_ExitSep", "-", nullptr},
    {"mnu_Exit", "E&xit", Exit},
};

constexpr MenuItem HelpItems[] = {{"mnu_Rules", "&Rules", Rules}};

QMenu* AddMenu(QMainWindow& window, const char* name, const char* caption) {
    QMenu* menu = window.menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

void AddSeparator(QMenu& menu, const char* name) { menu.addSeparator()->setObjectName(name); }

void AddItems(QMenu& menu, QMainWindow& window, std::span<const MenuItem> items) {
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

void AddLevel(QMenu& levels, const QString& name, const QString& caption, Int16 level) {
    QAction* action = levels.addAction(caption);
    action->setObjectName(name);
    action->setData(level);
    QObject::connect(action, &QAction::triggered, &levels, [level, &levels] {
        SetLevel(level);
        CheckLevel(levels, Level);
    });
}

/// The index of the access key in the name of each strength.
constexpr std::array<int, MaxPly> AccessKeys{0, 0, 0, 0, 2, 2, 0, 0, 4, 2, 1};

void AddLevels(QMenu& levels) {
    AddLevel(levels, "mnu_TwoPlayer", "&Two Player", TwoPlayerLevel);
    AddSeparator(levels, "mnu_TwoSep");
    for (int level = 1; level <= MaxPly; ++level) {
        const QString name = QString::fromStdString(StrengthName(level));
        const int key = AccessKeys[static_cast<std::size_t>(level - 1)];
        AddLevel(levels, "mnu_" + name, QString(name).insert(key, '&'), ToInt16(level));
    }
}

}  // namespace

QMenu* BuildMenus(QMainWindow& window) {
    // Inside the window on every desktop: the size of the window includes the menu bar.
    window.menuBar()->setNativeMenuBar(false);
    window.menuBar()->setPalette(QPalette(WindowGround));
    AddItems(*AddMenu(window, "mnu_Options", "&Options"), window, OptionsItems);
    QMenu* levels = AddMenu(window, "mnu_Level", "&Level");
    AddLevels(*levels);
    AddItems(*AddMenu(window, "mnu_Help", "&Help"), window, HelpItems);
    return levels;
}

/// Not an exclusive group of actions: Qt draws bullets for these. Only the chosen item is
/// checkable: Qt draws empty boxes for checkable items, as if several could be checked.
void CheckLevel(const QMenu& levels, Int16 level) {
    for (QAction* action : levels.actions()) {
        const bool isChosen = action->data() == level;
        action->setCheckable(isChosen);
        action->setChecked(isChosen);
    }
}

}  // namespace brastel
