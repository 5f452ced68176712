/// The program brastel-record: checks record files, prints games in words and draws positions.

#include "files/TextFile.h"
#include "play/GameRecord.h"
#include "tools/CommandLine.h"
#include "tools/Interrupt.h"
#include "tools/ReadNumber.h"
#include "tools/record/Report.h"
#include "tools/record/SvgBoard.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace {

using namespace brastel;

constexpr const char* Description =
    R"(Checks record files that Brastel writes with Options > Save Game: can they be read, and does
every entry follow the rules? Also prints games in words and draws their positions.
)";

constexpr const char* Examples = R"(Examples:
  brastel-record game.txt                        is the file correct?
  brastel-record games/*.txt | grep ' breaks '   which games break the rules?
  brastel-record --moves game.txt | less         the game in words
  brastel-record --at 37 game.txt                the position after 37 entries
  brastel-record --at end --svg -o end.svg game.txt

Status: 0 if everything is correct; 1 if a file is damaged or an entry breaks the rules; 2 if
arguments are wrong or a file cannot be read or written; 3 if the system failed; 130 after an
interrupt.
)";

struct Options {
    std::vector<std::string> Files;
    bool Moves = false;
    std::string At;
    bool Svg = false;
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
    auto* at = app.add_option("--at", options.At,
                              "draw the position after N entries (0: the start; end: the last)");
    at->type_name("N")->check(CheckAt)->excludes(moves);
    app.add_flag("--svg", options.Svg, "draw an SVG picture instead of text")->needs(at);
    auto* output = app.add_option("-o,--output", options.Output, "write to this new file");
    output->type_name("PATH")->transform(IsPath());
    app.add_flag("--force", options.Force, "overwrite an existing output file")->needs(output);
    app.set_version_flag("--version", "brastel-record " BRASTEL_VERSION, "show the version");
    app.set_help_flag("-h,--help", "show this text");
    app.footer(Examples);
}

/// The error in a combination of options, or empty.
std::string FirstContradiction(const Options& options) {
    if (!options.At.empty() && options.Files.size() > 1)
        return "--at draws one game: name one file";
    if (options.Output.empty()) return {};
    std::error_code ignored;
    if (!exists(std::filesystem::symlink_status(options.Output, ignored))) return {};
    for (const std::string& file : options.Files) {
        if (!std::filesystem::equivalent(file, options.Output, ignored)) continue;
        return options.Output + ": the output file is a record to read";
    }
    return options.Force ? "" : options.Output + ": exists; --force overwrites it";
}

// ---- Output ----

/// Collects the text for an output file. Without an output file, prints it at once.
class Output {
public:
    explicit Output(const Options& options) : Path(options.Output), Force(options.Force) {}

    void Write(const std::string& text) {
        if (!Path.empty()) {
            Collected += text;
            return;
        }
        const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
        if (isWritten && std::fflush(stdout) == 0) return;
        // A closed pipe is not an error, and Run reports an interrupt.
        const bool isQuiet = errno == EPIPE || Interrupted != 0;
        if (!isQuiet) ReportError("standard output: " + std::string(std::strerror(errno)));
        Failed = true;
    }
    bool HasFailed() const { return Failed; }

    /// Writes the output file. Without any text, an existing file does not change.
    bool Finish() const {
        if (Collected.empty()) return true;
        const FileError error = (Force ? WriteTextFile : CreateTextFile)(Path, Collected);
        if (error == FileError::None) return true;
        ReportError(Path + ": " + FailureInWords(error, errno));
        return false;
    }

private:
    std::string Path;
    bool Force;
    std::string Collected;
    bool Failed = false;
};

// ---- Reports ----

std::string Picture(const Options& options, const RecordedGame& game, int entry) {
    return options.Svg
               ? BoardAsSvg(game.Positions[static_cast<std::size_t>(entry)], Caption(game, entry))
               : Drawing(game, entry);
}

std::string NoSuchPosition(const RecordedGame& game, int entry) {
    const int entries = static_cast<int>(game.Entries.size());
    const std::string asked = "no position after entry " + std::to_string(entry) + ": ";
    return game.Path + ": " + asked +
           (entry > entries
                ? "the last entry is " + std::to_string(entries)
                : "the game cannot go on after entry " + std::to_string(game.PlayedEntries()));
}

int Draw(const Options& options, const RecordedGame& game, Output& output) {
    const auto number = ReadNumber(options.At, 0, MaxEntries);
    const int entry = number ? static_cast<int>(*number) : game.PlayedEntries();
    // Errors go to standard error, so they are not part of the drawing.
    if (!game.IsLegal()) std::fprintf(stderr, "%s\n", ResultLine(game).c_str());
    if (game.Error != FileError::None) return FoundFault;
    if (entry > game.PlayedEntries()) {
        ReportError(NoSuchPosition(game, entry));
        return CannotDo;
    }
    output.Write(Picture(options, game, entry));
    return game.IsLegal() ? Done : FoundFault;
}

int Check(const Options& options, const RecordedGame& game, Output& output) {
    output.Write(ResultLine(game) + '\n' + (options.Moves ? MovesInWords(game) : ""));
    return game.IsLegal() ? Done : FoundFault;
}

int DoFile(const Options& options, const std::string& path, Output& output) {
    const RecordedGame game = ReadRecordedGame(path);
    if (IsUnreadable(game)) {
        ReportError(ResultLine(game));
        return CannotDo;
    }
    return options.At.empty() ? Check(options, game, output) : Draw(options, game, output);
}

int Run(const Options& options) {
    Output output(options);
    int status = Done;
    std::size_t done = 0;
    while (done < options.Files.size() && Interrupted == 0 && !output.HasFailed()) {
        status = std::max(status, DoFile(options, options.Files[done++], output));
    }
    if (!output.Finish() || output.HasFailed()) status = CannotDo;
    if (Interrupted == 0 || done == options.Files.size()) return status;
    ReportError("interrupted after " + std::to_string(done) + " of " +
                std::to_string(options.Files.size()) + " files");
    EndByInterrupt();
}

int Main(int count, char** texts) {
    CLI::App app(Description, "brastel-record");
    app.option_defaults()->disable_flag_override();
    Options options;
    Declare(app, options);
    if (const auto status = ReadArguments(app, count, texts)) return *status;
    if (const std::string wrong = FirstContradiction(options); !wrong.empty()) {
        ReportError(wrong);
        return CannotDo;
    }
    WatchInterrupts();
    return Run(options);
}

}  // namespace

int main(int count, char** texts) {
    // A write beyond a size limit then fails and does not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Main(count, texts);
    } catch (const std::exception& error) {
        // The only possible cause is lack of memory.
        std::fprintf(stderr, "brastel-record: %s\n", error.what());
        return SystemFailed;
    }
}
