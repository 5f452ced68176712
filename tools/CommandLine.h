#pragma once

#include "tools/ExitStatus.h"
#include "tools/Printable.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

/// How the companions of the game read their arguments.
namespace brastel {

/// CLI11 would take a file [a,b] for the files a and b, and reads the same file from ./[a,b].
inline std::string WithoutList(std::string argument) {
    const bool isOption = argument.starts_with("--");
    const std::size_t value = isOption ? argument.find("=[") + 1 : 0;
    const bool isList = argument.ends_with(']') && argument[value] == '[';
    return isList ? argument.insert(value, "./") : argument;
}

/// Reads the arguments. Where the program has nothing more to do, its exit status: help or the
/// version has been printed, or a complaint about an argument.
inline std::optional<int> ReadArguments(CLI::App& app, int count, const char* const* texts) {
    std::vector<std::string> arguments(texts + 1, texts + count);
    std::ranges::transform(arguments, arguments.begin(), WithoutList);
    // CLI11 takes the first argument from the back.
    std::ranges::reverse(arguments);
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

}  // namespace brastel
