/// The program brastel-match: plays strengths of the computer player against each other.

#include "engine/Strengths.h"
#include "files/TextFile.h"
#include "tools/ExitStatus.h"
#include "tools/Interrupt.h"
#include "tools/Printable.h"
#include "tools/match/LadderChart.h"
#include "tools/match/MatchTable.h"
#include "tools/match/Options.h"
#include "tools/match/SavedGames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <optional>
#include <unistd.h>

namespace {

using namespace brastel;

int ReportError(const std::string& what, int status) {
    std::fprintf(stderr, "brastel-match: %s\n", Printable(what).c_str());
    return status;
}

// ---- Files ----

int CannotWrite(const std::string& path) {
    const std::string name = path.empty() ? "standard output" : path;
    return ReportError("cannot write " + name + ": " + std::strerror(errno), CannotDo);
}

/// Does not change the file. A file that does not exist is created and removed again.
bool CanWrite(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "wx");
    const bool isNew = file != nullptr;
    if (!isNew && errno == EEXIST) file = std::fopen(path.c_str(), "a");
    if (file == nullptr || std::fclose(file) != 0) return false;
    return !isNew || std::remove(path.c_str()) == 0;
}

/// True if both paths name the same file, existing or not. CanWrite must be true for both.
bool IsSameFile(const std::string& a, const std::string& b) {
    namespace fs = std::filesystem;
    std::error_code ignored;
    const auto place = [&](const std::string& path) {
        return fs::weakly_canonical(fs::absolute(path, ignored), ignored);
    };
    if (a.empty() || b.empty()) return false;
    return fs::equivalent(a, b, ignored) || place(a) == place(b);
}

/// Replaces a file, or writes to a pipe or device, or to standard output if the path is empty.
int WriteText(const std::string& path, const std::string& text) {
    std::error_code ignored;
    if (!path.empty() && !std::filesystem::is_other(path, ignored)) {
        return WriteTextFile(path, text) == FileError::None ? Done : CannotWrite(path);
    }
    std::FILE* const file = path.empty() ? stdout : std::fopen(path.c_str(), "w");
    if (file == nullptr) return CannotWrite(path);
    const bool isWritten = std::fputs(text.c_str(), file) >= 0 && std::fflush(file) == 0;
    const bool isClosed = file == stdout || std::fclose(file) == 0;
    return isWritten && isClosed ? Done : CannotWrite(path);
}

/// Limit for a file with a ladder, which is much smaller.
constexpr std::size_t MaxBytes = 1 << 20;

/// Returns nothing and sets errno if the file cannot be read to its end or is too large.
std::optional<std::string> ReadText(const std::string& path) {
    std::FILE* const file = std::fopen(path.c_str(), "r");
    if (file == nullptr) return std::nullopt;
    std::string text;
    std::array<char, 4096> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), file)) {
        text.append(part.data(), count);
        if (text.size() > MaxBytes) break;
    }
    const int error = text.size() > MaxBytes ? EFBIG : std::ferror(file) == 0 ? 0 : errno;
    std::fclose(file);
    errno = error;
    return error == 0 ? std::optional(text) : std::nullopt;
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
    const int written =
        WriteText({}, MatchTable(options.Terms, ScoreOf(games, options.Terms.Alternates)));
    const int status = StatusOf(end, games, options.Terms, options.Run);
    return status != Done ? status : written;
}

MatchTerms TermsOf(const Options& options, int lower) {
    MatchTerms terms = options.Terms;
    terms.First = ToInt16(lower + 1);
    terms.Second = ToInt16(lower);
    terms.Alternates = true;
    return terms;
}

// ---- The ladder ----

int DrawChart(const Options& options, const Ladder& ladder) {
    return options.ChartFile.empty() ? Done : WriteText(options.ChartFile, LadderChart(ladder));
}

/// Called after each match, so that an interrupt loses only the current match. Writes the ladder so
/// far to both files. Without a table file, prints the new rows to standard output.
int WriteProgress(const Options& options, const Ladder& ladder) {
    const bool isBegun = ladder.Entries.size() > 2;
    const bool isWhole = !options.TableFile.empty() || !isBegun;
    const std::string text = isWhole ? LadderText(ladder) : LadderRow(ladder.Entries.back());
    const int status = WriteText(options.TableFile, text);
    return status != Done ? status : DrawChart(options, ladder);
}

int PlayLadder(const Options& options) {
    Ladder ladder = BeginLadder(options.Terms);
    for (int lower = options.From; lower < options.To; ++lower) {
        const MatchTerms terms = TermsOf(options, lower);
        std::vector<MatchGame> games;
        const MatchEnd end = Play(terms, options.Run, games);
        if (!games.empty()) {
            AddMatch(ladder, terms, ScoreOf(games, true));
            const int written = WriteProgress(options, ladder);
            if (written != Done) return written;
        }
        const int status = StatusOf(end, games, terms, options.Run);
        if (status != Done) return status;
    }
    return Done;
}

int JoinLadders(const Options& options) {
    Ladder ladder;
    for (const std::string& path : options.Joined) {
        const auto text = ReadText(path);
        if (!text)
            return ReportError("cannot read " + path + ": " + std::strerror(errno), CannotDo);
        const std::string wrong = JoinLadder(ladder, *text);
        if (!wrong.empty()) return ReportError(path + " cannot be joined: " += wrong, CannotDo);
    }
    const int status = WriteText(options.TableFile, LadderText(ladder));
    return status != Done ? status : DrawChart(options, ladder);
}

/// Reports a path that cannot be written before any game is played. The folder comes last, because
/// it may be created: an error in another path must not leave a new folder.
int CheckPaths(const Options& options) {
    for (const std::string& path : {options.TableFile, options.ChartFile}) {
        if (!path.empty() && !CanWrite(path)) return CannotWrite(path);
    }
    if (IsSameFile(options.TableFile, options.ChartFile)) {
        return ReportError("--table and --chart name the same file", CannotDo);
    }
    const int first = options.Ladder ? options.From : 0;
    const int last = options.Ladder ? options.To - 1 : 0;
    for (int lower = first; lower <= last && !options.Run.Folder.empty(); ++lower) {
        const MatchTerms terms = options.Ladder ? TermsOf(options, lower) : options.Terms;
        const std::string obstacle = PrepareFolder(options.Run.Folder, terms, options.Run.Games);
        if (!obstacle.empty()) return ReportError(obstacle, CannotDo);
    }
    return Done;
}

int Main(int count, char** texts) {
    Options options;
    if (const auto status = ReadOptions(count, texts, options)) return *status;
    if (const int status = CheckPaths(options)) return status;
    if (!options.Joined.empty()) return JoinLadders(options);
    WatchInterrupts();
    return options.Ladder ? PlayLadder(options) : PlaySingle(options);
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
