#pragma once

#include "testing/Gestures.h"

#include <functional>
#include <string>

/// What a user might do in the window, as sequences of events.
namespace brastel {

/// A few events one after the other. While one is handled, other inputs may come in.
using InputSequence = std::function<void()>;

/// The folder of the sandbox with the games that are loaded by name.
inline const std::string GamesFolder = "/tmp/games";

/// Draws one by its weight and sends it.
void SendAnything();

/// The inputs of a gesture; none if it takes a dialog or cannot be done now.
InputSequence InputsOf(const Gesture& gesture);

}  // namespace brastel
