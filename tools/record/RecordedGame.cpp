#include "tools/record/RecordedGame.h"

#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "files/NumberFile.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "tools/record/RuleCheck.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace brastel {

namespace {

// ---- Streams ----

constexpr std::string_view StandardInput = "-";

/// ReadGameFile reads only ordinary files. So the stream is copied to a file in memory, with at
/// most one part more than MaxFileSize. A signal ends the copy with an error.
GameReading ReadStream(const std::string& path) {
    const OpenFile stream(path == StandardInput
                              ? dup(STDIN_FILENO)
                              : open(path.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC));
    const OpenFile copy(memfd_create("record", MFD_CLOEXEC));
    std::array<char, 4096> part{};
    std::size_t length = 0;
    ssize_t count = stream.IsOpen() && copy.IsOpen() ? 1 : -1;
    while (count > 0 && length <= MaxFileSize) {
        count = read(stream.Descriptor(), part.data(), part.size());
        if (count > 0)
            count = write(copy.Descriptor(), part.data(), static_cast<std::size_t>(count));
        length += static_cast<std::size_t>(count);
    }
    if (count < 0) return {FileErrorFromSystem(errno), "", 0, errno, {}};
    return ReadGameFile("/proc/self/fd/" + std::to_string(copy.Descriptor()));
}

GameReading ReadRecord(const std::string& path) {
    if (path == StandardInput) return ReadStream(path);
    const GameReading reading = ReadGameFile(path);
    return reading.Error == FileError::NotAFile ? ReadStream(path) : reading;
}

// ---- Histories ----

/// The positions after 0, 1, 2 ... entries, as they may have been in the game.
using History = std::vector<Position>;

/// Which pieces outside come back after an entry.
enum class Returns {
    /// All pieces that can, as after moves in the game.
    All,
    /// Only pieces near the action, as after ring placements by people and after StepBack.
    NearAction,
};

History Extended(const History& history, const Action& entry, Returns returns) {
    History longer = history;
    Pos = history.back();
    if (returns == Returns::All) {
        ApplyMoveShown(entry);
        CountEntry();
    } else {
        ReplayEntry(entry);
    }
    longer.push_back(Pos);
    return longer;
}

/// Adds the history, unless another one ends with the same position.
void AddNew(std::vector<History>& histories, History history) {
    const bool isKnown = std::ranges::any_of(
        histories, [&](const History& other) { return other.back() == history.back(); });
    if (!isKnown) histories.push_back(std::move(history));
}

/// Plays entries and checks the rules. A piece that was set up outside may be able to come back at
/// once. The record does not say when it came back: this depends on who placed the rings and on
/// steps back. So this class keeps all histories in which every entry is legal. Nearly always there
/// is one. The first is the result; it is the history that Forward plays, if that one is legal.
class LegalHistories {
public:
    explicit LegalHistories(const Position& start) : Histories{{start}}, Replayed{start} {}

    /// Plays the entry and returns an empty text, or returns the rule that it breaks in all
    /// histories.
    std::string_view Play(const Action& entry) {
        std::vector<History> next;
        std::string_view cause;
        for (const History& history : Histories) {
            Pos = history.back();
            const bool isPlacement = !BothRingsPlaced();
            const std::string_view broken = BrokenRule(entry);
            if (cause.empty()) cause = broken;
            if (!broken.empty()) continue;
            AddNew(next, Extended(history, entry, Returns::All));
            if (isPlacement) AddNew(next, Extended(history, entry, Returns::NearAction));
        }
        if (next.empty()) return cause;
        Replayed = Extended(Replayed, entry, Returns::NearAction);
        AddNew(next, Replayed);
        Histories = std::move(next);
        return {};
    }

    const History& First() const { return Histories.front(); }

private:
    std::vector<History> Histories;
    /// The history of a game in which StepBack was used just now.
    History Replayed;
};

void PlayLegalEntries(RecordedGame& game) {
    LegalHistories histories(Pos);
    for (int k = 1; k <= std::ssize(game.Entries) && game.Cause.empty(); ++k) {
        game.Cause = histories.Play(game.Entries[static_cast<std::size_t>(k - 1)]);
        if (game.Cause.empty()) continue;
        game.BrokenEntry = k;
        game.Line = game.EntryLine[k];
    }
    game.Positions = histories.First();
}

/// Plays the other entries like Forward, which plays every entry that fits, also against the rules.
void PlayOn(RecordedGame& game) {
    while (game.Positions.size() <= game.Entries.size()) {
        const Action& entry = game.Entries[game.Positions.size() - 1];
        Pos = game.Positions.back();
        if (!ActionFits(entry)) return;
        ApplyMoveShown(entry);
        CountEntry();
        game.Positions.push_back(Pos);
    }
}

/// Entries 1 and 2 are ring placements and cannot win.
void FindWin(RecordedGame& game) {
    for (int k = 3; k <= game.PlayedEntries() && game.Winner == Empty; ++k) {
        Pos = game.Positions[static_cast<std::size_t>(k)];
        game.Winner = FindWinner();
        game.WinningEntry = k;
    }
    if (game.Winner == Empty) game.WinningEntry = 0;
}

}  // namespace

RecordedGame ReadRecordedGame(const std::string& path) {
    RecordedGame game;
    static_cast<GameReading&>(game) = ReadRecord(path);
    game.Path = path == StandardInput ? "standard input" : path;
    if (game.Error != FileError::None) return game;
    for (int k = 1; k <= LoadedCount; ++k) game.Entries.push_back(LoadedEntry(k));
    SetUpStartPosition();
    PlayLegalEntries(game);
    PlayOn(game);
    FindWin(game);
    return game;
}

}  // namespace brastel
