/// Uses the file dialog with any names, folders, files and drives. It runs in a root of its own, so
/// it can only overwrite its own files.

#include "files/FileChooser.h"
#include "fuzz/FuzzTarget.h"
#include "testing/Headless.h"
#include "testing/Require.h"
#include "testing/Sandbox.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {
namespace {

namespace fs = std::filesystem;

constexpr int MostEntries = 12;
constexpr int MostCommands = 40;

/// The bytes of the input that are left; behind them come zeros without end.
std::string_view Input;

int Byte() {
    if (Input.empty()) return 0;
    const auto byte = static_cast<unsigned char>(Input.front());
    Input.remove_prefix(1);
    return byte;
}

/// A byte tells the length of the text behind it.
std::string Text() {
    const auto length = static_cast<std::size_t>(Byte());
    std::string text(Input.substr(0, length));
    Input.remove_prefix(text.size());
    return text;
}

// ---- The files on the disk. What cannot be made, as in a missing folder, is left out. ----

/// Pipes are not written to: opening one would wait for a reader.
void WriteEntry(const std::string& path, const std::string& bytes) {
    std::error_code ignored;
    const bool isFree = !fs::exists(path, ignored) || fs::is_regular_file(path, ignored);
    if (isFree) std::ofstream(path, std::ios::binary) << bytes;
}

void MakeEntry() {
    const int kind = Byte() % 6;
    const std::string path = Text();
    const std::string content = Text();
    std::error_code ignored;
    if (kind == 0) fs::create_directories(path, ignored);
    if (kind == 1) fs::create_symlink(content, path, ignored);
    if (kind == 2) mkfifo(path.c_str(), 0666);
    if (kind == 3) fs::remove(path, ignored);
    if (kind > 3) WriteEntry(path, content);
}

/// The table of mounts is a file like any other here, but no pipe.
void MakeDisk() {
    std::error_code ignored;
    fs::create_directories("/proc/self", ignored);
    WriteEntry("/proc/self/mounts", Text());
    for (int n = Byte() % (MostEntries + 1); n > 0; --n) MakeEntry();
    fs::current_path(Text(), ignored);
}

// ---- What the user does ----

void RequireSoundDialog() {
    Require(fs::path(Chooser.Folder).is_absolute(), "the folder is no full path");
    Require(!Chooser.Drives.empty() && Chooser.Drives.front() == "/", "the first drive is no root");
    Require(Chooser.Drive >= 0 && Chooser.Drive < std::ssize(Chooser.Drives), "no such drive");
    const auto isCurrent = [](const FolderRow& row) { return row.Path == Chooser.Folder; };
    Require(std::ranges::any_of(Chooser.Folders, isCurrent), "the current folder is not listed");
    Require(std::ranges::is_sorted(Chooser.Files), "the files are out of order");
    RequireSound();
}

/// Opens the dialog, or does one thing in it. True when it is to close.
bool RunCommand() {
    const int command = Byte() % 9;
    const int row = Byte() - 1;
    if (command < 2) OpenChooser(command == 0 ? ChooserMode::Open : ChooserMode::Save);
    if (command == 2) ChooseDrive(row);
    if (command == 3) ChooseFolder(row);
    if (command == 4) ClickFile(row);
    if (command == 5) return ChooseFile(row);
    if (command == 6) return ConfirmName(Chooser.NameBox);
    if (command == 7) return ConfirmName(Text());
    if (command == 8) MakeEntry();
    return false;
}

void UseDialog() {
    MakeDisk();
    OpenChooser(ChooserMode::Open);
    for (int n = 0; n < MostCommands && !Input.empty(); ++n) {
        // To the question whether to overwrite.
        Windows.Answer = n % 2 == 0;
        if (RunCommand()) OpenChooser(Chooser.Mode);
        RequireSoundDialog();
    }
}

/// A folder of the sandbox, emptied, becomes the root of all paths while the input is used.
void UseDialogInOwnRoot() {
    static const int realRoot = open("/", O_PATH | O_DIRECTORY | O_CLOEXEC);
    const fs::path before = fs::current_path();
    const fs::path root = fs::temp_directory_path() / "root";
    fs::remove_all(root);
    fs::create_directory(root);
    Require(chroot(root.c_str()) == 0 && chdir("/") == 0, "the root cannot be changed");
    UseDialog();
    Require(fchdir(realRoot) == 0 && chroot(".") == 0, "the way back is lost");
    fs::current_path(before);
}

}  // namespace
}  // namespace brastel

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brastel;
    if (!IsInSandbox()) {
        std::cerr << "Skipped: this system allows no sandbox.\n";
        // Not as a crash, for which the fuzzer takes a mere exit.
        std::_Exit(77);
    }
    StartProgram();
    Windows.OpenMainWindow();
    ForgetVisits();
    Input = {reinterpret_cast<const char*>(data), size};
    UseDialogInOwnRoot();
    return 0;
}
