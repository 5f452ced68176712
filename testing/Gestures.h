#pragma once

#include "core/Position.h"

/// The one list of what a user may do at any moment. It is used by all random players.
namespace brastel {

enum class Kind {
    // What plays an entry.
    Drop,
    DoubleClick,
    Hint,
    Forward,
    // What changes one thing at most.
    LevelChoice,
    Click,
    // What ends a game, or takes a dialog.
    Save,
    Close,
    // What leads to another game.
    Backward,
    NewGame,
    PieceNumber,
    Load
};

struct Gesture {
    Kind What;
    /// The piece that is dropped or double-clicked. It need not exist.
    Piece Actor{};
    /// The piece under the drop; none for a drop at a point.
    Piece Target{};
    /// A point of the view.
    int X = 0;
    int Y = 0;
    /// The number of a level, a layout (both can be out of range) or a saved game.
    int Number = 0;
};

constexpr int SavedGameCount = 2;

/// Draws a gesture by its weight. Most advance the game. While the computer thinks, none opens a
/// dialog.
Gesture DrawGesture();

/// Forgets what earlier gestures prepared.
void ForgetGestures();

}  // namespace brastel
