#pragma once

#include "tools/match/MatchGame.h"

#include <cstdio>
#include <string>

/// The CSV file of a match.
namespace brastel {

/// With an empty path there is no file, and nothing is written. The file begins with the terms of
/// the match and the names of the columns, and has a line for each game, in the order in which the
/// games finished. Each line is written as soon as its game has finished.
class MatchFile {
public:
    MatchFile(std::string path, const MatchTerms& terms);
    ~MatchFile();
    MatchFile(const MatchFile&) = delete;
    MatchFile& operator=(const MatchFile&) = delete;

    /// Reads the games with numbers up to `last` from a file of a stopped match. Does nothing if
    /// there is no file. If the program was killed while it wrote the last line,
    /// that line is left out. Returns the error, or nothing.
    std::string Read(int last, MatchGames& games);

    /// Opens the file for Append: after Read at the end of its last whole line, otherwise as a new
    /// file. Without `force`, a file that was not read must not exist. Returns the error, or
    /// nothing.
    std::string Open(bool force);

    /// Writes the line of a game. Returns the error, or nothing.
    std::string Append(const MatchGame& game);

private:
    std::string Write(const std::string& text);

    std::string Path;
    MatchTerms Terms;
    /// What is in front of the first game.
    std::string Head;
    /// Bytes to keep of a file that was read.
    std::size_t Size = 0;
    bool IsRead = false;
    std::FILE* File = nullptr;
};

}  // namespace brastel
