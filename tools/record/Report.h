#pragma once

#include "tools/record/RecordedGame.h"

/// What the program says about a game.
namespace brastel {

/// What went wrong, as the system tells it if it has a number (errno) for it.
std::string FailureInWords(FileError error, int systemError);

/// True if the file could not be read for a reason outside it: its path, or the system.
bool IsUnreadable(const RecordedGame& game);

/// One line without its end: "game.txt: 57 entries, Red wins", or in the manner of compilers
/// "game.txt:12: error 5: a start square used twice".
std::string Verdict(const RecordedGame& game);

/// The game's entries in words, one a line. The first that breaks the rules is marked, with the
/// rule; where the game cannot be stepped on, the list ends. Empty for a file that could not be
/// read.
std::string MovesInWords(const RecordedGame& game);

/// "After entry 37: Red to move".
std::string Caption(const RecordedGame& game, int entry);

/// The position after so many entries as text: what the last of them was, the board and the
/// caption. Precondition: the game has the position.
std::string Drawing(const RecordedGame& game, int entry);

}  // namespace brastel
