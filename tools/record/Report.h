#pragma once

#include "tools/record/RecordedGame.h"

/// The texts of brastel-record about a game.
namespace brastel {

/// The error in words: the text of the system for `systemError`, or if that is 0, ours for `error`.
std::string FailureInWords(FileError error, int systemError);

/// True if the path or the system caused the error, and not the content of the file.
bool IsUnreadable(const RecordedGame& game);

/// One line without a line end: "game.txt: 57 entries, Red wins", or in the form of compilers
/// "game.txt:12: error 5: a start square used twice".
std::string ResultLine(const RecordedGame& game);

/// The entries of the game in words, one on each line. The first one that breaks the rules is
/// marked, with the rule. The list ends where Forward cannot go on. Empty if the file could not be
/// read.
std::string MovesInWords(const RecordedGame& game);

/// "Red piece 3 from row 9, column 4 to row 7, column 4". Precondition: the entry was played.
std::string EntryInWords(const RecordedGame& game, int entry);

/// "After entry 37: Red to move".
std::string Caption(const RecordedGame& game, int entry);

/// The position after this number of entries as text: the caption, the last entry and the board.
/// Precondition: the game has the position.
std::string Drawing(const RecordedGame& game, int entry);

}  // namespace brastel
