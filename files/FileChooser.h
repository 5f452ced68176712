#pragma once

#include <string>
#include <vector>

/// The logic of the file dialog, without its widgets. The dialog shows the data in Chooser and
/// calls one of these operations for each input of the user. Names are the bytes of the system.
/// Paths are absolute.
namespace brastel {

enum class ChooserMode { Open, Save };

/// One row of the folder list. The list has the folders from the drive down to the current folder,
/// then the folders in it.
struct FolderRow {
    std::string Path;
    std::string Name;
    /// Levels below the drive.
    int Depth;
};

/// What the dialog shows.
struct ChooserState {
    ChooserMode Mode = ChooserMode::Open;
    std::string NameBox;
    std::string Pattern;
    /// The current folder, which is also the working folder of the process.
    std::string Folder;
    std::vector<std::string> Files;
    std::vector<FolderRow> Folders;
    std::vector<std::string> Drives;
    /// The drive of the current folder, an index of Drives.
    int Drive = 0;
};
extern ChooserState Chooser;

/// Full path of the file that was last chosen from the list. It is the default name for saving.
extern std::string ChosenFileName;

/// "開く" or "新規保存".
const char* ChooserTitle(ChooserMode mode);

/// Restores the state at the start of the program: no folder visited, no file loaded or chosen.
void ForgetVisits();

/// Sets the data for a new dialog in the working folder.
void OpenChooser(ChooserMode mode);

/// Nothing changes if the row or drive does not exist. If a folder cannot be entered, nothing
/// changes and a box shows the cause.
void ChooseDrive(int drive);
void ChooseFolder(int row);
/// A click on a file.
void ClickFile(int row);

/// If the text is the path of an existing file, not a folder: makes its folder the current folder,
/// puts its name in the name box and returns true. Otherwise nothing changes.
bool GoToFile(const std::string& text);

// These two return true if the dialog must close.
/// A double-click on a file: loads or saves it.
bool ChooseFile(int row);
/// OK with this text in the name box: a folder, an existing file, a pattern or a new name. For a
/// file it calls GoToFile first.
bool ConfirmName(const std::string& text);

}  // namespace brastel
