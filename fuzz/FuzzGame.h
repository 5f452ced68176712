#pragma once

#include "files/FileView.h"
#include "tests/ShownGame.h"

#include <string>

/// What the fuzz targets share: the start of a game without a window, its files, and the checks
/// that hold after everything a user can do.
namespace brastel {

/// The position is sound, and the window shows it and nothing else.
void RequireSound(const ShownGame& game);

/// The windows around the game: always willing to overwrite, counting the boxes with an error.
class ShownFiles : public FileView {
public:
    int Warnings = 0;

    void OpenMainWindow() override;
    bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) override {
        return true;
    }
    void ShowWarning(const std::string& /*text*/, const std::string& /*title*/) override {
        ++Warnings;
    }
};

/// A file that lives in memory as long as this object and has a path like any other.
class MemoryFile {
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    const std::string& Path() const { return Name; }
    void Write(std::string_view bytes) const;
    std::string Read() const;

private:
    int File;
    std::string Name;
};

/// All data as after a start of the program, with these views; the standard layout waits for the
/// main window to be opened, by a load or else.
void StartProgram(ShownGame& game, ShownFiles& files);

/// Loads the file as from the menu. True if no error was shown.
bool LoadFrom(const MemoryFile& file, ShownFiles& files);

}  // namespace brastel
