#pragma once

#include <string>
#include <vector>

/// The logic of the file dialog, without its widgets: the dialog shows Chooser and calls one of
/// these for each thing the user does. Names are the system's bytes, paths absolute.
namespace brastel {

enum class ChooserMode { Open, Save };

/// One row of the folder list: the folders from the drive down to the current one, then the folders
/// in it.
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
    /// The current folder, which is the process's working folder, too.
    std::string Folder;
    std::vector<std::string> Files;
    std::vector<FolderRow> Folders;
    std::vector<std::string> Drives;
    /// The drive of the current folder, an index of Drives.
    int Drive = 0;
};
extern ChooserState Chooser;

/// Full path of the file chosen last from the list; proposed as the name when a game is saved.
extern std::string ChosenFileName;

/// "開く" or "新規保存".
const char* ChooserTitle(ChooserMode mode);

/// As when the program starts: no folder visited, no file loaded or chosen.
void ForgetVisits();

/// Starts the dialog anew in the working folder.
void OpenChooser(ChooserMode mode);

/// Rows and drives out of range change nothing. Nor does a folder that cannot be entered, but a box
/// says why.
void ChooseDrive(int drive);
void ChooseFolder(int row);
/// A click on a file.
void ClickFile(int row);

/// If the text names an existing file that is no folder: moves the lists to its folder and leaves
/// its name in the name box. False, and nothing changed, for other texts.
bool GoToFile(const std::string& text);

/// These two return true when the dialog is to close.
/// A double-click on a file: loads or saves it.
bool ChooseFile(int row);
/// OK with this text in the name box: a pattern, a folder, an existing file, or something else.
/// Begins with GoToFile for a file.
bool ConfirmName(const std::string& text);

}  // namespace brastel
