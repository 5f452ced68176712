#pragma once

#include "engine/Values.h"
#include "tools/record/RecordedGame.h"

#include <cstdlib>
#include <optional>

/// What the computer thinks of the moves of a game.
namespace brastel {

/// A value that a search gives, in units of 1/101 point. Above 0 is good for Red.
using RedValue = int;

/// From here on a search sees a carrier in front of its goal. Other values are far smaller.
constexpr RedValue SureValue = 1000 * UnitsPerPoint;

/// The side that a search expects to win, or 0.
constexpr Int16 ExpectedWinner(RedValue value) {
    return std::abs(value) < SureValue ? Empty : value > 0 ? Red : Blue;
}

/// The mover's choice in one position.
struct Choice {
    RedValue Played;
    RedValue Best;
    /// One of the best moves: the played one if it is among them.
    Action BestMove;
    /// What the played move is worth less than the best, in units: from 0. A value beyond 100
    /// points counts as 100, so that a win that comes later is no loss.
    int Loss;
};

struct ReviewedEntry {
    Int16 Side;
    Action Played;
    /// None for ring placements, which no search values, and for passes.
    std::optional<Choice> Made;
    /// One of the MarkedPerSide greatest losses of its side.
    bool IsWorst = false;
};

constexpr std::size_t MarkedPerSide = 3;

struct GameReview {
    Int16 Depth;
    /// Entry k is Entries[k - 1].
    std::vector<ReviewedEntry> Entries;
};

/// Values each played move and the one that the computer would play, by searches of `depth` plies,
/// 1 to MaxPly. If the played one is worth more, because the computer never looks at it, it is the
/// best. The review ends before the first entry that breaks the rules, with the win, or early after
/// an interrupt. Overwrites the current game.
GameReview ReviewGame(const RecordedGame& game, Int16 depth);

}  // namespace brastel
