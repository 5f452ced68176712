#pragma once

#include "core/Numbers.h"

#include <QMenu>

namespace brastel {

class MainWindow;

/// Builds the window's menu bar and connects every item with its command. Returns the Level menu.
QMenu* BuildMenus(MainWindow& window);

/// Puts the check mark on the item of a level, 0 to 11, alone, without choosing it.
void CheckLevel(const QMenu& levels, Int16 level);

}  // namespace brastel
