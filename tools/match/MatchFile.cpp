#include "tools/match/MatchFile.h"

#include "engine/Strengths.h"
#include "play/GameRecord.h"
#include "tools/ReadNumber.h"
#include "tools/match/MatchTable.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <optional>
#include <sstream>
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

std::string MatchFile::Read(int last, MatchGames& games) {
    std::error_code ignored;
    const auto kind = std::filesystem::status(Path, ignored).type();
    IsRead = true;
    if (kind == std::filesystem::file_type::not_found) return {};
    if (kind != std::filesystem::file_type::regular) return Path + " is not an ordinary file";
    std::ifstream file(Path, std::ios::binary);
    if (!file) return "cannot read " + Path + ": " + std::strerror(errno);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (Head.starts_with(text)) return {};
    if (!text.starts_with(Head)) {
        return Path + " is not from this match: its first line is \"" +
               text.substr(0, text.find('\n')) + "\", but should be \"# " + TermsText(Terms) + '"';
    }
    Size = text.rfind('\n') + 1;
    text.resize(Size);
    std::istringstream lines(text.substr(Head.size()));
    int lineNumber = 2;
    for (std::string line; std::getline(lines, line);) {
        ++lineNumber;
        const auto game = ReadLine(Terms, line);
        if (!game) return Path + ':' + std::to_string(lineNumber) + ": the line is damaged";
        if (game->Number <= last) games.emplace(game->Number, *game);
    }
    return {};
}

std::string MatchFile::Open(bool force) {
    if (Path.empty()) return {};
    std::error_code error;
    if (Size > 0) std::filesystem::resize_file(Path, Size, error);
    if (error) return "cannot write " + Path + ": " + error.message();
    File = std::fopen(Path.c_str(), Size > 0 ? "a" : IsRead || force ? "w" : "wx");
    if (File == nullptr && errno == EEXIST)
        return Path + " exists; --resume goes on with its match, --force overwrites it";
    return Size > 0 && File != nullptr ? "" : Write(Head);
}

std::string MatchFile::Append(const MatchGame& game) {
    return Path.empty() ? "" : Write(LineOf(Terms, game));
}

std::string MatchFile::Write(const std::string& text) {
    const bool isWritten =
        File != nullptr && std::fputs(text.c_str(), File) >= 0 && std::fflush(File) == 0;
    return isWritten ? "" : "cannot write " + Path + ": " + std::strerror(errno);
}

}  // namespace brastel
