#pragma once

#include "core/Numbers.h"

#include <QMainWindow>
#include <QMenu>

namespace brastel {

/// Builds the menus of the main window and connects every item with its command. Returns the Level
/// menu.
QMenu* BuildMenus(QMainWindow& window);

/// Moves the check mark to the item of a level, 0 to 11. The strength itself does not change.
void CheckLevel(const QMenu& levels, Int16 level);

}  // namespace brastel
