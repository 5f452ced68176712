/// Goes through the file dialog with any names typed, in any folders, files and drives. All of it
/// happens in a root of its own, so that the worst that it can overwrite are its own files.

#include "files/FileChooser.h"
#include "files/GameFile.h"
#include "fuzz/FuzzGame.h"
#include "fuzz/FuzzTarget.h"
#include "play/GameRecord.h"
#include "tools/sandbox/Sandbox.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {
namespace {

namespace fs = std::filesystem;

constexpr int MostEntries = 12;
constexpr int MostCommands = 40;

ShownGame Game;

/// The answer to the question whether to overwrite comes from the input, too.
class AskedFiles : public ShownFiles {
public:
    bool Answer = false;
    bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) override {
        return Answer;
    }
};
AskedFiles Files;

// ---- What lies on the disk. What cannot be made, such as a file in a missing folder, is not. ----

void WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

void MakeEntry(FuzzInput& input) {
    const int kind = input.Between(0, 5);
    const std::string path = input.Text();
    const std::string content = input.Text();
    std::error_code ignored;
    switch (kind) {
        case 0:
            fs::create_directories(path, ignored);
            break;
        case 1:
            fs::create_symlink(content, path, ignored);
            break;
        case 2:
            mkfifo(path.c_str(), 0666);
            break;
        case 3:
            fs::remove(path, ignored);
            break;
        default:
            WriteFile(path, content);
    }
}

/// The table of mounts and the program's own place are files like any other here.
void MakeDisk(FuzzInput& input) {
    std::error_code ignored;
    fs::create_directories("/proc/self", ignored);
    WriteFile("/proc/self/mountinfo", input.Text());
    fs::create_symlink(input.Text(), "/proc/self/exe", ignored);
    for (int n = input.Between(0, MostEntries); n > 0; --n) MakeEntry(input);
    fs::current_path(input.Text(), ignored);
}

// ---- What the user does ----

void RequireSoundDialog() {
    Require(fs::path(Chooser.Folder).is_absolute(), "the folder is no full path");
    Require(!Chooser.Drives.empty() && Chooser.Drives.front() == "/", "the first drive is no root");
    Require(Chooser.Drive >= 0 && Chooser.Drive < std::ssize(Chooser.Drives), "no such drive");
    const auto isCurrent = [](const FolderRow& row) { return row.Path == Chooser.Folder; };
    Require(std::ranges::any_of(Chooser.Folders, isCurrent), "the current folder is not listed");
    Require(std::ranges::is_sorted(Chooser.Files), "the files are out of order");
    RequireSound(Game);
}

/// Opens the dialog, or does one thing in it.
void RunCommand(FuzzInput& input) {
    enum { Open, Save, Drive, Folder, Click, Choose, Confirm, Type, Disk, Count };
    const int command = input.Between(0, Count - 1);
    const int row = input.Byte() - 1;
    bool closes = false;
    switch (command) {
        case Open:
            OpenChooser(ChooserMode::Open);
            break;
        case Save:
            OpenChooser(ChooserMode::Save);
            break;
        case Drive:
            ChooseDrive(row);
            break;
        case Folder:
            ChooseFolder(row);
            break;
        case Click:
            ClickFile(row);
            break;
        case Choose:
            closes = ChooseFile(row);
            break;
        case Confirm:
            closes = ConfirmName(Chooser.NameBox);
            break;
        case Disk:
            MakeEntry(input);
            break;
        default:
            closes = ConfirmName(input.Text());
    }
    if (closes) OpenChooser(Chooser.Mode);
}

void UseDialog(FuzzInput& input) {
    MakeDisk(input);
    OpenChooser(ChooserMode::Open);
    for (int n = 0; n < MostCommands && !input.IsOver(); ++n) {
        Files.Answer = n % 2 == 0;
        RunCommand(input);
        RequireSoundDialog();
    }
}

/// A folder of the sandbox, emptied, becomes the root of all paths while the input is used.
void UseDialogInOwnRoot(FuzzInput& input) {
    static const int realRoot = open("/", O_PATH | O_DIRECTORY | O_CLOEXEC);
    const fs::path before = fs::current_path();
    const fs::path root = fs::temp_directory_path() / "root";
    fs::remove_all(root);
    fs::create_directory(root);
    Require(chroot(root.c_str()) == 0 && chdir("/") == 0, "the root cannot be changed");
    UseDialog(input);
    Require(fchdir(realRoot) == 0 && chroot(".") == 0, "the way back is lost");
    fs::current_path(before);
}

[[noreturn]] void Skip() {
    constexpr int Skipped = 77;
    std::puts("Skipped: this system allows no sandbox.");
    // Not as a crash, for which the fuzzer takes an exit.
    std::fflush(stdout);
    std::_Exit(Skipped);
}

}  // namespace
}  // namespace brastel

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brastel;
    static const bool isInSandbox = EnterSandbox();
    if (!isInSandbox) Skip();
    StartProgram(Game, Files);
    Files.OpenMainWindow();
    ForgetVisits();
    FuzzInput input(data, size);
    UseDialogInOwnRoot(input);
    return 0;
}
