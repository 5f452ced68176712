#pragma once

#include "files/FileView.h"
#include "testing/Gestures.h"
#include "testing/ShownGame.h"

#include <string>

/// The player without a window: the start of a game, its files, and the gestures done at once.
namespace brastel {

inline ShownGame Shown;

/// Stands for the windows around the game. Counts the boxes that show an error.
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

/// Sets all data as after a start of the program. The layout is used when the main window opens,
/// which a load can do, too.
void StartProgram(int layout = 3);

/// Checks that the position is consistent and that the window shows it.
void RequireSound();

/// The path of a new file that lives in memory.
std::string NewMemoryFile();
void WriteFile(const std::string& path, const std::string& bytes);
std::string ReadFile(const std::string& path);

/// Saves the game. An empty file is overwritten without a copy on disk.
void SaveIn(const std::string& path);
/// Loads the file as from the menu. True if no error was shown.
bool LoadFrom(const std::string& path);

/// Opens the main window. From then on, every gesture is checked.
void BeginPlaying();

/// Draws so many gestures and makes them.
void Play(int gestures);

}  // namespace brastel
