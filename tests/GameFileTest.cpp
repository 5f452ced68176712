#include "core/Consistency.h"
#include "files/NumberFile.h"
#include "tests/FilesTest.h"
#include "tests/GameTest.h"

#include <cerrno>
#include <csignal>
#include <regex>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace brastel {
namespace {

/// The standard game after both ring placements and one move.
const std::string Example = BytesOf(BRASTEL_TEST_DATA "/good/03-example.txt");

class GameFileTest : public GameTest {
protected:
    /// A command as Do takes it, or of files: "save:file", "load:file", "show:file", "text:1,2" for
    /// a file "typed", "size:9" for that of the game, "twin:file" for another name of it, "limit:9"
    /// for all files, "yes:" to all questions, "alone:" for no windows, "held:" for what the file
    /// of the game gives to one who opened it before, "mode:0640game" for its permissions and
    /// "mode:game" to tell them, "list:" for an access list of it.
    void Act(const std::string& command) {
        const auto colon = command.find(':');
        if (colon == std::string::npos) return Do(command);
        const std::string word = command.substr(0, colon);
        const std::string file = command.substr(colon + 1);
        if (word == "save") return SaveGameFile(file);
        if (word == "load") return Load(file);
        if (word == "text") return WriteBytes("typed", file);
        if (word == "size") return fs::resize_file("game", std::stoul(file));
        if (word == "twin") return fs::create_hard_link("game", file);
        if (word == "limit") return LimitFiles(std::stoul(file));
        if (word == "alone") return SetFileView(nullptr);
        if (word == "yes") return void(Desk.Answer = true);
        if (word == "list") return AddAccessList();
        if (word == "mode") return ChangeOrTellMode(file);
        const std::string held{std::istreambuf_iterator<char>(Reader), {}};
        const std::string text = word == "held" ? held : BytesOf(file);
        Desk.Calls += std::regex_replace(text, std::regex("\r\n"), "|");
    }
    static void LimitFiles(rlim_t bytes) {
        rlimit size{};
        getrlimit(RLIMIT_FSIZE, &size);
        size.rlim_cur = std::min(bytes, size.rlim_max);
        setrlimit(RLIMIT_FSIZE, &size);
    }
    /// Where files have none, another name also keeps the file from being replaced.
    void AddAccessList() {
        const std::uint32_t list[] = {2,   1 | 6 << 16,  ~0U, 2 | 4 << 16, geteuid(), 4 | 4 << 16,
                                      ~0U, 16 | 4 << 16, ~0U, 32,          ~0U};
        const char* name = "system.posix_acl_access";
        if (setxattr("game", name, list, sizeof(list), 0) != 0) Act("twin:b");
    }
    void ChangeOrTellMode(const std::string& file) {
        if (std::isdigit(file[0]) == 0)
            return void(Desk.Calls += std::to_string(int(fs::status(file).permissions())) + ' ');
        fs::permissions(file.substr(4), fs::perms(std::stoul(file, nullptr, 8)));
    }
    /// As from the menu, for two people.
    void Load(const std::string& name) {
        LoadGameFile(Desk / name);
        BeginLoadedGame();
        SetLevel(TwoPlayerLevel);
    }

    FileDesk Desk;
    std::ifstream Reader;
};

/// What is written, the error of each failure, which leaves game and file alone or keeps what was
/// read, and when a file is read again: the old game used to come back after a save, and a mixture
/// of two after a damaged file. Entries, buttons and counts stand at the end.
TEST_F(GameFileTest, SavesAndLoadsInARow) {
    std::signal(SIGXFSZ, SIG_IGN);
    umask(022);
    const auto countOpen = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), {});
    };
    for (const auto& [commands, seen] : RowsOf("/files.txt")) {
        SCOPED_TRACE(commands);
        WriteBytes("game", Example);
        fs::permissions("game", fs::perms(0640));
        const bool mayGiveAway = chown("game", 1, 1) == 0;
        fs::create_symlink("loop", "loop");
        fs::create_symlink("game", "to-game");
        fs::create_symlink("none", "to-none");
        mkfifo("pipe", 0666);
        LoadedFileName.clear();
        SetFileView(&Desk);
        Desk.Answer = false;
        Start(3);
        Reader = std::ifstream("game");
        const auto open = countOpen();
        std::istringstream list(commands);
        for (std::string command; list >> command;) Act(command);
        const int counts[] = {Pos.RedCount, Pos.BlueCount};
        EXPECT_EQ(Desk.Told() + State() + ' ' + testing::PrintToString(counts), seen);
        EXPECT_EQ(FirstInconsistency(), "");
        EXPECT_EQ(countOpen(), open);
        struct stat state {};
        EXPECT_EQ(stat("game", &state), 0);
        EXPECT_EQ(state.st_mode & 07777, 0640);
        EXPECT_EQ(state.st_uid, mayGiveAway ? 1 : geteuid());
        EXPECT_TRUE(fs::is_symlink("to-game"));
        for (const auto& entry : fs::directory_iterator(".")) {
            EXPECT_FALSE(entry.path().filename().string().starts_with('.')) << "left over";
            fs::remove(entry);
        }
    }
}

/// Those that are hard to bring about.
TEST(FileErrorsTest, SystemErrorsHaveTheirNumbers) {
    for (const int error : {EACCES, EPERM, EROFS, EINVAL, EILSEQ, ETXTBSY}) {
        EXPECT_EQ(FileErrorFromSystem(error), FileError::PathNotAccessible) << error;
    }
    EXPECT_EQ(FileErrorFromSystem(EDQUOT), FileError::DiskFull);
    EXPECT_EQ(FileErrorFromSystem(ENODEV), FileError::NotAFile);
}

/// One used to be read for ever.
TEST_F(GameFileTest, AFileThatGrowsEndsAtOneMegabyte) {
    WriteBytes("growing", "1");
    NumberReader reader("growing");
    std::ofstream("growing", std::ios::app) << std::string(1'000'000, ' ') << 2;
    Int16 value = 0;
    EXPECT_TRUE(reader.Read(value) && value == 1);
    EXPECT_FALSE(reader.Read(value));
    EXPECT_EQ(reader.Error(), FileError::EndOfFile);
}

/// The number before a file's name is that of its error, or of the entries that can be played.
TEST_F(GameFileTest, FilesByOtherHands) {
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(BRASTEL_TEST_DATA)) {
        const fs::path& path = entry.path();
        if (std::isdigit(path.filename().c_str()[0]) == 0) continue;
        ++seen;
        SCOPED_TRACE(path);
        const std::string number = std::to_string(std::stoi(path.filename()));
        const bool isGood = path.parent_path().filename() == "good";
        LoadedFileName.clear();
        Load(path);
        EXPECT_EQ(Desk.Told() + LoadedFileName,
                  isGood ? "close open " + path.string() : "close " + number + " open ");
        for (; ForwardVisible; StepForward()) EXPECT_EQ(FirstInconsistency(), "");
        EXPECT_TRUE(std::to_string(Pos.MoveCount - 1) == number || !isGood);
        for (; Pos.MoveCount > 1; StepBack()) EXPECT_EQ(FirstInconsistency(), "");
        if (path.string().find("example") == std::string::npos) continue;
        DoAll("forward forward forward");
        SaveGameFile(path.filename());
        EXPECT_EQ(BytesOf(path.filename()), Example);
    }
    EXPECT_GT(seen, 80) << "the data are not found";
}

}  // namespace
}  // namespace brastel
