#pragma once

#include "core/Position.h"
#include "files/FileView.h"
#include "play/GameView.h"

#include <string>

/// A game without a window for the fuzz targets, and the checks that hold after everything a user
/// can do.
namespace brastel {

/// Keeps what a window would show. Its clock leaps, so that no pause takes time.
class ShownGame : public GameView {
public:
    Position Shown;
    std::string Message;
    Int16 Turn = Empty;
    bool Forward = false;
    bool Backward = false;
    bool Closing = false;
    int BusyDepth = 0;
    double Time = 0;

    void PlacePieces() override { Shown = Pos; }
    void ShowMessage(std::string_view text) override { Message = text; }
    void ShowTurn(Int16 side) override { Turn = side; }
    void ShowForward(bool visible) override { Forward = visible; }
    void ShowBackward(bool visible) override { Backward = visible; }
    void ShowBusy(bool busy) override { BusyDepth += busy ? 1 : -1; }
    void HandleEvents() override { Time += 1; }
    bool IsClosing() const override { return Closing; }
    double Now() const override { return Time; }

    /// The position is sound, and the window shows it and nothing else.
    void RequireSound() const;
};

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
