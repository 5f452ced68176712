#include "files/Drives.h"
#include "files/FileChooser.h"
#include "files/FolderContent.h"
#include "tests/FilesTest.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {
namespace {

using Names = std::vector<std::string>;
using enum ChooserMode;

/// In the order of their bytes.
const Names Shown{" a *?b .brs",         "-x.brs",   "B.txt", "a.brs", "c\xff.brs",
                  std::string(255, 'n'), "to a.brs", "棋.brs"};

/// The dialog opened in a folder of odd names, or in one below it.
class Dialog : public FileDesk {
public:
    explicit Dialog(ChooserMode mode, const std::string& folder = "") {
        ForgetVisits();
        ChosenFileName = "before";
        for (const char* name : {".hide", "gone", "sub", "空 x"}) fs::create_directory(name);
        fs::create_symlink("loop", "loop");
        fs::create_symlink("a.brs", "to a.brs");
        fs::create_symlink("sub", "to sub");
        for (const std::string& name : Shown) WriteBytes(name, "0 0 4 109 0");
        for (const char* name : {".hidden", "sub/deep"}) WriteBytes(name, "0 0 4 109 0");
        fs::current_path(Folder / folder);
        OpenChooser(mode);
    }
    /// A step of the user, "drives" two of which one is gone, or "mode:111gone" for permissions of
    /// "gone". True if the dialog closes.
    bool Act(const std::string& word, const std::string& what) {
        if (word == "ok") return ConfirmName(what);
        if (word == "drives") Chooser.Drives = {*this / "no", *this / "gone"};
        if (word == "mode") chmod(what.c_str() + 3, mode_t(std::stoi(what, nullptr, 8)));
        const int row = std::atoi(what.c_str());
        if (word == "click") ClickFile(row);
        if (word == "folder") ChooseFolder(row);
        if (word == "drive") ChooseDrive(row);
        return word == "file" && ChooseFile(row);
    }
    /// Boxes, "closes", the file chosen; or folder, pattern and files where any of them changed.
    std::string Seen(bool closes = false) {
        std::string seen = Told() + (closes ? "closes " : "");
        EXPECT_TRUE(fs::current_path() == Chooser.Folder || (closes && Chooser.Mode == Open));
        if (ChosenFileName != "before") {
            seen += fs::path(ChosenFileName).lexically_relative(Folder);
            EXPECT_EQ(fs::path(ChosenFileName).parent_path(), Chooser.Folder);
        }
        if (!closes && (Chooser.Folder != Folder || Chooser.Files != Shown)) {
            seen += fs::path(Chooser.Folder).lexically_relative(Folder).string() + " ";
            seen += Chooser.Pattern +
                    (Chooser.NameBox == Chooser.Pattern ? "" : " but " + Chooser.NameBox);
            for (const std::string& file : Chooser.Files) seen += " " + file;
        }
        return seen.substr(0, seen.find_last_not_of(' ') + 1);
    }
};

/// Steps => what is seen in open mode, and behind a bar in save mode if it differs.
TEST(FileChooserTest, EveryStepIsSeen) {
    for (const auto& [row, seen] : RowsOf("/chooser.txt")) {
        SCOPED_TRACE(row);
        if (row.starts_with("mode") && geteuid() == 0) continue;  // may read all
        for (const ChooserMode mode : {Open, Save}) {
            Dialog dialog(mode);
            bool closes = false;
            std::istringstream steps(row);
            for (std::string word, what; std::getline(std::getline(steps, word, ':'), what, ',');)
                closes = dialog.Act(word, what);
            const auto bar = seen.find('|');
            EXPECT_EQ(dialog.Seen(closes),
                      mode == Open ? seen.substr(0, bar) : seen.substr(bar + 1));
        }
    }
    EXPECT_FALSE(MatchesPattern(std::string(9999, 'a'), "*a*a*a*a*a*a*a*a*a*b"));
}

TEST(FileChooserTest, FilesOfTheListAreChosen) {
    for (int row = 0; const std::string& name : Shown) {
        for (const ChooserMode mode : {Open, Save}) {
            const std::string seen =
                (mode == Open ? "close open " : "overwrite? ") + ("closes " + name);
            EXPECT_EQ(Dialog(mode).Seen(ConfirmName(name)), seen);
            EXPECT_EQ(Dialog(mode).Seen(ChooseFile(row)), seen);
        }
        ClickFile(row++);
        EXPECT_EQ(Chooser.NameBox, name);
    }
}

/// The files are damaged.
TEST(FileChooserTest, OnlyTheFirstLoadOfARunEntersTheProgramsFolder) {
    const Dialog dialog(Save);
    const fs::path here = dialog / "sub";
    for (const auto& [mode, next] :
         {std::pair(Save, here), {Open, dialog.ProgramFolder()}, {Open, here}}) {
        fs::current_path(here);
        WriteBytes("deep", "x");
        OpenChooser(mode);
        EXPECT_TRUE(ChooseFile(0));
        EXPECT_EQ(fs::current_path(), next);
    }
}

TEST(FileChooserTest, FolderRowsLeadDownFromTheDrive) {
    const Dialog dialog(Open);
    const std::vector<FolderRow> rows = Chooser.Folders;
    const int own = static_cast<int>(rows.size()) - 5;
    std::string below;
    for (int row = 0; const auto& [path, name, depth] : rows) {
        EXPECT_EQ(depth, std::min(row, own + 1));
        if (row > own) below += name + "|";
        EXPECT_EQ(row == own, path == dialog.Folder);
        EXPECT_EQ(path, row == 0 ? name : JoinPath(fs::path(path).parent_path().string(), name));
        ChooseFolder(row++);
        EXPECT_EQ(Chooser.Folder, fs::canonical(path));
        EXPECT_EQ(std::ranges::count(Chooser.Folders, ".", &FolderRow::Name), 0);
        EXPECT_FALSE(ConfirmName(dialog.Folder));
    }
    EXPECT_EQ(below, "gone|sub|to sub|空 x|");
    // Another drive has since been mounted on the folder last shown.
    Chooser.Drives.push_back(dialog.Folder);
    ChooseDrive(Chooser.Drive);
    EXPECT_EQ(Chooser.Folder, rows[0].Path);
}

/// The dialog used to show the root while the process stayed in the deleted folder. So a name from
/// the lists was not found when it was typed.
TEST(FileChooserTest, ADeletedWorkingFolderIsLeft) {
    for (const bool opensAgain : {false, true}) {
        Dialog dialog(Open, "gone");
        fs::remove(dialog / "gone");
        ConfirmName("*");
        EXPECT_EQ(Chooser.Files, Names{});
        opensAgain ? OpenChooser(Open) : ChooseDrive(Chooser.Drive);
        EXPECT_EQ(fs::read_symlink("/proc/self/cwd"), "/");
        EXPECT_EQ(Chooser.Folders.back().Path.rfind('/'), 0U);
        EXPECT_EQ(dialog.Told(), "");
        Chooser.Files = {"none"};
        EXPECT_TRUE(ChooseFile(0));
        EXPECT_EQ(ChosenFileName, "/none");
    }
}

TEST(DrivesTest, VolumesThatAUserChoosesFrom) {
    const Names drives{"/",        "/b\\189\\0x1\\-12\\04\\", "/home", "/home/x",
                       "/mnt/a 2", "/run/media/棋",           "/srv",  "/usr2\t\n\\",
                       "/web"};
    EXPECT_EQ(DrivesIn(BRASTEL_TEST_DATA "/mounts"), drives);
    EXPECT_EQ(DriveOf({"/home", "/home/x"}, "/home/x/x"), "/home/x");
    EXPECT_EQ(DriveOf({"/home", "/home/x"}, "/home"), "/home");
    EXPECT_EQ(DriveOf({"/home", "/home/x"}, "/home/xy"), "/home");
}

}  // namespace
}  // namespace brastel
