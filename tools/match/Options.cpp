#include "tools/match/Options.h"

#include "core/StartPosition.h"
#include "tools/CommandLine.h"

#include <array>
#include <limits>
#include <utility>

namespace brastel {

namespace {

constexpr const char* Description =
    "Plays games of one strength of the computer player against another and prints the result.\n"
    "Each game depends only on the options and its number.\n";

constexpr const char* Footer = R"(A STRENGTH is a number from 1 to 11 or a name from Easy to God.

Examples:
  brastel-match --red 5 --blue 3 --games 200 --jobs 2
  brastel-match --red Expert --blue Master --pieces 12 --games 10 --save games

Exit status: 0 done, 2 wrong arguments or a path that cannot be read or written, 3 the
system failed, 130 interrupted. More in brastel-match(6).)";

constexpr std::int64_t MaxGames = 100'000;
constexpr std::int64_t MaxJobs = 256;
constexpr std::int64_t MaxRandomMoves = 10;

std::string ReadPieces(std::string& text) {
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        if (text == std::to_string(LayoutPieces(layout))) return {};
    }
    return "\"" + text + "\" is not a number of pieces: use 2, 4, 6, 8, 10 or 12";
}

const CLI::Validator IsPieceCount(ReadPieces, "");

/// A group of options in the help.
class OptionGroup {
public:
    OptionGroup(CLI::App& app, std::string name) : App(app), Name(std::move(name)) {}

    template <typename Value>
    CLI::Option* Add(const char* name, Value& value, const char* kind, const char* help) {
        return App.add_option(name, value, help)->type_name(kind)->group(Name);
    }
    CLI::Option* AddFlag(const char* name, bool& value, const char* help) {
        return App.add_flag(name, value, help)->group(Name);
    }

private:
    CLI::App& App;
    std::string Name;
};

void AddSingleMatch(CLI::App& app, MatchTerms& terms) {
    OptionGroup group(app, "Match");
    group.Add("--red", terms.First, "STRENGTH", "strength of Red in the first game (5)")
        ->transform(IsStrength());
    group.Add("--blue", terms.Second, "STRENGTH", "strength of Blue in the first game (3)")
        ->transform(IsStrength());
    group.AddFlag("--no-alternate{false}", terms.Alternates,
                  "the same colours in every game, each game with its own opening");
}

void AddGames(CLI::App& app, Options& options) {
    OptionGroup group(app, "Games");
    MatchTerms& terms = options.Terms;
    MatchRun& run = options.Run;
    group.Add("--games", run.Games, "N", "games to play (100)")->transform(IsNumber(1, MaxGames));
    group.Add("--pieces", terms.Pieces, "N", "pieces a side: 2, 4, 6, 8, 10 or 12 (8)")
        ->transform(IsPieceCount);
    group.Add("--seed", terms.Seed, "N", "seed of the random numbers; it decides the games (1)")
        ->transform(IsNumber(0, std::numeric_limits<std::int64_t>::max()));
    group
        .Add("--random-moves", terms.RandomMoves, "N",
             "random moves of each side at the beginning, 0 to 10 (2)")
        ->transform(IsNumber(0, MaxRandomMoves));
    group.Add("--jobs", run.Jobs, "N", "processes that play at the same time, 1 to 256 (1)")
        ->transform(IsNumber(1, MaxJobs));
    group.Add("--save", run.Folder, "DIR", "save a record file of each game here, for Load Game")
        ->transform(IsPath());
}

void AddHelp(CLI::App& app) {
    app.footer(Footer);
    app.set_help_flag("-h,--help", "print this text")->group("Other");
    app.set_version_flag("--version", "brastel-match " BRASTEL_VERSION, "print the version")
        ->group("Other");
}

}  // namespace

std::optional<int> ReadOptions(int count, const char* const* texts, Options& options) {
    CLI::App app(Description, "brastel-match");
    app.option_defaults()->disable_flag_override();
    AddSingleMatch(app, options.Terms);
    AddGames(app, options);
    AddHelp(app);
    return ReadArguments(app, count, texts);
}

}  // namespace brastel
