#pragma once

#include "core/Position.h"

#include <cstdint>
#include <map>

/// One game of a match, played by the computer on both sides.
namespace brastel {

/// The terms of a match. Game k depends only on these and on k, on every machine.
struct MatchTerms {
    /// The two strengths, 1 to 11. The first plays Red; with Alternates, only in odd games.
    Int16 First = 5;
    Int16 Second = 3;
    /// Pieces of each side. There must be a start layout with this number.
    int Pieces = 8;
    std::uint64_t Seed = 1;
    /// The colours alternate, and games 2k - 1 and 2k have the same opening.
    bool Alternates = true;
    /// Random moves of each side at the beginning.
    int RandomMoves = 2;
};

/// How long one side thought in one game, in nanoseconds. The opening is random and takes no time.
struct ThinkingTime {
    std::int64_t Total = 0;
    /// For one move.
    std::int64_t Worst = 0;
};

/// The result of one game. Plain data of at most PIPE_BUF bytes, so a pipe transfers it in one
/// piece.
struct MatchGame {
    int Number = 0;
    /// Red, Blue, or Empty for a draw: the record was full before a side won.
    Int16 Winner = Empty;
    Int16 Entries = 0;
    /// Hash value of the record, to count different games.
    std::uint64_t Hash = 0;
    ThinkingTime RedTime;
    ThinkingTime BlueTime;
    /// The error number of the system (errno) if the game could not be saved, otherwise 0.
    int SaveError = 0;
};

/// Games by their numbers.
using MatchGames = std::map<int, MatchGame>;

/// True if the first strength plays Red in game `number`.
inline bool FirstPlaysRed(const MatchTerms& terms, int number) {
    return !terms.Alternates || number % 2 == 1;
}

/// The strength of Red or Blue in game `number`.
inline Int16 StrengthOf(const MatchTerms& terms, int number, Int16 side) {
    return FirstPlaysRed(terms, number) == (side == Red) ? terms.First : terms.Second;
}

/// The number of entries that are not chosen by the computer: the rings and the random moves.
inline int OpeningEntries(const MatchTerms& terms) { return 2 + 2 * terms.RandomMoves; }

/// Plays game `number`, from 1, with the procedures of play/. Afterwards the game is still in their
/// data, so SaveMatchGame can save it. False if an interrupt ended the game early.
bool PlayMatchGame(const MatchTerms& terms, int number, MatchGame& game);

}  // namespace brastel
