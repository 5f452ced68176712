#pragma once

#include "core/Numbers.h"

#include <QActionGroup>

namespace brastel {

class MainWindow;

/// Builds the window's menu bar and connects every item with its command. Returns the group of the
/// Level items, of which exactly one is checked.
QActionGroup* BuildMenus(MainWindow& window);

/// Puts the check mark on the item of a level, 0 to 11, without choosing it.
void CheckLevel(const QActionGroup& levels, Int16 level);

}  // namespace brastel
