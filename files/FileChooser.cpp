#include "files/FileChooser.h"

#include "files/Drives.h"
#include "files/FileView.h"
#include "files/FolderContent.h"
#include "files/GameFile.h"

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

/// The working folder goes to the program's own folder when a file is first chosen for loading.
bool HasLoadedBefore = false;

// ---- The lists ----

void ListFolders(const std::string& drive) {
    Chooser.Folders.clear();
    Chooser.Folders.push_back({drive, drive, 0});
    const fs::path below = fs::path(Chooser.Folder).lexically_relative(drive);
    for (const fs::path& part : below) {
        if (part == ".") continue;
        const FolderRow& above = Chooser.Folders.back();
        Chooser.Folders.push_back(
            {JoinPath(above.Path, part.string()), part.string(), above.Depth + 1});
    }
    const int depth = Chooser.Folders.back().Depth + 1;
    for (const std::string& name : FoldersIn(Chooser.Folder)) {
        Chooser.Folders.push_back({JoinPath(Chooser.Folder, name), name, depth});
    }
}

void ListFiles() { Chooser.Files = FilesIn(Chooser.Folder, Chooser.Pattern); }

/// Brings all lists in step with the working folder.
void FollowWorkingFolder() {
    std::error_code error;
    fs::path folder = fs::current_path(error);
    if (error) {
        // The working folder has been removed.
        folder = RootFolder;
        fs::current_path(folder, error);
    }
    Chooser.Folder = folder.string();
    Chooser.Drives = ListDrives();
    const std::string drive = DriveOf(Chooser.Drives, Chooser.Folder);
    Chooser.Drive =
        static_cast<int>(std::ranges::find(Chooser.Drives, drive) - Chooser.Drives.begin());
    FolderOnDrive[drive] = Chooser.Folder;
    ListFolders(drive);
    ListFiles();
}

/// False, and nothing changed, if the folder cannot be entered.
bool EnterFolder(const fs::path& folder) {
    std::error_code error;
    fs::current_path(folder, error);
    if (error) return false;
    FollowWorkingFolder();
    return true;
}

template <typename Row>
const Row* RowAt(const std::vector<Row>& rows, int row) {
    const bool exists = row >= 0 && row < static_cast<int>(rows.size());
    return exists ? &rows[static_cast<std::size_t>(row)] : nullptr;
}

// ---- A file is chosen ----

void EnterProgramFolder() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (!error) fs::current_path(program.parent_path(), error);
}

bool ChoosePath(const std::string& path) {
    ChosenFileName = path;
    if (Chooser.Mode == ChooserMode::Save) {
        SaveGameFile(path);
        return true;
    }
    if (!HasLoadedBefore) EnterProgramFolder();
    HasLoadedBefore = true;
    LoadGameFile(path);
    return true;
}

// ---- The four outcomes of OK ----

/// A pattern, with a folder before it or not.
bool TakePattern(const std::string& text) {
    const fs::path path(text);
    if (!IsPattern(path.filename().string())) return false;
    if (path.has_parent_path() && !EnterFolder(path.parent_path())) return false;
    Chooser.Pattern = path.filename().string();
    Chooser.NameBox = Chooser.Pattern;
    ListFiles();
    return true;
}

bool TakeFolder(const std::string& text) {
    if (!EnterFolder(text)) return false;
    Chooser.NameBox = Chooser.Pattern;
    return true;
}

/// The full path of an existing file that is no folder, or an empty one.
std::string ExistingFile(const std::string& text) {
    std::error_code error;
    const fs::file_status status = fs::status(text, error);
    if (error || !fs::exists(status) || fs::is_directory(status)) return {};
    const fs::path path(text);
    if (!path.has_parent_path()) return JoinPath(Chooser.Folder, text);
    fs::path folder = fs::canonical(path.parent_path(), error);
    if (error) folder = fs::absolute(path.parent_path(), error);
    return JoinPath(folder.string(), path.filename().string());
}

bool TakeUnknownName(const std::string& text) {
    std::error_code error;
    const fs::file_status status = fs::status(text, error);
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
    Chooser = {};
    Chooser.Mode = mode;
    Chooser.Pattern = AllFiles;
    Chooser.NameBox = mode == ChooserMode::Open ? std::string(AllFiles) : ChosenFileName;
    FollowWorkingFolder();
}

void ChooseDrive(int drive) {
    const std::string* row = RowAt(Chooser.Drives, drive);
    if (row == nullptr) return;
    const std::string chosen = *row;
    const auto last = FolderOnDrive.find(chosen);
    // Since then another drive may have been mounted there.
    const bool isKnown =
        last != FolderOnDrive.end() && DriveOf(Chooser.Drives, last->second) == chosen;
    if (!isKnown || !EnterFolder(last->second)) EnterFolder(chosen);
}

void ChooseFolder(int row) {
    const FolderRow* chosen = RowAt(Chooser.Folders, row);
    if (chosen != nullptr) EnterFolder(fs::path(chosen->Path));
}

void ClickFile(int row) {
    const std::string* chosen = RowAt(Chooser.Files, row);
    if (chosen != nullptr) Chooser.NameBox = *chosen;
}

bool ChooseFile(int row) {
    const std::string* chosen = RowAt(Chooser.Files, row);
    return chosen != nullptr && ChoosePath(JoinPath(Chooser.Folder, *chosen));
}

bool ConfirmName(const std::string& text) {
    if (text.empty() || TakeFolder(text)) return false;
    // A file whose own name holds a wildcard can be chosen like any other.
    const std::string file = ExistingFile(text);
    if (!file.empty()) return ChoosePath(file);
    return !TakePattern(text) && TakeUnknownName(text);
}

}  // namespace brastel
