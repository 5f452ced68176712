#pragma once

#include "files/FileView.h"
#include "testing/Gestures.h"
#include "testing/ShownGame.h"

#include <string>

/// The player without a window: the start of a game, its files, and the gestures done at once.
namespace brastel {

inline ShownGame Shown;

/// The windows around the game: counts the boxes with an error.
class ShownFiles : public FileView {
public:
    int Warnings = 0;
    bool Answer = true;

    void OpenMainWindow() override { OpenGame(); }
    bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) override {
        return Answer;
    }
    void ShowWarning(const std::string& /*text*/, const std::string& /*title*/) override {
        ++Warnings;
    }
};
inline ShownFiles Windows;

/// All data as after a start of the program; the layout waits for the main window to be opened, by
/// a load or else.
void StartProgram(int layout = 3);

/// The position is in order, and the window shows it and nothing else.
void RequireSound();

/// The path of a new file that lives in memory.
std::string NewMemoryFile();
void WriteFile(const std::string& path, const std::string& bytes);
std::string ReadFile(const std::string& path);

/// Saves the game. An empty file is overwritten without a copy on disk.
void SaveIn(const std::string& path);
/// Loads the file as from the menu. True if no error was shown.
bool LoadFrom(const std::string& path);

/// Opens the main window, after which each of the gestures to come is watched.
void BeginPlaying();

/// Draws gestures and does them.
void Play(int gestures);

}  // namespace brastel
