#include "tools/match/Options.h"

#include "core/StartPosition.h"
#include "engine/Strengths.h"
#include "tools/CommandLine.h"
#include "tools/ReadNumber.h"

#include <array>
#include <cctype>
#include <limits>
#include <memory>
#include <utility>

namespace brastel {

namespace {

constexpr const char* Description =
    "Plays games of one strength of the computer player against another and prints the result.\n"
    "Each game depends only on the options and its number.\n";

constexpr const char* Footer = R"(A STRENGTH is a number from 1 to 11 or a name from Easy to God.

Examples:
  brastel-match --red 5 --blue 3 --alternate --games 200 --jobs 2
  brastel-match --red Expert --blue Master --pieces 12 --games 10 --save games
  brastel-match --ladder --games 200 --table ladder.md --chart ladder.svg
  brastel-match --ladder --join low.md high.md --chart ladder.svg

Exit status: 0 done, 2 wrong arguments or a path that cannot be read or written, 3 the
system failed, 130 interrupted. More in brastel-match(6).)";

constexpr std::int64_t MaxGames = 100'000;
constexpr std::int64_t MaxJobs = 256;
constexpr std::int64_t MaxRandomMoves = 10;

std::string Lower(std::string text) {
    for (char& byte : text) {
        byte = static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
    }
    return text;
}

/// Turns the name of a strength into its number.
std::string ReadStrength(std::string& text) {
    for (int level = 1; level <= MaxPly; ++level) {
        const std::string number = std::to_string(level);
        if (text != number && Lower(text) != Lower(StrengthName(level))) continue;
        text = number;
        return {};
    }
    return "\"" + text + "\" is not a strength: use 1 to 11 or a name from Easy to God";
}

std::string ReadPieces(std::string& text) {
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        if (text == std::to_string(LayoutPieces(layout))) return {};
    }
    return "\"" + text + "\" is not a number of pieces: use 2, 4, 6, 8, 10 or 12";
}

std::string ReadPath(std::string& text) { return text.empty() ? "the path is empty" : ""; }

CLI::Validator IsNumber(std::int64_t least, std::int64_t most) {
    const auto read = [=](std::string& text) -> std::string {
        if (ReadNumber(text, least, most)) return {};
        return "\"" + text + "\" is not a whole number from " + std::to_string(least) + " to " +
               std::to_string(most);
    };
    return {read, ""};
}

const CLI::Validator IsStrength(ReadStrength, "");
const CLI::Validator IsPieceCount(ReadPieces, "");
const CLI::Validator IsPath(ReadPath, "");

/// A group of options in the help.
class OptionGroup {
public:
    OptionGroup(CLI::App& app, std::string name) : App(app), Name(std::move(name)) {}

    template <typename Value>
    CLI::Option* Add(const char* name, Value& value, const char* kind, const char* help) {
        return App.add_option(name, value, help)->type_name(kind)->option_text(kind)->group(Name);
    }
    CLI::Option* AddFlag(const char* name, bool& value, const char* help) {
        return App.add_flag(name, value, help)->option_text(" ")->group(Name);
    }

private:
    CLI::App& App;
    std::string Name;
};

void AddSingleMatch(CLI::App& app, MatchTerms& terms) {
    OptionGroup group(app, "One match");
    group.Add("--red", terms.First, "STRENGTH", "strength of Red (5)")->transform(IsStrength);
    group.Add("--blue", terms.Second, "STRENGTH", "strength of Blue (3)")->transform(IsStrength);
    group.AddFlag("--alternate", terms.Alternates,
                  "swap colours in every other game; play each opening twice");
}

/// --red, --blue and --alternate are for a single match only: a ladder sets them itself.
void AddLadder(CLI::App& app, Options& options) {
    OptionGroup group(app, "All strengths");
    auto* const ladder =
        group.AddFlag("--ladder", options.Ladder,
                      "play each strength against the one below, colours alternating");
    for (const char* name : {"--red", "--blue", "--alternate"}) {
        ladder->excludes(app.get_option(name));
    }
    const std::array<CLI::Option*, 5> parts{
        group.Add("--from", options.From, "STRENGTH", "lowest strength (1)")->transform(IsStrength),
        group.Add("--to", options.To, "STRENGTH", "highest strength (11)")->transform(IsStrength),
        group
            .Add("--table", options.TableFile, "FILE",
                 "write the ladder here, not to standard output")
            ->check(IsPath),
        group.Add("--chart", options.ChartFile, "FILE", "draw the ladder as an SVG picture")
            ->check(IsPath),
        group
            .Add("--join", options.Joined, "FILE...", "play no games, join ladders written before")
            ->check(IsPath)};
    for (CLI::Option* part : parts) part->needs(ladder);
}

void AddGames(CLI::App& app, Options& options) {
    OptionGroup group(app, "Games");
    MatchTerms& terms = options.Terms;
    MatchRun& run = options.Run;
    group.Add("--games", run.Games, "N", "games to play, for a ladder in each match (100)")
        ->check(IsNumber(1, MaxGames));
    group.Add("--pieces", terms.Pieces, "N", "pieces a side: 2, 4, 6, 8, 10 or 12 (8)")
        ->transform(IsPieceCount);
    group.Add("--seed", terms.Seed, "N", "seed of the random numbers; it decides the games (1)")
        ->check(IsNumber(0, std::numeric_limits<std::int64_t>::max()));
    group
        .Add("--random-moves", terms.RandomMoves, "N",
             "random moves of each side at the beginning, 0 to 10 (2)")
        ->check(IsNumber(0, MaxRandomMoves));
    group.Add("--jobs", run.Jobs, "N", "processes that play at the same time, 1 to 256 (1)")
        ->check(IsNumber(1, MaxJobs));
    group.Add("--save", run.Folder, "DIR", "save a record file of each game here, for Load Game")
        ->check(IsPath);
}

/// The help of CLI11 with one empty line between the groups of options.
class HelpText : public CLI::Formatter {
public:
    std::string make_usage(const CLI::App* app, std::string name) const override {
        return Formatter::make_usage(app, std::move(name)) + '\n';
    }
    std::string make_group(std::string group, bool isPositional,
                           std::vector<const CLI::Option*> options) const override {
        return Formatter::make_group(std::move(group), isPositional, std::move(options)).substr(1);
    }
};

void AddHelp(CLI::App& app) {
    app.formatter(std::make_shared<HelpText>());
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
    AddLadder(app, options);
    AddGames(app, options);
    AddHelp(app);
    for (const char* name : {"--from", "--to", "--games", "--pieces", "--seed", "--random-moves",
                             "--jobs", "--save"}) {
        app.get_option("--join")->excludes(app.get_option(name));
    }
    app.callback([&options] {
        if (options.Ladder && options.From >= options.To) {
            throw CLI::ValidationError("--from", "must be a strength below --to");
        }
    });
    return ReadArguments(app, count, texts);
}

}  // namespace brastel
