#pragma once

#include "tools/match/MatchGame.h"

#include <chrono>
#include <string>

namespace brastel {

/// The progress of a match on standard error. On a terminal it is one line that changes and is
/// erased at the end. Otherwise it is a line a minute.
class Progress {
public:
    /// Of `games` games, those in `played` were played before.
    Progress(const MatchTerms& terms, int games, const MatchGames& played);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// To be called after each game, and with nullptr in between.
    void Update(const MatchGame* game);

private:
    using Clock = std::chrono::steady_clock;

    void Count(const MatchGame& game);
    std::string Text(Clock::duration passed) const;

    MatchTerms Terms;
    int Games;
    int Before;
    int Played = 0;
    int Wins = 0;
    int Losses = 0;
    bool IsOnTerminal;
    Clock::time_point Start = Clock::now();
    Clock::time_point NextLine;
};

}  // namespace brastel
