#include "files/Drives.h"
#include "files/FileChooser.h"
#include "files/FolderContent.h"
#include "tests/FilesTest.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <unistd.h>

namespace brastel {
namespace {

using Names = std::vector<std::string>;
using enum ChooserMode;

/// In the order of their bytes.
const Names Shown{" a b .brs",           "-x.brs", "B.txt", "a.brs", "c\xff.brs", "link.brs",
                  std::string(255, 'n'), "棋.brs"};

/// The dialog opened in a folder of odd names, or in one below it.
class Dialog : public FileDesk {
public:
    explicit Dialog(ChooserMode mode, const std::string& folder = "") {
        ForgetVisits();
        ChosenFileName = "before";
        for (const char* name : {".hide", "gone", "sub", "空 x"}) fs::create_directory(name);
        fs::create_symlink("loop", "loop");
        fs::create_symlink("a.brs", "link.brs");
        fs::create_symlink("sub", "sub link");
        for (const std::string& name : Shown) WriteBytes(name, "0 0 4 109 0");
        for (const char* name : {".hidden", "sub/deep"}) WriteBytes(name, "0 0 4 109 0");
        fs::current_path(Folder / folder);
        OpenChooser(mode);
    }
    /// Boxes, "closes", the file chosen; or folder, pattern and files where any of them changed.
    std::string Seen(bool closes = false) {
        std::string seen = Told() + (closes ? "closes " : "");
        if (ChosenFileName != "before") {
            seen += fs::path(ChosenFileName).lexically_relative(Folder);
            EXPECT_EQ(fs::path(ChosenFileName).parent_path(), Chooser.Folder);
        }
        // The first load ends in the program's folder, which a sandbox makes read-only.
        const bool isFirstLoad = closes && Chooser.Mode == Open;
        const fs::path program = fs::read_symlink("/proc/self/exe").parent_path();
        const fs::path next =
            access(program.c_str(), W_OK) == 0 ? program : fs::path(DocumentsFolder());
        EXPECT_EQ(fs::current_path(), isFirstLoad ? next : fs::path(Chooser.Folder));
        if (closes || (Chooser.Folder == Folder && Chooser.Files == Shown)) return seen;
        EXPECT_EQ(Chooser.NameBox, Chooser.Pattern);
        seen +=
            fs::path(Chooser.Folder).lexically_relative(Folder).string() + " " + Chooser.Pattern;
        for (const std::string& file : Chooser.Files) seen += " " + file;
        return seen;
    }
};

/// Text => what is seen in open mode, and after a bar in save mode if it differs.
TEST(FileChooserTest, OkTakesPatternsFoldersAndFiles) {
    std::istringstream rows(
        "?.txt;-*;*. => . ?.txt;-*;*. -x.brs B.txt#*棋?brs => . *棋?brs 棋.brs#?brs => . ?brs#"
        "?.brs => . ?.brs a.brs 棋.brs#.* => . .* .hidden#sub/* => sub * deep#"
        "sub link/../gone/? => gone ?#sub => sub *.* deep#sub link/ => sub *.* deep#"
        ".hide => .hide *.*#空 x/../gone => gone *.*# => missing |1 closes #. => #"
        "sub/deep => close open closes sub/deep|overwrite? closes sub/deep#"
        "sub/../a.brs => close open closes a.brs|overwrite? closes a.brs#"
        "./.hidden => close open closes .hidden|overwrite? closes .hidden#"
        "新 => missing |closes #-new => missing |closes #sub/a b => missing |closes #"
        "no/* => missing |2 closes #no/new => missing |2 closes #a.brs/new => missing |2 closes #" +
        std::string(256, 'n') + " => Brastel: " + std::strerror(ENAMETOOLONG) +
        " #loop => Brastel: " + std::strerror(ELOOP) + " ");
    for (std::string row; std::getline(rows, row, '#');) {
        SCOPED_TRACE(row);
        const std::string text = row.substr(0, row.find(" => "));
        const std::string seen = row.substr(text.size() + 4);
        EXPECT_EQ(Dialog(Open).Seen(ConfirmName(text)), seen.substr(0, seen.find('|')));
        Dialog dialog(Save);
        EXPECT_EQ(dialog.Seen(ConfirmName(text)), seen.substr(seen.find('|') + 1));
        EXPECT_TRUE(!seen.ends_with("|closes ") || !BytesOf(text).empty());
    }
    EXPECT_FALSE(MatchesPattern(std::string(9999, 'a'), "*a*a*a*a*a*a*a*a*a*b"));
}

TEST(FileChooserTest, FilesOfTheListAreChosen) {
    for (int row = 0; const std::string& name : Shown) {
        Dialog clicked(Open);
        EXPECT_EQ(std::exchange(Chooser.NameBox, ""), "*.*");
        ClickFile(row);
        EXPECT_EQ(clicked.Seen() + Chooser.NameBox, name);
        EXPECT_EQ(clicked.Seen(ChooseFile(row)), "close open closes " + name);
        EXPECT_EQ(Dialog(Open).Seen(ConfirmName(name)), "close open closes " + name);
        Dialog saved(Save);
        EXPECT_EQ(Chooser.NameBox, "before");
        EXPECT_EQ(saved.Seen(ChooseFile(row++)), "overwrite? closes " + name);
        EXPECT_EQ(saved.Seen(ConfirmName(name)), "overwrite? closes " + name);
    }
    EXPECT_EQ(std::string(ChooserTitle(Open)) + ChooserTitle(Save), "開く新規保存");
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
        EXPECT_EQ(std::ranges::count(Chooser.Folders, 0, &FolderRow::Depth), 1);
        EXPECT_FALSE(ConfirmName(dialog.Folder));
    }
    EXPECT_EQ(below, "gone|sub|sub link|空 x|");
}

TEST(FileChooserTest, WhatIsNotThereIsIgnored) {
    Dialog dialog(Open);
    for (const int row : {-1, INT_MIN, INT_MAX}) {
        ClickFile(row);
        ChooseFolder(row);
        ChooseDrive(row);
        EXPECT_FALSE(ChooseFile(row));
    }
    EXPECT_FALSE(ChooseFile(static_cast<int>(Shown.size())));
    const int drive = Chooser.Drive;
    Chooser.Drives = {"/nowhere", dialog / "gone"};
    ChooseDrive(0);
    const std::string missing = "Brastel: No such file or directory ";
    EXPECT_EQ(dialog.Seen(), missing) << "a stick that has been pulled out";
    ChooseDrive(1);
    EXPECT_EQ(dialog.Seen(), "gone *.*");
    ChooseDrive(drive);
    EXPECT_EQ(dialog.Seen(), "gone *.*") << "the drive's last folder";
    Chooser.Folders = {{dialog / "lost", "lost", 0}};
    ChooseFolder(0);
    EXPECT_EQ(dialog.Seen(), missing + "gone *.*");
    fs::remove(dialog.Folder / "gone");
    ConfirmName("*");
    EXPECT_EQ(Chooser.Files, Names{});
    ChooseDrive(drive);
    EXPECT_EQ(fs::current_path(), Chooser.Drives[static_cast<std::size_t>(drive)]);
    EXPECT_EQ(dialog.Told(), "") << "the drive itself can be entered";
}

/// The dialog used to show the root while the process stayed in the folder that is no more: what
/// was typed from the lists on view was not found.
TEST(FileChooserTest, ADeletedWorkingFolderIsLeft) {
    Dialog dialog(Open, "gone");
    fs::remove(dialog.Folder / "gone");
    OpenChooser(Open);
    EXPECT_EQ(fs::read_symlink("/proc/self/cwd"), "/");
    EXPECT_EQ(Chooser.Folders.back().Path.rfind('/'), 0U);
    Chooser.Files = {"none"};
    dialog.Seen(ChooseFile(0));
    EXPECT_EQ(ChosenFileName, "/none");
}

/// A backslash without three octal digits behind it once ended the program.
TEST(DrivesTest, VolumesThatAUserChoosesFrom) {
    const char* table = R"(22 28 0:21 / /sys rw,nosuid shared:7 - sysfs sysfs rw
23 28 0:22 / /proc rw,nosuid shared:13 - proc proc rw
28 1 259:2 / / rw,relatime shared:1 - ext4 /dev/nvme0n1p2 rw,errors=remount-ro
31 28 0:27 / /opt/cache rw,relatime shared:70 master:3 - tmpfs tmpfs rw
33 22 0:29 / /sys/fs/cgroup rw,nosuid shared:9 - cgroup2 cgroup2 rw
39 28 7:0 / /snap/core20/1405 ro,nodev shared:33 - squashfs /dev/loop0 ro
40 28 7:1 / /media/image ro,nodev - squashfs /dev/loop1 ro
41 28 259:1 / /boot/efi rw,relatime shared:45 - vfat /dev/nvme0n1p1 rw
43 28 8:1 / /home rw,relatime shared:47 - ext4 /dev/sda1 rw
44 43 0:40 / /home/x rw,nosuid shared:60 - fuse.sshfs ann@host:/data rw
46 28 8:17 / /mnt/a\0402 rw,nosuid shared:50 master:4 - fuseblk /dev/sdb1 rw
47 28 0:44 / /srv rw,relatime shared:52 - nfs4 server:/games rw
48 28 0:45 / /net rw,relatime shared:54 - autofs /etc/auto.net rw
49 28 8:33 / /run/media/棋 rw,nosuid - exfat /dev/sdc1 rw
50 28 0:50 / /run/user/1000/gvfs rw,nosuid - fuse.gvfsd-fuse gvfsd-fuse rw
52 28 259:2 /docker/1f/hosts /etc/hosts rw,relatime - ext4 /dev/nvme0n1p2 rw
55 28 8:49 / /usr2\011\012\134 rw - ext4 /dev/sdd1
58 43 8:1 / /home rw,relatime shared:47 - ext4 /dev/sda1 rw
59 28 8:50 / /usr rw - ext4 /dev/sdf1 rw

60 28 8:51 / /mnt/without-dash rw
61 28 8:51 / /mnt/without-device rw - ext4
62 28 8:51 / /b\9xx\0x1\-12\04\ rw - ext4 /dev/sde1 rw)";
    std::string drives;
    for (const std::string& drive : DrivesIn(table)) drives += drive + "|";
    EXPECT_EQ(drives,
              "/|/b\\9xx\\0x1\\-12\\04\\|/home|/home/x|/mnt/a 2|/run/media/棋|/srv|/usr2\t\n\\|");
    EXPECT_EQ(DrivesIn(""), Names{"/"});
    EXPECT_EQ(DriveOf({"/home", "/home/x"}, "/home/x/x"), "/home/x");
    EXPECT_EQ(DriveOf({"/home", "/home/x"}, "/home"), "/home");
    EXPECT_EQ(DriveOf({"/home", "/home/x"}, "/home/xy"), "/home");
}

}  // namespace
}  // namespace brastel
