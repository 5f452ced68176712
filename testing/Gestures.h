#pragma once

#include "core/Position.h"

/// The one list of what a user may do at any moment, whatever draws from it and however it is done.
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
    /// Dropped or double-clicked; need not exist.
    Piece Actor{};
    /// The piece that another one is dropped on; none where it is dropped at a point.
    Piece Target{};
    /// A point of the view.
    int X = 0;
    int Y = 0;
    /// Of a level, a layout (both perhaps out of range) or a saved game.
    int Number = 0;
};

constexpr int SavedGameCount = 2;

/// Draws one by its weight, mostly what brings the game on; while the computer thinks, none that
/// takes a dialog.
Gesture DrawGesture();

/// Leaves out what earlier gestures led to.
void ForgetGestures();

}  // namespace brastel
