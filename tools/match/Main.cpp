/// The program brastel-match: plays strengths of the computer player against each other.

#include "tools/CommandLine.h"
#include "tools/Interrupt.h"
#include "tools/match/MatchFile.h"
#include "tools/match/MatchTable.h"
#include "tools/match/Options.h"
#include "tools/match/Progress.h"
#include "tools/match/SavedGames.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

using namespace brastel;

int ReportError(const std::string& what, int status) {
    std::fprintf(stderr, "brastel-match: %s\n", Printable(what).c_str());
    return status;
}

/// The numbers of the games that are not yet played.
std::vector<int> MissingGames(const MatchGames& played, const MatchRun& run) {
    std::vector<int> numbers;
    for (int number = 1; number <= run.Games; ++number) {
        if (!played.contains(number)) numbers.push_back(number);
    }
    return numbers;
}

/// Reads the games that were played before and opens the files. Returns the error, or nothing.
std::string Prepare(const Options& options, MatchFile& file, MatchGames& games) {
    const MatchRun& run = options.Run;
    std::string error = options.Resume ? file.Resume(run.Games, games) : "";
    if (error.empty() && !run.Folder.empty()) {
        error = PrepareFolder(run.Folder, options.Terms, MissingGames(games, run), run.Force);
    }
    return error.empty() && !options.Resume ? file.Begin(run.Force) : error;
}

/// Plays the missing games and adds them. Returns the error of a file, or nothing.
std::string Play(const Options& options, MatchFile& file, MatchGames& games) {
    std::string error;
    Progress progress(options.Terms, options.Run.Games, games);
    const auto record = [&](const MatchGame* game) {
        progress.Update(game);
        if (game == nullptr) return true;
        games.emplace(game->Number, *game);
        error = game->SaveError == 0
                    ? file.Append(*game)
                    : "cannot save game " + std::to_string(game->Number) + " in " +
                          options.Run.Folder + ": " + std::strerror(game->SaveError);
        return error.empty();
    };
    PlayMatch(options.Terms, options.Run, MissingGames(games, options.Run), record);
    return error;
}

int PlayAndReport(const Options& options, MatchFile& file, MatchGames& games) {
    std::string error = Play(options, file, games);
    const std::string table = MatchTable(options.Terms, ScoreOf(options.Terms, games));
    const bool isWritten = std::fputs(table.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    if (error.empty() && !isWritten)
        error = std::string("cannot write standard output: ") + std::strerror(errno);
    const int status = error.empty() ? Done : ReportError(error, CannotDo);
    const bool isComplete = static_cast<int>(games.size()) == options.Run.Games;
    if (Interrupted == 0 && (isComplete || status != Done)) return status;
    ReportError(std::string(Interrupted != 0 ? "interrupted" : "a worker process failed") +
                    " after " + std::to_string(games.size()) + " of " +
                    std::to_string(options.Run.Games) + " games" +
                    (options.CsvFile.empty() ? "" : "; --resume plays the others"),
                SystemFailed);
    if (Interrupted != 0) EndByInterrupt();
    return SystemFailed;
}

int Main(int count, char** texts) {
    Options options;
    if (const auto status = ReadOptions(count, texts, options)) return *status;
    MatchFile file(options.CsvFile, options.Terms);
    MatchGames games;
    const std::string error = Prepare(options, file, games);
    if (!error.empty()) return ReportError(error, CannotDo);
    WatchInterrupts();
    return PlayAndReport(options, file, games);
}

}  // namespace

int main(int count, char** texts) { return RunProgram("brastel-match", Main, count, texts); }
