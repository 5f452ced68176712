#pragma once

#include <QPoint>

#include <filesystem>
#include <functional>
#include <vector>

class QAction;

/// What a user might do.
namespace brastel {

/// A single event, decided at the moment at which it is due.
using Step = std::function<void()>;
using Plan = std::vector<Step>;

/// Where the games lie that are loaded by their names: a folder of the sandbox.
inline const std::filesystem::path GamesFolder = "/tmp/games";

/// Makes the folder, with folders and good and damaged games in it.
void MakeGames();

Plan operator+(Plan first, const Plan& then);

Plan AnyDeed();

/// Changes the position if the window listens; empty where the rules leave nothing to do.
Plan LegalDeed();

/// Chooses an item of the named menu.
Plan Choose(const char* menu, QAction* item);

}  // namespace brastel
