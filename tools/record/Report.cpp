#include "tools/record/Report.h"

#include "core/WinTest.h"
#include "play/Words.h"
#include "tools/Printable.h"
#include "tools/record/TextBoard.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace brastel {

namespace {

constexpr int NumberWidth = 4;
constexpr std::string_view DrawnInWords = "drawn: the record is full";

const Position& PositionAfter(const RecordedGame& game, int entry) {
    return game.Positions[static_cast<std::size_t>(entry)];
}

bool IsDrawn(const RecordedGame& game) {
    return game.Winner == Empty && game.Entries.size() == MaxEntries;
}

std::string Outcome(const RecordedGame& game) {
    if (IsDrawn(game)) return std::string(DrawnInWords);
    if (game.Winner == Empty) {
        return SideInWords(game.Positions.back().SideToMove) + " to move";
    }
    const std::string winner = SideInWords(game.Winner);
    const bool isLast = game.WinningEntry == static_cast<int>(game.Entries.size());
    return isLast ? winner + " wins"
                  : winner + " wins with entry " + std::to_string(game.WinningEntry);
}

/// The two numbers of the entry as in the file.
std::string AsWritten(const Action& entry) {
    return std::to_string(entry.Origin) + ' ' + std::to_string(entry.Destination);
}

std::string NumberOf(int entry) {
    const std::string number = std::to_string(entry);
    return std::string(NumberWidth - std::min<std::size_t>(number.size(), NumberWidth), ' ') +
           number + ". ";
}

/// Puts the side before the words, unless they begin with it.
std::string WithSide(int side, const std::string& words) {
    const std::string name = SideInWords(side);
    return words.starts_with(name) ? words : name + ": " + words;
}

std::string FileEntryInWords(const RecordedGame& game, int entry) {
    const Action& broken = game.Entries[static_cast<std::size_t>(entry) - 1];
    const std::string side = SideInWords(PositionAfter(game, entry - 1).SideToMove);
    if (entry <= RingCount) {
        return side + (IsOnBoard(broken.Origin)
                           ? " places the ring on " + SquareInWords(broken.Origin)
                           : " gives the ring to no piece");
    }
    if (broken == NullMove) return side + " passes";
    return side + " from " + SquareInWords(broken.Origin) + " to " +
           SquareInWords(broken.Destination);
}

std::string BrokenEntryLine(const RecordedGame& game) {
    const int entry = game.BrokenEntry;
    std::string line = NumberOf(entry) + FileEntryInWords(game, entry) + '\n';
    line += std::string(NumberWidth + 2, ' ') + "*** breaks the rules: " + std::string(game.Cause);
    return line + '\n';
}

}  // namespace

std::string EntryInWords(const RecordedGame& game, int entry) {
    const Position& before = PositionAfter(game, entry - 1);
    return WithSide(before.SideToMove, ChangesInWords(before, PositionAfter(game, entry)));
}

std::string FailureInWords(FileError error, int systemError) {
    return systemError != 0 ? std::strerror(systemError) : std::string(FileErrorInWords(error));
}

bool IsUnreadable(const RecordedGame& game) {
    constexpr std::array causes{FileError::FileNotFound, FileError::PathNotAccessible,
                                FileError::NotAFile, FileError::SystemFailure};
    return std::ranges::find(causes, game.Error) != causes.end();
}

std::string ResultLine(const RecordedGame& game) {
    const std::string path = Printable(game.Path);
    if (IsUnreadable(game)) return path + ": " + FailureInWords(game.Error, game.SystemError);
    const std::string cause(game.Cause);
    const std::string place = path + ':' + std::to_string(game.Line) + ": ";
    if (game.Error != FileError::None) {
        return place + "error " + std::to_string(static_cast<int>(game.Error)) + ": " + cause;
    }
    if (game.BrokenEntry != 0) {
        const auto& entry = game.Entries[static_cast<std::size_t>(game.BrokenEntry) - 1];
        return place + "entry " + std::to_string(game.BrokenEntry) + " (" + AsWritten(entry) +
               ") breaks the rules: " + cause;
    }
    const std::size_t entries = game.Entries.size();
    const std::string_view noun = entries == 1 ? " entry, " : " entries, ";
    return path + ": " + std::to_string(entries) + std::string(noun) + Outcome(game);
}

std::string MovesInWords(const RecordedGame& game) {
    if (game.Error != FileError::None) return {};
    std::string text;
    for (int entry = 1; entry <= game.PlayedEntries(); ++entry) {
        text += entry == game.BrokenEntry ? BrokenEntryLine(game)
                                          : NumberOf(entry) + EntryInWords(game, entry) + '\n';
        if (entry != game.WinningEntry) continue;
        text += std::string(NumberWidth + 2, ' ') + SideInWords(game.Winner) + " wins\n";
    }
    if (game.BrokenEntry > game.PlayedEntries()) text += BrokenEntryLine(game);
    if (game.PlayedEntries() < static_cast<int>(game.Entries.size())) {
        text += std::string(NumberWidth + 2, ' ') + "the game cannot be played on from here\n";
    }
    return text;
}

std::string Caption(const RecordedGame& game, int entry) {
    Pos = PositionAfter(game, entry);
    const Int16 winner = BothRingsPlaced() && entry > RingCount ? FindWinner() : Empty;
    const bool isDrawn = IsDrawn(game) && entry == MaxEntries;
    const std::string state = winner != Empty     ? SideInWords(winner) + " wins"
                              : isDrawn           ? std::string(DrawnInWords)
                              : entry < RingCount ? SideInWords(Pos.SideToMove) + " places its ring"
                                                  : SideInWords(Pos.SideToMove) + " to move";
    return (entry == 0 ? "At the start: " : "After entry " + std::to_string(entry) + ": ") + state;
}

std::string Drawing(const RecordedGame& game, int entry) {
    std::string text = Caption(game, entry) + '\n';
    if (entry > 0) text += EntryInWords(game, entry) + '\n';
    return text + '\n' + BoardAsText(PositionAfter(game, entry));
}

}  // namespace brastel
