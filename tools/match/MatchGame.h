#pragma once

#include "core/Position.h"
#include "play/GameRecord.h"

#include <cstdint>
#include <string>

/// One game of a match, played by the computer on both sides.
namespace brastel {

/// What decides the games of a match: game k follows from these and k alone, on every machine.
struct MatchTerms {
    /// Two strengths, 1 to 11. The first one plays Red, with Alternates in odd games only.
    Int16 First = 5;
    Int16 Second = 3;
    /// Pieces a side: those of a start layout.
    int Pieces = 8;
    std::uint64_t Seed = 1;
    /// Colours change from game to game, and games 2k - 1 and 2k have the same opening.
    bool Alternates = false;
    /// Random moves of each side at the beginning.
    int RandomMoves = 2;
};

/// Plain data, since it goes through a pipe, small enough for that to happen in one piece.
struct MatchGame {
    int Number = 0;
    bool FirstIsRed = true;
    /// Red, Blue, or Empty for a draw: the record was full before anybody won.
    Int16 Winner = Empty;
    Int16 Entries = 0;
    /// What the record was, in one number.
    std::uint64_t Fingerprint = 0;
    /// The time that entry k took to be chosen; negative in the opening, which nobody chose.
    Table<float, 0, MaxEntries> Seconds;
    /// Why the game could not be saved, as the system numbers errors, or 0.
    int SaveError = 0;
};

/// The layout with as many pieces a side, 0 to 5, or -1.
int LayoutWith(int pieces);

/// True if the first strength plays Red in game `number`.
inline bool FirstPlaysRed(const MatchTerms& terms, int number) {
    return !terms.Alternates || number % 2 == 1;
}

/// Plays game `number`, from 1, with the game's own procedures; afterwards they still hold it, so
/// that it can be saved. False if an interrupt ended it early.
bool PlayMatchGame(const MatchTerms& terms, int number, MatchGame& game);

}  // namespace brastel
