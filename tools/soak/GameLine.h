#pragma once

#include "tests/RandomPlay.h"

#include <vector>

namespace brastel {

/// The positions of a game from its start on, and the checks of each entry that leads on from
/// there. Throws Inconsistency at the first fault.
class GameLine {
public:
    /// Follows the game from its start to where it stands. `byHand` if its pieces were placed so.
    void Begin(bool byHand);

    /// Follows the entries from `first` on, the first of them played by a person or not, and checks
    /// that each leads to the same position however it is played, that the position is in order and
    /// that the rules agree there. The game itself stays as it is.
    void Follow(int first, bool byPerson);

    /// Goes one step back, which plays the record again from its start, and forward again as if the
    /// game had been saved and loaded. The game itself stays as it is.
    void CheckSteps() const;

    /// False where a piece was placed outside that could come back at once: in play the first
    /// action brings it back, on replay an action near it.
    bool IsExact() const { return Exact; }

    std::size_t Entries() const { return Positions.size() - 1; }

    /// Positions[k] is the one after k entries.
    std::vector<Position> Positions;

private:
    void FollowEntry(const Action& entry, bool byPerson);
    void CheckPosition(const Position& before, const Action& entry) const;

    bool ByHand = false;
    bool Exact = true;
};

/// Makes the game just played the loaded one.
void LoadPlayedGame();

/// Besides what is always checked, that no piece was lost.
void RequireConsistent();

}  // namespace brastel
