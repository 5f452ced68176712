#pragma once

#include "testing/Gestures.h"

#include <functional>
#include <string>

/// The one list of checks after a gesture, which do not depend on how it was done.
namespace brastel {

/// What the status line says, in the window or without one.
inline std::function<std::string()> StatusLine;

/// Begins with the game as it stands, of which only the record is known. Forgets the games that
/// were saved if `forgets` is true.
void BeginWatching(bool forgets = true);

/// Call this before the gesture is done, and its result afterwards. The result throws unless the
/// gesture was accepted exactly if the rules accept it, did what it should and nothing else, and
/// the position is the one to which the entries so far, the record and the loaded game lead.
std::function<void()> Watch(const Gesture& gesture);

/// True if the gesture can be done now: a game can only be loaded that has been saved.
bool IsPossible(const Gesture& gesture);

}  // namespace brastel
