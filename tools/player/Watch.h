#pragma once

#include "tools/player/Gestures.h"

#include <functional>
#include <string>

/// The one list of what must hold after a gesture, however it was done.
namespace brastel {

/// What the status line says, in the window or without one.
inline std::function<std::string()> StatusLine;

/// Takes the game as it stands, of which nothing is known but the record. `forgets` the games that
/// were saved.
void BeginWatching(bool forgets = true);

/// Called before the gesture is done; the result is to be called when it is over. It fails unless
/// the gesture was accepted exactly if the rules accept it, did what it should and nothing else,
/// and the game is the one that its line, its record and the loaded game lead to.
std::function<void()> Watch(const Gesture& gesture);

/// True if the gesture can be done now: a game can only be loaded that has been saved.
bool IsPossible(const Gesture& gesture);

}  // namespace brastel
