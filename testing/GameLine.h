#pragma once

#include "core/StartPosition.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/Stepping.h"

#include <tuple>
#include <vector>

/// The game being played, entry by entry. All operations leave the game itself as it is, and fail
/// at the first fault.
namespace brastel {

/// References to all that an action can change.
inline auto GameData() {
    return std::tie(Pos, RedStart, BlueStart, PlayedFrom, PlayedTo, LoadedFrom, LoadedTo,
                    LoadedCount, BranchMark, ForwardVisible, BackwardVisible, GameOver, Level);
}

/// A copy of that data, for comparing and restoring.
inline auto CopyOfGameData() {
    return std::apply([](const auto&... part) { return std::tuple(part...); }, GameData());
}
using Snapshot = decltype(CopyOfGameData());

/// While this object exists, nothing is shown. Its destructor restores the game.
class Aside {
public:
    Aside() { SetView(nullptr); }
    ~Aside() {
        GameData() = Before;
        SetView(Shows);
    }
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;

private:
    Snapshot Before = CopyOfGameData();
    GameView* Shows = View;
};

/// Line[k] is the position after k entries. Empty in a free setup.
inline std::vector<Position> Line;

/// False where a piece was placed outside that could come back at once: in play the first action
/// brings it back, on replay an action near it.
inline bool LineIsExact = true;

/// Follows the game from its start to where it stands.
void BeginLine();

enum class Origin { Person, Computer, Record };

/// Checks the entries from `first` on. `origin` made entry `first`, the computer the later ones.
/// Each entry must give the same position however it is played. The position must be consistent,
/// and its candidates must be what the rules of people accept.
void FollowLine(int first, Origin origin);

void RequireConsistent();

}  // namespace brastel
