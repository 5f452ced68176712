#pragma once

#include "engine/Values.h"
#include "tools/record/RecordedGame.h"

#include <cstdlib>
#include <string>
#include <vector>

/// What the computer thinks of the moves of a game, as text for people, as JSON for programs and as
/// a picture.
namespace brastel {

/// A value that a search gives, in units of 1/101 point. Above 0 is good for Red.
using RedValue = int;

/// From here on a search sees a carrier in front of its goal. Other values are far smaller.
constexpr RedValue SureValue = 1000 * UnitsPerPoint;

/// The side that a search expects to win, or 0.
constexpr Int16 ExpectedWinner(RedValue value) {
    return std::abs(value) < SureValue ? Empty : value > 0 ? Red : Blue;
}

struct ReviewedEntry {
    Int16 Side;
    Action Played;
    /// False for ring placements and passes. They have no values and no better move.
    bool HasValue = false;
    RedValue Value = 0;
    RedValue BestValue = 0;
    /// One of the best moves: the played one if it is among them.
    Action Best{};
    /// What the played move is worth less than the best, in units: from 0. A value beyond 100
    /// points counts as 100, so that a win that comes later is no loss.
    int Loss = 0;
    /// One of the three greatest losses of its side.
    bool IsWorst = false;
};

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

// ---- Reports ----

/// A table of the entries, the worst moves in words, and the sum of each side.
std::string ReviewAsText(const RecordedGame& game, const GameReview& review);

/// One JSON object. brastel-record(6) describes its fields.
std::string ReviewAsJson(const GameReview& review);

/// An SVG picture with the curve of the values. The worst moves are marked and have titles for
/// screen readers.
std::string ReviewAsSvg(const RecordedGame& game, const GameReview& review);

/// "+1.2", or "Red wins" from SureValue on.
std::string ValueInWords(RedValue value);

/// "Entry 3 loses 1.2 points: Red piece 3 from row 9, column 4 to row 7, column 4. Better: ...".
std::string MistakeInWords(const RecordedGame& game, int number, const ReviewedEntry& entry);

}  // namespace brastel
