#include "tools/match/Options.h"

#include "tools/CommandLine.h"

#include <algorithm>
#include <limits>
#include <thread>

namespace brastel {

namespace {

constexpr const char* Description =
    R"(Plays games of one strength of the computer player against another and prints
the result. Each game depends only on the options and its number.
)";

constexpr const char* Footer = R"(A STRENGTH is a number from 1 to 11 or a name from Easy to God.

Examples:
  brastel-match --red 5 --blue 3 --games 200 --jobs 0
  brastel-match --red Expert --blue Master --pieces 12 --games 10 --save games
  brastel-match --red God --blue King --games 400 --csv god.csv --resume

Exit status: 0 done, 2 wrong arguments or a path that cannot be read or written,
3 the system failed. An interrupt ends the program by its signal. More in
brastel-match(6).
)";

constexpr std::int64_t MaxGames = 100'000;
constexpr std::int64_t MaxJobs = 256;
constexpr std::int64_t MaxRandomMoves = 10;
constexpr std::int64_t MaxSeed = std::numeric_limits<std::int64_t>::max();

/// Adds an option with a value.
CLI::Option* Add(CLI::App& app, const char* name, auto& value, const char* kind,
                 const CLI::Validator& check, const char* help) {
    return app.add_option(name, value, help)->type_name(kind)->transform(check);
}

void AddMatch(CLI::App& app, Options& options) {
    app.option_defaults()->group("Match");
    MatchTerms& terms = options.Terms;
    Add(app, "--red", terms.First, "STRENGTH", IsStrength(),
        "strength of Red in the first game (5)");
    Add(app, "--blue", terms.Second, "STRENGTH", IsStrength(),
        "strength of Blue in the first game (3)");
    app.add_flag("--no-alternate{false}", terms.Alternates,
                 "same colours in every game, and an opening for each game");
    Add(app, "--games", options.Run.Games, "N", IsNumber(1, MaxGames), "games to play (100)");
    Add(app, "--pieces", terms.Pieces, "N", IsPieceCount(),
        "pieces a side: 2, 4, 6, 8, 10 or 12 (8)");
    Add(app, "--random-moves", terms.RandomMoves, "N", IsNumber(0, MaxRandomMoves),
        "random moves of each side at the beginning, 0 to 10 (2)");
    Add(app, "--seed", terms.Seed, "N", IsNumber(0, MaxSeed),
        "seed of the random numbers; another gives other games (1)");
    Add(app, "--jobs", options.Run.Jobs, "N", IsNumber(0, MaxJobs),
        "games to play at the same time; 0: one on each core (1)");
}

void AddFiles(CLI::App& app, Options& options) {
    app.option_defaults()->group("Files");
    CLI::Option* const csv =
        Add(app, "--csv", options.CsvFile, "FILE", IsPath(), "write a line for each game here");
    app.add_flag("--resume", options.Resume, "play only the games that are not in the CSV file")
        ->needs(csv);
    Add(app, "--save", options.Run.Folder, "DIR", IsPath(),
        "save a record of each game here, for Load Game");
    app.add_flag("--force", options.Run.Force, "overwrite existing files");
}

}  // namespace

std::optional<int> ReadOptions(int count, const char* const* texts, Options& options) {
    CLI::App app(Description, "brastel-match");
    app.option_defaults()->disable_flag_override();
    AddMatch(app, options);
    AddFiles(app, options);
    app.option_defaults()->group("Other");
    app.set_version_flag("--version", "brastel-match " BRASTEL_VERSION, "show the version");
    app.footer(Footer);
    const auto status = ReadArguments(app, count, texts);
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    if (options.Run.Jobs == 0) options.Run.Jobs = std::max(cores, 1);
    return status;
}

}  // namespace brastel
