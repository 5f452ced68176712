#pragma once

#include "tools/player/Gestures.h"

#include <functional>
#include <string>

/// What a user might do in the window.
namespace brastel {

/// A few events one after the other. While one of them is under way, others may come in.
using Deed = std::function<void()>;

/// Where the games lie that are loaded by their names: a folder of the sandbox.
inline const std::string GamesFolder = "/tmp/games";

void DoAnything();

/// The gesture of the common list; none if it takes a dialog or cannot be done now.
Deed DeedOf(const Gesture& gesture);

}  // namespace brastel
