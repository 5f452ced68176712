#include "files/TextFile.h"
#include "tests/FilesTest.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// How many calls of the system succeed until one fails, with which error, and whether all later
/// ones fail, too. Below 0 after the first failure.
int Successes = INT_MAX;
int Error = 0;
bool FailsForGood = false;

bool Fails() {
    if (Successes == INT_MAX || --Successes >= 0 || (Successes < -1 && !FailsForGood)) return false;
    errno = Error;
    return true;
}

template <typename... Arguments>
int Call(long number, Arguments... arguments) {
    return Fails() ? -1 : static_cast<int>(syscall(number, arguments...));
}

}  // namespace

// The calls of this program come here.
extern "C" {
ssize_t write(int file, const void* bytes, std::size_t n) {
    return Call(SYS_write, file, bytes, n);
}
int fsync(int file) { return Call(SYS_fsync, file); }
int ftruncate(int file, off_t size) noexcept { return Call(SYS_ftruncate, file, size); }
off_t lseek(int file, off_t at, int from) noexcept { return Call(SYS_lseek, file, at, from); }
int fallocate(int f, int mode, off_t at, off_t n) { return Call(SYS_fallocate, f, mode, at, n); }
int fchmod(int file, mode_t mode) noexcept { return Call(SYS_fchmod, file, mode); }
int fchown(int f, uid_t user, gid_t group) noexcept { return Call(SYS_fchown, f, user, group); }
int rename(const char* from, const char* to) noexcept { return Call(SYS_rename, from, to); }
int mkostemp(char* name, int flags) { return Fails() ? -1 : mkostemps(name, 0, flags); }
}

namespace brastel {
namespace {

/// Saves over an old file, which has another name or not, so that it is overwritten or replaced.
/// False if no call was left to fail.
bool SaveWithFailure(bool hasTwin, int successes) {
    const FileDesk desk;
    WriteBytes("game", "old");
    if (hasTwin) fs::create_hard_link("game", "twin");
    Successes = successes;
    const FileError error = WriteTextFile("game", "new text");
    const bool hasFailed = Successes < 0;
    Successes = INT_MAX;
    std::string kept;
    for (const auto& entry : fs::directory_iterator(".")) {
        if (entry.path().filename().string().starts_with('.')) kept += BytesOf(entry.path());
    }
    if (error == FileError::None) {
        EXPECT_EQ(BytesOf("game") + kept, "new text");
    } else {
        EXPECT_TRUE(BytesOf("game") + kept == "old" || kept == "old") << BytesOf("game") << kept;
    }
    return hasFailed;
}

/// Whatever fails, the old text is still in its file or, if nothing works any more, in a copy. A
/// file that is reported as saved has the new text.
TEST(TextFileTest, NoFailureLosesTheOldText) {
    for (const int kind : {0, 1, 2, 3, 4, 5}) {
        Error = kind < 4 ? EIO : ENOSPC;
        FailsForGood = (kind & 2) != 0;
        int successes = 0;
        while (SaveWithFailure(kind % 2 == 1, successes) && !testing::Test::HasFailure()) {
            ++successes;
        }
        EXPECT_GT(successes, 4) << "calls are not counted";
    }
}

}  // namespace
}  // namespace brastel
