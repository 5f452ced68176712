#pragma once

#include "core/StartPosition.h"
#include "engine/Strengths.h"
#include "tools/ExitStatus.h"
#include "tools/Printable.h"
#include "tools/ReadNumber.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <optional>
#include <string>
#include <strings.h>
#include <unistd.h>
#include <utility>
#include <vector>

/// The command line of the programs beside the game.
namespace brastel {

// ---- Kinds of values, for CLI::Option::transform ----

/// A whole number, in decimal. Without this check, CLI11 also reads other notations, and not the
/// same ones in each version.
inline CLI::Validator IsNumber(std::int64_t least, std::int64_t most) {
    const auto read = [=](std::string& text) -> std::string {
        const auto number = ReadNumber(text, least, most);
        if (!number) {
            return "\"" + text + "\" is not a whole number from " + std::to_string(least) + " to " +
                   std::to_string(most);
        }
        text = std::to_string(*number);
        return {};
    };
    return {read, ""};
}

/// The number or the name of a strength, in upper or lower case. The name becomes the number.
inline CLI::Validator IsStrength() {
    const auto read = [](std::string& text) -> std::string {
        for (int level = 1; level <= MaxPly; ++level) {
            const std::string number = std::to_string(level);
            const bool isName = strcasecmp(text.c_str(), StrengthName(level).c_str()) == 0;
            if (text != number && !isName) continue;
            text = number;
            return {};
        }
        return "\"" + text + "\" is not a strength: use 1 to 11 or a name from Easy to God";
    };
    return {read, ""};
}

/// The number of pieces of a start layout.
inline CLI::Validator IsPieceCount() {
    const auto read = [](std::string& text) -> std::string {
        for (int layout = 0; layout < FreeSetupLayout; ++layout) {
            if (text == std::to_string(LayoutPieces(layout))) return {};
        }
        return "\"" + text + "\" is not a number of pieces: use 2, 4, 6, 8, 10 or 12";
    };
    return {read, ""};
}

inline CLI::Validator IsPath() {
    return {[](std::string& text) { return text.empty() ? "the path is empty" : std::string(); },
            ""};
}

// ---- The help ----

/// What the help prints in front of the description, for example "-o, --output PATH".
inline std::string OptionForm(const CLI::Option& option) {
    if (option.get_positional()) return option.get_name(true);
    std::string form;
    for (const std::string& name : option.get_snames()) form += "-" + name + ", ";
    for (const std::string& name : option.get_lnames()) form += "--" + name + ", ";
    form.resize(form.size() - std::min<std::size_t>(form.size(), 2));
    const bool hasValue = option.get_items_expected_max() > 0;
    return hasValue && !option.get_type_name().empty() ? form + ' ' + option.get_type_name() : form;
}

/// The layout of CLI11's own help differs between its versions, and so does the name of the group
/// of options without one: Options or OPTIONS.
inline std::string HelpText(const CLI::App& app) {
    std::size_t width = 0;
    std::string usage = "Usage: " + app.get_name() + " [OPTION...]";
    for (const CLI::Option* option : app.get_options()) {
        width = std::max(width, OptionForm(*option).size());
        if (!option->get_positional()) continue;
        const std::string form =
            OptionForm(*option) + (option->get_items_expected_max() > 1 ? "..." : "");
        usage += option->get_required() ? ' ' + form : " [" + form + ']';
    }
    std::string text = app.get_description() + '\n' + usage + '\n';
    for (const std::string& group : app.get_groups()) {
        text += '\n' + (strcasecmp(group.c_str(), "options") == 0 ? "Options" : group) + ":\n";
        for (const CLI::Option* option : app.get_options()) {
            if (option->get_group() != group) continue;
            std::string form = OptionForm(*option);
            form.resize(width + 2, ' ');
            text += "  " + form + option->get_description() + '\n';
        }
    }
    text += '\n' + app.get_footer();
    return text.ends_with('\n') ? text : text + '\n';
}

// ---- Arguments ----

/// CLI11 reads an argument [a,b] as a list of two files. With ./ before it, it is one file name.
inline std::string WithoutList(std::string argument) {
    const bool isOption = argument.starts_with("--");
    const std::size_t value = isOption ? argument.find("=[") + 1 : 0;
    const bool isList = argument.ends_with(']') && argument[value] == '[';
    return isList ? argument.insert(value, "./") : argument;
}

/// Reads the arguments. The help option, which the program need not add, gets the group that is the
/// default. Returns an exit status if the program must end: after printing help, the version or an
/// error message.
inline std::optional<int> ReadArguments(CLI::App& app, int count, const char* const* texts) {
    std::vector<std::string> arguments(texts + 1, texts + count);
    std::ranges::transform(arguments, arguments.begin(), WithoutList);
    // CLI11 expects the arguments in reverse order.
    std::ranges::reverse(arguments);
    app.set_help_flag("-h,--help", "show this text");
    app.formatter_fn([&app](auto&&...) { return HelpText(app); });
    try {
        app.parse(arguments);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            std::cerr << app.get_name() << ": " << Printable(error.what()) << "; see --help\n";
            return CannotDo;
        }
        app.exit(error);
    }
    if (std::cout.flush()) return Done;
    std::cerr << app.get_name() << ": cannot write standard output: " << std::strerror(errno)
              << '\n';
    return CannotDo;
}

/// The arguments of a program that repeats something random.
struct RandomRun {
    std::int64_t Times = 0;
    std::int64_t Seed = 1;
};

/// Like ReadArguments, after it has added these arguments. `what` is the name of the first one.
inline std::optional<int> ReadRandomRun(CLI::App& app, const char* what, RandomRun& run, int count,
                                        const char* const* texts) {
    constexpr std::int64_t Plenty = 1'000'000'000;
    app.add_option(what, run.Times, "how many")->required()->transform(IsNumber(1, Plenty));
    app.add_option("SEED", run.Seed, "seed of the random numbers (1)")
        ->transform(IsNumber(0, Plenty));
    return ReadArguments(app, count, texts);
}

// ---- The whole program ----

/// Without this, a file that is opened could become standard output or standard error.
inline void RequireOutputs() {
    for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(output, F_GETFD) >= 0) continue;
        const int null = open("/dev/null", O_RDONLY);
        if (null == output) continue;
        dup2(null, output);
        close(null);
    }
}

/// Calls the main function of the program and returns its exit status.
inline int RunProgram(const char* name, int (*mainFunction)(int, char**), int count, char** texts) {
    // A write beyond a size limit then fails and does not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    RequireOutputs();
    try {
        return mainFunction(count, texts);
    } catch (const std::exception& error) {
        // The only possible cause is lack of memory.
        std::cerr << name << ": " << error.what() << '\n';
        return SystemFailed;
    }
}

}  // namespace brastel
