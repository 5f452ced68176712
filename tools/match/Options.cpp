#include "tools/match/Options.h"

#include "core/StartPosition.h"
#include "engine/Strengths.h"
#include "tools/match/SavedGames.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>

namespace brastel {

namespace {

constexpr const char* Description =
    "Plays games of one strength of Brastel's computer player against another and prints the "
    "result as a table. Every game depends only on the seed and its number.";

constexpr const char* Footer = R"(Examples:
  brastel-match --red 5 --blue 3 --games 100 --alternate --jobs 2
  brastel-match --red Expert --blue Expert --pieces 12 --games 10 --save games
  brastel-match --ladder --games 200 --table ladder.md

Exit status: 0 done, 1 wrong arguments, 2 a path cannot be written, 3 the system failed, 130
interrupted, with the results so far. More in brastel-match(6).)";

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

/// Turns the name of a strength into its number.
const CLI::Validator IsStrength(
    [](std::string& text) -> std::string {
        for (const Strength& strength : Strengths) {
            const std::string number = std::to_string(strength.Depth);
            if (text != number && Lower(text) != Lower(StrengthName(strength.Depth))) continue;
            text = number;
            return {};
        }
        return text + " is no strength: give 1 to 11, or a name from Easy to God";
    },
    "STRENGTH", "strength");

const CLI::Validator IsPieceCount(
    [](std::string& text) -> std::string {
        for (int layout = 0; layout < FreeSetupLayout; ++layout) {
            if (text == std::to_string(LayoutPieces(layout))) return {};
        }
        return text + " is no number of pieces: give 2, 4, 6, 8, 10 or 12";
    },
    "N", "pieces");

constexpr int MostGames = 1'000'000;
constexpr int MostJobs = 256;
constexpr int MostRandomMoves = 10;

/// Options of a single match and of a ladder exclude each other.
void AddOptions(CLI::App& app, Options& options) {
    MatchTerms& terms = options.Terms;
    MatchRun& run = options.Run;
    auto* ladder = app.add_flag("--ladder", options.Ladder,
                                "Play all neighbouring strengths, colours alternating");
    app.add_option("--red", terms.First, "Strength of Red, 1 to 11 or Easy to God")
        ->transform(IsStrength)
        ->excludes(ladder);
    app.add_option("--blue", terms.Second, "Strength of Blue")
        ->transform(IsStrength)
        ->excludes(ladder);
    app.add_flag("--alternate", terms.Alternates,
                 "Swap colours every other game; each opening is played with both")
        ->excludes(ladder);
    app.add_option("--pieces", terms.Pieces, "Pieces a side: 2, 4, 6, 8, 10 or 12")
        ->transform(IsPieceCount);
    app.add_option("--games", run.Games, "Games to play, of each pair of strengths with --ladder")
        ->check(CLI::Range(1, MostGames));
    app.add_option("--seed", terms.Seed, "Another seed, other games");
    app.add_option("--random-moves", terms.RandomMoves,
                   "Random moves of each side at the beginning")
        ->check(CLI::Range(0, MostRandomMoves));
    app.add_option("--jobs", run.Jobs, "Processes to play with; the games stay the same")
        ->check(CLI::Range(1, MostJobs));
    app.add_option("--save", run.Folder, "Save a record file of each game in this folder")
        ->type_name("DIR");
    app.add_option("--from", options.From, "Lowest strength of the ladder")
        ->transform(IsStrength)
        ->needs(ladder);
    app.add_option("--to", options.To, "Highest strength of the ladder")
        ->transform(IsStrength)
        ->needs(ladder);
    app.add_option("--table", options.TableFile, "Write the ladder here, not to standard output")
        ->type_name("FILE")
        ->needs(ladder);
    app.set_version_flag("--version", "brastel-match " BRASTEL_VERSION);
}

}  // namespace

std::optional<int> ReadOptions(int count, const char* const* texts, Options& options) {
    CLI::App app(Description, "brastel-match");
    app.option_defaults()->always_capture_default();
    app.footer(Footer);
    AddOptions(app, options);
    try {
        app.parse(count, texts);
        if (options.Ladder && options.From >= options.To) {
            throw CLI::ValidationError("--from", "must be a strength below --to");
        }
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Done : BadArguments;
    }
    return std::nullopt;
}

}  // namespace brastel
