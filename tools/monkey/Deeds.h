#pragma once

#include <QPoint>

#include <functional>
#include <vector>

class QAction;

/// What a user might do.
namespace brastel {

/// A single event, decided at the moment at which it is due.
using Step = std::function<void()>;
using Plan = std::vector<Step>;

Plan operator+(Plan first, const Plan& then);

Plan AnyDeed();

/// Changes the position if the window listens; empty where the rules leave nothing to do.
Plan LegalDeed();

/// Chooses an item of the named menu.
Plan Choose(const char* menu, QAction* item);

}  // namespace brastel
