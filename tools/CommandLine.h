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

/// Reads the arguments of the programs brastel-match and brastel-record.
namespace brastel {

/// CLI11 reads an argument [a,b] as a list of two files. With ./ before it, it is one file name.
inline std::string WithoutList(std::string argument) {
    const bool isOption = argument.starts_with("--");
    const std::size_t value = isOption ? argument.find("=[") + 1 : 0;
    const bool isList = argument.ends_with(']') && argument[value] == '[';
    return isList ? argument.insert(value, "./") : argument;
}

/// Reads the arguments. Returns an exit status if the program must end: after printing help, the
/// version or an error message.
inline std::optional<int> ReadArguments(CLI::App& app, int count, const char* const* texts) {
    std::vector<std::string> arguments(texts + 1, texts + count);
    std::ranges::transform(arguments, arguments.begin(), WithoutList);
    // CLI11 expects the arguments in reverse order.
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
