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

    // Each of these returns the error, or nothing. It is an error if another match has the file
    // open.

    /// Begins a new file. Without `force` it must not exist.
    std::string Begin(bool force);

    /// Opens the file of a stopped match, or a new one, and reads its games with numbers up to
    /// `last`. If the program was killed while it wrote the last line, that line is cut off.
    std::string Resume(int last, MatchGames& games);

    /// Writes the line of a game.
    std::string Append(const MatchGame& game);

private:
    std::string Open(const char* mode);
    std::string Read(int last, MatchGames& games);
    std::string CutAt(std::size_t size);
    std::string Write(const std::string& text);
    std::string Failure() const;

    std::string Path;
    MatchTerms Terms;
    /// What is in front of the first game.
    std::string Head;
    std::FILE* File = nullptr;
};

}  // namespace brastel
