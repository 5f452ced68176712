#include "files/FileChooser.h"

#include "files/Drives.h"
#include "files/FileView.h"
#include "files/FolderContent.h"
#include "files/GameFile.h"
#include "files/PathText.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace brastel {

ChooserState Chooser;
std::string ChosenFileName;

namespace {

namespace fs = std::filesystem;

constexpr const char* RootFolder = "/";
const std::string ProgramTitle = "Brastel";
const std::string MissingFileText = "ファイルが存在しません。";

/// The folder last shown on each drive.
std::map<std::string, std::string> FolderOnDrive;

/// When the first file is loaded, the working folder changes to the folder of the program.
bool HasLoadedBefore = false;

// ---- The lists ----

void ListFolders(const std::string& drive) {
    Chooser.Folders.clear();
    Chooser.Folders.push_back({drive, drive, 0});
    const fs::path below = PathOf(Chooser.Folder).lexically_relative(PathOf(drive));
    for (const fs::path& part : below) {
        if (part == ".") continue;
        const FolderRow& above = Chooser.Folders.back();
        Chooser.Folders.push_back(
            {JoinPath(above.Path, TextOf(part)), TextOf(part), above.Depth + 1});
    }
    const int depth = Chooser.Folders.back().Depth + 1;
    for (const std::string& name : FoldersIn(Chooser.Folder)) {
        Chooser.Folders.push_back({JoinPath(Chooser.Folder, name), name, depth});
    }
}

void ListFiles() { Chooser.Files = FilesIn(Chooser.Folder, Chooser.Pattern); }

/// Fills all lists for the working folder.
void ListWorkingFolder() {
    std::error_code error;
    fs::path folder = fs::current_path(error);
    if (error) {
        // The working folder has been removed.
        folder = RootFolder;
        fs::current_path(folder, error);
    }
    Chooser.Folder = TextOf(folder);
    Chooser.Drives = ListDrives();
    const std::string drive = DriveOf(Chooser.Drives, Chooser.Folder);
    Chooser.Drive =
        static_cast<int>(std::ranges::find(Chooser.Drives, drive) - Chooser.Drives.begin());
    FolderOnDrive[drive] = Chooser.Folder;
    ListFolders(drive);
    ListFiles();
}

/// Returns true if the folder was entered; otherwise nothing changes. A folder that cannot be read
/// is shown as empty. In both cases a box shows the error text of the system.
bool EnterFolder(const fs::path& folder) {
    std::error_code error;
    fs::current_path(folder, error);
    const bool isEntered = !error;
    if (isEntered) {
        ListWorkingFolder();
        const fs::directory_iterator content(PathOf(Chooser.Folder), error);
    }
    if (error) FileWindows->ShowWarning(error.message(), ProgramTitle);
    return isEntered;
}

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

template <typename Row>
const Row* RowAt(const std::vector<Row>& rows, int row) {
    const bool exists = row >= 0 && row < static_cast<int>(rows.size());
    return exists ? &rows[static_cast<std::size_t>(row)] : nullptr;
}

// ---- A file is chosen ----

bool ChoosePath(const std::string& path) {
    std::error_code ignored;
    ChosenFileName = path;
    if (Chooser.Mode == ChooserMode::Save) {
        SaveGameFile(path);
        return true;
    }
    if (!HasLoadedBefore) fs::current_path(PathOf(FileWindows->ProgramFolder()), ignored);
    HasLoadedBefore = true;
    LoadGameFile(path);
    return true;
}

// ---- The kinds of text for OK. Each returns false if the text is of another kind. ----

bool TakeFolder(const std::string& text) {
    const fs::path path = PathOf(text);
    if (!IsFolder(path)) return false;
    if (EnterFolder(path)) Chooser.NameBox = Chooser.Pattern;
    return true;
}

/// The pattern can have a folder before it.
bool TakePattern(const std::string& text) {
    const fs::path path = PathOf(text);
    if (!IsPattern(TextOf(path.filename()))) return false;
    if (path.has_parent_path()) {
        if (!IsFolder(path.parent_path())) return false;
        if (!EnterFolder(path.parent_path())) return true;
    }
    Chooser.Pattern = TextOf(path.filename());
    Chooser.NameBox = Chooser.Pattern;
    ListFiles();
    return true;
}

bool TakeUnknownName(const std::string& text) {
    std::error_code error;
    const fs::file_status status = fs::status(PathOf(text), error);
    if (status.type() == fs::file_type::none) {
        FileWindows->ShowWarning(error.message(), ProgramTitle);
        return false;
    }
    if (fs::exists(status)) return false;
    if (Chooser.Mode == ChooserMode::Save) {
        SaveGameFile(text);
        return true;
    }
    FileWindows->ShowWarning(MissingFileText, ProgramTitle);
    return false;
}

}  // namespace

const char* ChooserTitle(ChooserMode mode) {
    return mode == ChooserMode::Open ? "開く" : "新規保存";
}

void ForgetVisits() {
    FolderOnDrive.clear();
    HasLoadedBefore = false;
    ChosenFileName.clear();
}

void OpenChooser(ChooserMode mode) {
    Chooser.Mode = mode;
    Chooser.Pattern = AllFiles;
    Chooser.NameBox = mode == ChooserMode::Open ? std::string(AllFiles) : ChosenFileName;
    ListWorkingFolder();
}

void ChooseDrive(int drive) {
    const std::string* row = RowAt(Chooser.Drives, drive);
    if (row == nullptr) return;
    const std::string chosen = *row;
    const auto last = FolderOnDrive.find(chosen);
    // The folder may have been removed since then, or another drive may be mounted there.
    const bool isKnown = last != FolderOnDrive.end() && IsFolder(PathOf(last->second)) &&
                         DriveOf(Chooser.Drives, last->second) == chosen;
    if (!isKnown || !EnterFolder(PathOf(last->second))) EnterFolder(PathOf(chosen));
}

void ChooseFolder(int row) {
    const FolderRow* chosen = RowAt(Chooser.Folders, row);
    if (chosen != nullptr) EnterFolder(PathOf(chosen->Path));
}

void ClickFile(int row) {
    const std::string* chosen = RowAt(Chooser.Files, row);
    if (chosen != nullptr) Chooser.NameBox = *chosen;
}

bool ChooseFile(int row) {
    const std::string* chosen = RowAt(Chooser.Files, row);
    return chosen != nullptr && ChoosePath(JoinPath(Chooser.Folder, *chosen));
}

bool GoToFile(const std::string& text) {
    std::error_code error;
    const fs::path path = PathOf(text);
    if (!fs::exists(path, error) || fs::is_directory(path, error)) return false;
    if (path.has_parent_path() && !EnterFolder(path.parent_path())) return false;
    Chooser.NameBox = TextOf(path.filename());
    return true;
}

bool ConfirmName(const std::string& text) {
    if (TakeFolder(text)) return false;
    // Before the pattern, so that a file with * or ? in its name can be chosen.
    if (GoToFile(text)) return ChoosePath(JoinPath(Chooser.Folder, Chooser.NameBox));
    return !TakePattern(text) && TakeUnknownName(text);
}

}  // namespace brastel
