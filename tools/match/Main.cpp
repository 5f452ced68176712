/// The program brastel-match: plays strengths of the computer player against each other.

#include "engine/Strengths.h"
#include "tools/ExitStatus.h"
#include "tools/Interrupt.h"
#include "tools/Printable.h"
#include "tools/match/MatchTable.h"
#include "tools/match/Options.h"
#include "tools/match/SavedGames.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <unistd.h>

namespace {

using namespace brastel;
using namespace std::string_literals;

int ReportError(const std::string& what, int status) {
    std::fprintf(stderr, "brastel-match: %s\n", Printable(what).c_str());
    return status;
}

// ---- Progress: one line, only on a terminal ----

class ProgressLine {
public:
    ProgressLine(const MatchTerms& terms, int games) : Terms(terms), Games(games) { Show(); }
    ~ProgressLine() {
        if (IsShown) std::fputs("\r\033[K", stderr);
    }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void Count(const MatchGame& game) {
        ++Played;
        if (game.Winner == Empty) {
            ++Draws;
        } else {
            ++((game.Winner == Red) == game.FirstIsRed ? Wins : Losses);
        }
        Show();
    }

private:
    void Show() const {
        if (!IsShown) return;
        std::fprintf(stderr, "\r%d of %d games: %s %d, %s %d, draws %d\033[K", Played, Games,
                     StrengthName(Terms.First).c_str(), Wins, StrengthName(Terms.Second).c_str(),
                     Losses, Draws);
    }

    const MatchTerms& Terms;
    int Games;
    bool IsShown = isatty(STDERR_FILENO) == 1;
    int Played = 0;
    int Wins = 0;
    int Draws = 0;
    int Losses = 0;
};

// ---- Playing ----

MatchEnd Play(const MatchTerms& terms, const MatchRun& run, std::vector<MatchGame>& games) {
    ProgressLine line(terms, run.Games);
    return PlayMatch(terms, run, games, [&](const MatchGame& game) { line.Count(game); });
}

int NotSaved(const std::vector<MatchGame>& games, const std::string& folder) {
    const auto game = std::ranges::find_if(games, &MatchGame::SaveError);
    return ReportError("cannot save game " + std::to_string(game->Number) + " in " + folder + ": " +
                           std::strerror(game->SaveError),
                       CannotDo);
}

int StatusOf(MatchEnd end, const std::vector<MatchGame>& games, const MatchTerms& terms,
             const MatchRun& run) {
    if (end == MatchEnd::Complete) return Done;
    if (end == MatchEnd::NotSaved) return NotSaved(games, run.Folder);
    const std::string played = "after " + std::to_string(games.size()) + " of " +
                               std::to_string(run.Games) + " games of " +
                               StrengthName(terms.First) + " against " + StrengthName(terms.Second);
    if (end == MatchEnd::Stopped) {
        ReportError("interrupted " + played, SystemFailed);
        EndByInterrupt();
    }
    return ReportError("a worker process failed " + played, SystemFailed);
}

int PlaySingle(const Options& options) {
    std::vector<MatchGame> games;
    const MatchEnd end = Play(options.Terms, options.Run, games);
    const std::string table = MatchTable(options.Terms, ScoreOf(games, options.Terms.Alternates));
    const bool isWritten = std::fputs(table.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    const int error = errno;
    const int status = StatusOf(end, games, options.Terms, options.Run);
    if (status != Done || isWritten) return status;
    return ReportError("cannot write standard output: "s + std::strerror(error), CannotDo);
}

int Main(int count, char** texts) {
    Options options;
    if (const auto status = ReadOptions(count, texts, options)) return *status;
    if (!options.Run.Folder.empty()) {
        const std::string obstacle =
            PrepareFolder(options.Run.Folder, options.Terms, options.Run.Games);
        if (!obstacle.empty()) return ReportError(obstacle, CannotDo);
    }
    WatchInterrupts();
    return PlaySingle(options);
}

}  // namespace

int main(int count, char** texts) {
    // A write beyond a size limit then fails and does not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Main(count, texts);
    } catch (const std::exception& error) {
        // The only possible cause is lack of memory.
        return ReportError(error.what(), SystemFailed);
    }
}
