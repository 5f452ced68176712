#include "tools/match/MatchFile.h"

#include "engine/Strengths.h"
#include "play/GameRecord.h"
#include "tools/ReadNumber.h"
#include "tools/match/MatchTable.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <limits>
#include <optional>
#include <sstream>
#include <unistd.h>
#include <utility>

namespace brastel {

namespace {

constexpr const char* Captions =
    "game,red,blue,winner,entries,red_ns,red_worst_ns,blue_ns,blue_worst_ns,hash\n";

std::string LineOf(const MatchTerms& terms, const MatchGame& game) {
    const char* const winner = game.Winner == Red ? "Red" : game.Winner == Blue ? "Blue" : "draw";
    std::ostringstream line;
    line << game.Number << ',' << StrengthName(StrengthOf(terms, game.Number, Red)) << ','
         << StrengthName(StrengthOf(terms, game.Number, Blue)) << ',' << winner << ','
         << game.Entries << ',' << game.RedTime.Total << ',' << game.RedTime.Worst << ','
         << game.BlueTime.Total << ',' << game.BlueTime.Worst << ',' << game.Hash << '\n';
    return line.str();
}

/// Nothing if the line, without its end, is not exactly as LineOf writes it.
std::optional<MatchGame> ReadLine(const MatchTerms& terms, const std::string& line) {
    std::istringstream rest(line);
    std::string cell;
    const auto number = [&](auto most) {
        std::getline(rest, cell, ',');
        return ReadNumber<decltype(most)>(cell, 0, most).value_or(0);
    };
    constexpr auto MaxTime = std::numeric_limits<std::int64_t>::max();
    MatchGame game;
    game.Number = number(std::numeric_limits<int>::max());
    // The names of the strengths follow from the number.
    for (int n = 0; n < 3; ++n) std::getline(rest, cell, ',');
    game.Winner = cell == "Red" ? Red : cell == "Blue" ? Blue : Empty;
    game.Entries = number(Int16{MaxEntries});
    game.RedTime = {number(MaxTime), number(MaxTime)};
    game.BlueTime = {number(MaxTime), number(MaxTime)};
    game.Hash = number(std::numeric_limits<std::uint64_t>::max());
    const bool isRight = game.Number > 0 && LineOf(terms, game) == line + '\n';
    return isRight ? std::optional(game) : std::nullopt;
}

}  // namespace

MatchFile::MatchFile(std::string path, const MatchTerms& terms)
    : Path(std::move(path)), Terms(terms), Head("# " + TermsText(terms) + '\n' + Captions) {}

MatchFile::~MatchFile() {
    if (File != nullptr) std::fclose(File);
}

std::string MatchFile::Begin(bool force) {
    if (Path.empty()) return {};
    const std::string error = Open(force ? "a" : "ax");
    return error.empty() ? CutAt(0) : error;
}

std::string MatchFile::Resume(int last, MatchGames& games) {
    std::error_code ignored;
    const auto status = std::filesystem::status(Path, ignored);
    if (exists(status) && !is_regular_file(status)) return Path + " is not an ordinary file";
    const std::string error = Open("a+");
    return error.empty() ? Read(last, games) : error;
}

/// The lock ends with the program, however that ends. Its worker processes, which can live a little
/// longer, do not have it.
std::string MatchFile::Open(const char* mode) {
    File = std::fopen(Path.c_str(), mode);
    if (File == nullptr && errno == EEXIST)
        return Path + " exists; --resume goes on with its match, --force overwrites it";
    if (File == nullptr) return Failure();
    const bool isFree =
        lockf(fileno(File), F_TLOCK, 0) == 0 || (errno != EACCES && errno != EAGAIN);
    return isFree ? "" : "another match writes " + Path;
}

std::string MatchFile::Read(int last, MatchGames& games) {
    std::string text;
    std::array<char, 65536> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), File)) {
        text.append(part.data(), count);
    }
    if (std::ferror(File) != 0) return "cannot read " + Path + ": " + std::strerror(errno);
    if (Head.starts_with(text)) return CutAt(0);
    if (!text.starts_with(Head)) {
        return Path + " is not from this match: its first line is \"" +
               text.substr(0, text.find('\n')) + "\", but should be \"# " + TermsText(Terms) + '"';
    }
    text.resize(text.rfind('\n') + 1);
    std::istringstream lines(text.substr(Head.size()));
    int lineNumber = 2;
    for (std::string line; std::getline(lines, line);) {
        ++lineNumber;
        const auto game = ReadLine(Terms, line);
        if (!game) return Path + ':' + std::to_string(lineNumber) + ": the line is damaged";
        if (game->Number <= last) games.emplace(game->Number, *game);
    }
    return CutAt(text.size());
}

/// Devices have no size.
std::string MatchFile::CutAt(std::size_t size) {
    const bool isCut = ftruncate(fileno(File), static_cast<off_t>(size)) == 0 || errno == EINVAL;
    if (!isCut) return Failure();
    return size == 0 ? Write(Head) : "";
}

std::string MatchFile::Append(const MatchGame& game) {
    return Path.empty() ? "" : Write(LineOf(Terms, game));
}

std::string MatchFile::Write(const std::string& text) {
    const bool isWritten = std::fputs(text.c_str(), File) >= 0 && std::fflush(File) == 0;
    return isWritten ? "" : Failure();
}

std::string MatchFile::Failure() const {
    return "cannot write " + Path + ": " + std::strerror(errno);
}

}  // namespace brastel
