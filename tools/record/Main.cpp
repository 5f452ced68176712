/// The program brastel-record: checks record files, prints games in words and draws positions.

#include "files/TextFile.h"
#include "play/GameRecord.h"
#include "tools/CommandLine.h"
#include "tools/Interrupt.h"
#include "tools/ReadNumber.h"
#include "tools/record/Report.h"
#include "tools/record/Review.h"
#include "tools/record/SvgBoard.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace {

using namespace brastel;

constexpr const char* Description =
    R"(Checks record files that Brastel writes with Options > Save Game: can they be
read, and does every entry follow the rules? Also prints games in words, draws
their positions and finds mistakes.
)";

constexpr const char* Examples =
    R"(FILE and PATH can be - for standard input and standard output. STRENGTH is a
number from 1 to 11 or a name from Easy to God.

Examples:
  brastel-record game.txt                        is the file correct?
  brastel-record games/*.txt | grep ' breaks '   which games break the rules?
  brastel-record --moves game.txt | less         the game in words
  brastel-record --at 37 game.txt                the position after 37 entries
  brastel-record --at end --svg -o end.svg game.txt
  brastel-record --review game.txt               which moves were mistakes?
  brastel-record --review God --svg -o curve.svg game.txt

Status: 0 if everything is correct; 1 if a file is damaged or an entry breaks
the rules; 2 if arguments are wrong or a file cannot be read or written; 3 if
the system failed; 130 in a shell after an interrupt.
)";

struct Options {
    std::vector<std::string> Files;
    bool Moves = false;
    std::string At;
    /// The strength for a review, or 0.
    Int16 Review = 0;
    bool Svg = false;
    bool Json = false;
    std::string Output;
    bool Force = false;
};

void ReportError(const std::string& words) {
    std::fprintf(stderr, "brastel-record: %s\n", Printable(words).c_str());
}

// ---- Arguments ----

std::string CheckAt(const std::string& text) {
    if (text == "end" || ReadNumber(text, 0, MaxEntries)) return {};
    return "\"" + text + "\" is neither a number from 0 to " + std::to_string(MaxEntries) +
           " nor \"end\"";
}

void Declare(CLI::App& app, Options& options) {
    app.add_option("FILE", options.Files, "record files to read")->required()->type_name("");
    auto* moves = app.add_flag("--moves", options.Moves, "print the game entry by entry in words");
    auto* at = app.add_option("--at", options.At, "draw the position after N entries");
    at->type_name("N|end")->check(CheckAt)->excludes(moves);
    auto* review = app.add_option("--review", options.Review,
                                  "compare each move with the computer's best (King)");
    review->type_name("[STRENGTH]")->transform(IsStrength())->excludes(moves)->excludes(at);
    auto* svg = app.add_flag("--svg", options.Svg, "draw an SVG picture instead of text");
    app.add_flag("--json", options.Json, "print the review as JSON")->needs(review)->excludes(svg);
    auto* output = app.add_option("-o,--output", options.Output, "write to this new file");
    output->type_name("PATH")->transform(IsPath());
    app.add_flag("--force", options.Force, "overwrite an existing output file")->needs(output);
    app.set_version_flag("--version", "brastel-record " BRASTEL_VERSION, "show the version");
    app.set_help_flag("-h,--help", "show this text");
    app.footer(Examples);
}

/// CLI11 would read a file name after --review as the strength. So --review always gets one here.
std::vector<const char*> WithStrength(int count, char** texts) {
    std::vector<const char*> arguments(texts, texts + count);
    bool isOption = true;
    for (std::size_t n = 0; n < arguments.size(); ++n) {
        const std::string_view argument = arguments[n];
        isOption = isOption && argument != "--";
        std::string next = n + 1 < arguments.size() ? arguments[n + 1] : "";
        const bool hasStrength = IsStrength()(next).empty();
        if (isOption && argument == "--review" && !hasStrength) arguments[n] = "--review=King";
    }
    return arguments;
}

/// The error in a combination of options, or empty.
std::string FirstContradiction(const Options& options) {
    const bool isAboutOneGame = !options.At.empty() || options.Review != 0;
    if (options.Svg && !isAboutOneGame) return "--svg needs --at or --review; see --help";
    if (isAboutOneGame && options.Files.size() > 1)
        return "--at and --review need one game: name one file";
    std::error_code ignored;
    if (!exists(std::filesystem::symlink_status(options.Output, ignored))) return {};
    for (const std::string& file : options.Files) {
        const std::string source = file == "-" ? "/dev/stdin" : file;
        if (!std::filesystem::equivalent(source, options.Output, ignored)) continue;
        return options.Output + ": the output file is a record to read";
    }
    return options.Force ? "" : options.Output + ": exists; --force overwrites it";
}

// ---- Output ----

bool Print(const std::string& text) {
    if (std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0) return true;
    // A closed pipe is not an error, and Run ends by an interrupt.
    if (errno != EPIPE && Interrupted == 0)
        ReportError("standard output: " + std::string(std::strerror(errno)));
    return false;
}

/// Writes the output file. Without any text, an existing file does not change.
bool WriteOutput(const Options& options, const std::string& text) {
    if (text.empty()) return true;
    const auto write = options.Force ? WriteTextFile : CreateTextFile;
    const FileError error = write(options.Output, text);
    if (error == FileError::None) return true;
    ReportError(options.Output + ": " + FailureInWords(error, errno));
    return false;
}

// ---- Reports: each adds its text and returns an exit status ----

int Draw(const Options& options, const RecordedGame& game, std::string& text) {
    const auto number = ReadNumber(options.At, 0, MaxEntries);
    const int entry = number ? static_cast<int>(*number) : game.PlayedEntries();
    if (entry > game.PlayedEntries()) {
        ReportError(game.Path + ": no position after entry " + options.At +
                    ", the last one is after entry " + std::to_string(game.PlayedEntries()));
        return CannotDo;
    }
    const Position& position = game.Positions[static_cast<std::size_t>(entry)];
    text += options.Svg ? BoardAsSvg(position, Caption(game, entry)) : Drawing(game, entry);
    return game.IsLegal() ? Done : FoundFault;
}

int Review(const Options& options, const RecordedGame& game, std::string& text) {
    const GameReview review = ReviewGame(game, options.Review);
    // A part of a review would look like a whole one.
    if (Interrupted != 0) return Done;
    text += options.Svg    ? ReviewAsSvg(game, review)
            : options.Json ? ReviewAsJson(review)
                           : ReviewAsText(game, review);
    return game.IsLegal() ? Done : FoundFault;
}

int Check(const Options& options, const RecordedGame& game, std::string& text) {
    text += ResultLine(game) + '\n' + (options.Moves ? MovesInWords(game) : "");
    return game.IsLegal() ? Done : FoundFault;
}

int DoFile(const Options& options, const std::string& path, std::string& text) {
    const RecordedGame game = ReadRecordedGame(path);
    if (Interrupted != 0) return Done;
    if (IsUnreadable(game)) {
        ReportError(ResultLine(game));
        return CannotDo;
    }
    if (options.At.empty() && options.Review == 0) return Check(options, game, text);
    // Errors go to standard error, so they are not part of a drawing or a review.
    if (!game.IsLegal()) std::fprintf(stderr, "%s\n", ResultLine(game).c_str());
    if (game.Error != FileError::None) return FoundFault;
    return options.Review == 0 ? Draw(options, game, text) : Review(options, game, text);
}

int Run(const Options& options) {
    std::string text;
    int status = Done;
    bool isWritten = true;
    for (const std::string& file : options.Files) {
        if (Interrupted != 0 || !isWritten) break;
        status = std::max(status, DoFile(options, file, text));
        if (!options.Output.empty()) continue;
        isWritten = Print(text);
        text.clear();
    }
    if (!options.Output.empty()) isWritten = WriteOutput(options, text);
    if (Interrupted != 0) EndByInterrupt();
    return isWritten ? status : CannotDo;
}

int Main(int count, char** texts) {
    CLI::App app(Description, "brastel-record");
    app.option_defaults()->disable_flag_override();
    Options options;
    Declare(app, options);
    const std::vector<const char*> arguments = WithStrength(count, texts);
    if (const auto status = ReadArguments(app, count, arguments.data())) return *status;
    if (options.Output == "-") options.Output.clear();
    if (const std::string wrong = FirstContradiction(options); !wrong.empty()) {
        ReportError(wrong);
        return CannotDo;
    }
    WatchInterrupts();
    return Run(options);
}

}  // namespace

int main(int count, char** texts) {
    return brastel::RunProgram("brastel-record", Main, count, texts);
}
