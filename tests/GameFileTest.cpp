#include "core/Consistency.h"
#include "files/NumberFile.h"
#include "tests/FilesTest.h"
#include "tests/GameTest.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {
namespace {

/// The standard game after both ring placements and one move, byte by byte.
const std::string Example =
    " 8  8 \r\n 4 \r\n 66 \r\n 67 \r\n 68 \r\n 69 \r\n 70 \r\n 71 \r\n 28 \r\n 29 \r\n"
    " 109 \r\n 42 \r\n 43 \r\n 44 \r\n 45 \r\n 46 \r\n 47 \r\n 84 \r\n 85 \r\n"
    " 3 \r\n 68  0 \r\n 44  0 \r\n 66  58 \r\n";

class GameFileTest : public GameTest {
protected:
    static void Play(const std::string& commands) {
        std::istringstream list(commands);
        for (std::string command; list >> command;) Do(command);
    }
    /// As from the menu, for two people.
    std::string Load(const std::string& name) {
        LoadGameFile(Desk / name);
        BeginLoadedGame();
        SetLevel(TwoPlayerLevel);
        return Desk.Told();
    }
    std::string LoadText(const std::string& text) {
        WriteBytes(std::to_string(++FilesWritten), text);
        return Load(std::to_string(FilesWritten));
    }
    /// Forward through the loaded game, as far as it fits, and back. The number of entries played.
    static int WalkThrough() {
        for (; ForwardVisible; StepForward()) EXPECT_EQ(FirstInconsistency(), "");
        const int entries = Pos.MoveCount - 1;
        for (; Pos.MoveCount > 1; StepBack()) EXPECT_EQ(FirstInconsistency(), "");
        return entries;
    }

    FileDesk Desk;
    int FilesWritten = 0;
};

/// Both counts are 0 until a side has its ring, whatever stands on the board.
TEST_F(GameFileTest, WritesTheGameToTheByteAndAsksBefore) {
    const std::map<std::string, std::string> cases{
        {"R3 B3 66-58", Example},
        {"layout0", " 2  2 \r\n 4 \r\n 68 \r\n 69 \r\n 109 \r\n 44 \r\n 45 \r\n 0 \r\n"},
        {"layout6 +60 +61", " 0  0 \r\n 4 \r\n 109 \r\n 0 \r\n"},
        {"layout6 +60 +61 R2 +20",
         " 2  0 \r\n 61 \r\n 60 \r\n 61 \r\n 109 \r\n 1 \r\n 61  0 \r\n"}};
    for (const auto& [commands, bytes] : cases) {
        Start(3);
        Play(commands);
        SaveGameFile(commands);
        EXPECT_EQ(BytesOf(commands) + Desk.Told(), bytes);
        WriteBytes("old", std::string(999, 'x'));
        for (const std::string& expected : {std::string(999, 'x'), bytes}) {
            Desk.Answer = expected == bytes;
            SaveGameFile("old");
            EXPECT_EQ(BytesOf("old") + Desk.Told(), expected + "overwrite? ");
        }
    }
    SetFileView(nullptr);
    WriteBytes("old", "x");
    SaveGameFile("old");
    EXPECT_EQ(BytesOf("old"), "x") << "nobody could be asked";
}

/// The pieces placed by hand used to count among those of a game loaded over them: after its last
/// entry was taken back, btn_Forward stayed hidden.
TEST_F(GameFileTest, GamesAreLoadedOverASetup) {
    Play("layout6 +66 +67 +68 +69 +70 +71 +74 +75 +76");
    LoadText(Example);
    Play("forward forward forward back");
    EXPECT_TRUE(ForwardVisible);
}

std::ptrdiff_t OpenFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

/// Each path with the error of loading it and that of saving there, 0 where that is not tried.
TEST_F(GameFileTest, FailuresLeaveTheGameAlone) {
    WriteBytes("file", "");
    fs::create_symlink("loop", "loop");
    ASSERT_EQ(mkfifo("pipe", 0666), 0);
    std::istringstream places(
        "missing 1 0 missing/game 2 2 missing/folder/game 2 2 file/game 2 2 loop 2 2 "
        "file 3 0 . 8 8 pipe 8 8 /dev/zero 8 0 /dev/full 8 7 /proc/self/mem 9 0 " +
        std::string(256, 'n') + " 2 2");
    LoadText(Example);
    Desk.Answer = true;
    const auto openFiles = OpenFiles();
    for (auto [path, loading, saving] = std::tuple(std::string(), 0, 0);
         places >> path >> loading >> saving;) {
        SCOPED_TRACE(path);
        Play("forward forward forward");
        const Position before = Pos;
        if (saving > 0) SaveGameFile(path);
        EXPECT_TRUE(saving == 0 || Desk.Told().ends_with(std::to_string(saving) + " "));
        EXPECT_TRUE(Pos == before);
        EXPECT_EQ(Load(path) + LoadedFileName,
                  "close " + std::to_string(loading) + " open " + (Desk / "1"));
        EXPECT_EQ(WalkThrough(), 3);
        EXPECT_EQ(OpenFiles(), openFiles);
    }
    EXPECT_EQ(FileErrorFromSystem(EROFS), FileError::PathNotAccessible);
}

/// The old file used to be emptied first. Here it has a link and, at last, a second name. No file
/// may grow beyond the limit.
TEST_F(GameFileTest, AFailedSaveLeavesTheOldFileWhole) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit size{};
    getrlimit(RLIMIT_FSIZE, &size);
    const auto unlimited = size.rlim_cur;
    Desk.Answer = true;
    Play("R3 B3 66-58");
    fs::create_symlink("file", "link");
    for (const std::string name : {"file", "link", "name"}) {
        for (const std::string& old : {std::string("old"), std::string(999, 'x')}) {
            WriteBytes("file", old);
            fs::permissions("file", fs::perms(0640));
            const bool mayGiveAway = chown("file", 1, 1) == 0;
            if (name == "name" && !fs::exists(name)) fs::create_hard_link("file", name);
            std::ifstream reader("file");
            for (const rlim_t limit : {rlim_t{0}, rlim_t{100}, unlimited}) {
                size.rlim_cur = limit;
                setrlimit(RLIMIT_FSIZE, &size);
                SaveGameFile(name);
                size.rlim_cur = unlimited;
                setrlimit(RLIMIT_FSIZE, &size);
                EXPECT_EQ(Desk.Told() + BytesOf("file"),
                          "overwrite? " + (limit == unlimited ? Example : "7 " + old));
            }
            EXPECT_EQ(fs::status("file").permissions(), fs::perms(0640));
            struct stat state {};
            EXPECT_TRUE(!mayGiveAway || (stat("file", &state) == 0 && state.st_uid == 1));
            EXPECT_EQ(BytesOf("file"), BytesOf(name));
            // Who has opened the file before still reads the old one.
            const std::string read{std::istreambuf_iterator<char>(reader), {}};
            EXPECT_EQ(read, name == "name" ? Example : old);
        }
    }
    EXPECT_TRUE(fs::is_symlink("link"));
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 3) << "something is left over";
}

/// Each step, with the number of the error if the file, which is damaged after the step, is read
/// again. The old game used to come back after a save, and a mixture of two after a damaged file.
TEST_F(GameFileTest, AFileIsReadAgainWhenItsGameIsGone) {
    const std::vector<std::tuple<const char*, std::function<void()>, const char*>> steps{
        {"played on", [&] { Play("forward R1 forward back"); }, ""},
        {"saved elsewhere", [&] { SaveGameFile("new"); }, ""},
        {"saved", [&] { SaveGameFile("link"); }, "4 "},
        {"failed load", [&] { Load("missing"); }, "4 "},
        {"other pieces", [&] { Start(2); }, "4 "},
        {"free setup", [&] { Play("layout6 +60 R1 +50 B1 new"); }, "4 "}};
    Desk.Answer = true;
    fs::create_symlink("game", "link");
    for (const auto& [name, step, error] : steps) {
        LoadedFileName.clear();
        WriteBytes("game", Example);
        EXPECT_EQ(Load("game"), "close open ");
        step();
        Desk.Told();
        WriteBytes("game", "x");
        BranchMark = 2;
        EXPECT_EQ(Load("game"), std::string("close ") + error + "open ") << name;
        EXPECT_EQ(BranchMark, 0);
    }
}

/// Another program can create a file of that name at the last moment. It is not overwritten
/// unasked.
TEST_F(GameFileTest, ANewFileIsNotMadeThroughALink) {
    fs::create_symlink("target", "link");
    for (const bool answer : {false, true}) {
        Desk.Answer = answer;
        SaveGameFile("link");
        EXPECT_EQ(Desk.Told(), "overwrite? ");
        EXPECT_EQ(fs::exists("target"), answer);
    }
}

TEST_F(GameFileTest, CutAnywhereTheFileEndsEarly) {
    for (std::size_t size = 0; size <= Example.size(); ++size) {
        const char* calls = size > Example.rfind("58") ? "close open " : "close 3 open ";
        EXPECT_EQ(LoadText(Example.substr(0, size)), calls) << size;
        WalkThrough();
    }
}

/// Also a count that no table can hold. Whatever the user does then is safe.
TEST_F(GameFileTest, ValuesReadBeforeAnErrorStay) {
    using Counts = std::pair<Int16, Int16>;
    for (const auto& [red, blue] : {Counts{13, 8}, {32767, 0}, {0, 13}, {12, 32767}}) {
        const std::string text = std::to_string(red) + "," + std::to_string(blue);
        SCOPED_TRACE(text);
        EXPECT_EQ(LoadText(Example), "close open ");
        EXPECT_EQ(WalkThrough(), 3);
        EXPECT_EQ(LoadText(text + (red == 0 ? " 4" : "") + " -7 1 2 3 9 10 11 12 17 18 19 20 21 x"),
                  red == 12 ? "close 4 open " : "close 6 open ");
        EXPECT_EQ(std::tuple(Pos.RedCount, Pos.BlueCount, LoadedCount), std::tuple(red, blue, 3));
        EXPECT_EQ((red == 0 ? BlueStart : RedStart)[12], 21);
        SaveGameFile(text);
        EXPECT_NE(BytesOf(text).find("\r\n-7 \r\n 1 \r\n"), std::string::npos);
        EXPECT_EQ(std::stoi(BytesOf(text)), std::min<int>(red, MaxPieces));
        WalkThrough();
        Play("+50 R12 R1 hint 66-58 back new");
        EXPECT_EQ(FirstInconsistency(), "");
    }
}

/// A gigabyte of blanks kept the window from answering, and a file that grows kept it for ever.
TEST_F(GameFileTest, OneMegabyteIsReadAtMost) {
    WriteBytes("game", Example);
    for (const auto& [size, calls] : {std::pair(1 << 30, "close 10 open "),
                                      {1'000'001, "close 10 open "},
                                      {1'000'000, "close open "}}) {
        fs::resize_file("game", static_cast<std::uintmax_t>(size));
        EXPECT_EQ(Load("game"), calls) << size;
    }
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
    std::map<std::string, int> seen;
    for (const auto& entry : fs::recursive_directory_iterator(BRASTEL_TEST_DATA)) {
        const fs::path& path = entry.path();
        if (path.extension() != ".txt") continue;
        SCOPED_TRACE(path);
        const std::string number = std::to_string(std::stoi(path.filename()));
        const bool isGood = path.parent_path().filename() == "good";
        ++seen[path.parent_path().filename()];
        LoadedFileName.clear();
        EXPECT_EQ(Load(path) + LoadedFileName,
                  isGood ? "close open " + path.string() : "close " + number + " open ");
        EXPECT_TRUE(std::to_string(WalkThrough()) == number || !isGood);
        if (path.string().find("example") == std::string::npos) continue;
        Play("forward forward forward");
        SaveGameFile(path.filename());
        EXPECT_EQ(BytesOf(path.filename()), Example);
    }
    EXPECT_TRUE(seen["damaged"] >= 40 && seen["good"] >= 20);
}

}  // namespace
}  // namespace brastel
