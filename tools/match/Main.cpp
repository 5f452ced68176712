/// Plays strengths of the computer player against each other.

#include "tools/Interrupt.h"
#include "tools/match/MatchTable.h"
#include "tools/match/Options.h"
#include "tools/match/SavedGames.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace {

using namespace brastel;

int Complain(const std::string& what, int status) {
    std::fprintf(stderr, "brastel-match: %s\n", what.c_str());
    return status;
}

// ---- Writing ----

/// Standard output for an empty path.
int WriteText(const std::string& path, const std::string& text) {
    std::FILE* file = path.empty() ? stdout : std::fopen(path.c_str(), "w");
    const bool isOpen = file != nullptr;
    bool isWritten = isOpen && std::fputs(text.c_str(), file) >= 0 && std::fflush(file) == 0;
    if (isOpen && file != stdout) isWritten = std::fclose(file) == 0 && isWritten;
    if (isWritten) return Done;
    const std::string name = path.empty() ? "standard output" : path;
    return Complain("cannot write " + name + ": " + std::strerror(errno), BadPath);
}

// ---- Progress: one line, for people only ----

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

int StatusOf(MatchEnd end, const std::vector<MatchGame>& games, const MatchRun& run) {
    const std::string played = std::to_string(games.size()) + " of " + std::to_string(run.Games);
    switch (end) {
        case MatchEnd::Complete:
            return Done;
        case MatchEnd::Stopped:
            return Complain("interrupted after " + played + " games", WasInterrupted);
        case MatchEnd::NotSaved:
            for (const MatchGame& game : games) {
                if (game.SaveError == 0) continue;
                return Complain("cannot save game " + std::to_string(game.Number) + " in " +
                                    run.Folder + ": " + std::strerror(game.SaveError),
                                BadPath);
            }
            break;
        case MatchEnd::Broken:
            break;
    }
    return Complain("a playing process ended early, after " + played + " games", SystemFailed);
}

int PlaySingle(const Options& options) {
    std::vector<MatchGame> games;
    const MatchEnd end = Play(options.Terms, options.Run, games);
    const int written =
        WriteText({}, MatchTable(options.Terms, ScoreOf(games, options.Terms.Alternates)));
    const int status = StatusOf(end, games, options.Run);
    return status != Done ? status : written;
}

MatchTerms TermsOf(const Options& options, int lower) {
    MatchTerms terms = options.Terms;
    terms.First = ToInt16(lower + 1);
    terms.Second = ToInt16(lower);
    terms.Alternates = true;
    return terms;
}

/// The table so far to its file, or the last rows to standard output.
int WriteLadder(const Options& options, const std::vector<Rung>& ladder) {
    std::string table = LadderTableHead(options.Terms, options.Run.Games);
    std::string news = ladder.size() == 2 ? table : "";
    for (const Rung& rung : ladder) {
        table += LadderTableRow(rung);
        if (ladder.size() == 2 || &rung == &ladder.back()) news += LadderTableRow(rung);
    }
    return WriteText(options.TableFile, options.TableFile.empty() ? news : table);
}

int PlayLadder(const Options& options) {
    std::vector<Rung> ladder;
    for (int lower = options.From; lower < options.To; ++lower) {
        const MatchTerms terms = TermsOf(options, lower);
        std::vector<MatchGame> games;
        const MatchEnd end = Play(terms, options.Run, games);
        if (!games.empty()) {
            AddRung(ladder, terms, ScoreOf(games, true));
            const int written = WriteLadder(options, ladder);
            if (written != Done) return written;
        }
        const int status = StatusOf(end, games, options.Run);
        if (status != Done) return status;
    }
    return Done;
}

/// What cannot be written is told before anything is played.
int CheckPaths(const Options& options) {
    const int first = options.Ladder ? options.From : 0;
    const int last = options.Ladder ? options.To - 1 : 0;
    for (int lower = first; lower <= last && !options.Run.Folder.empty(); ++lower) {
        const MatchTerms terms = options.Ladder ? TermsOf(options, lower) : options.Terms;
        const std::string obstacle = PrepareFolder(options.Run.Folder, terms, options.Run.Games);
        if (!obstacle.empty()) return Complain(obstacle, BadPath);
    }
    if (!options.TableFile.empty()) return WriteText(options.TableFile, "");
    return Done;
}

}  // namespace

int main(int count, char** texts) {
    Options options;
    if (const auto status = ReadOptions(count, texts, options)) return *status;
    if (const int status = CheckPaths(options)) return status;
    WatchInterrupts();
    return options.Ladder ? PlayLadder(options) : PlaySingle(options);
}
