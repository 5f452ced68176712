#include "fuzz/FuzzGame.h"

#include "core/Consistency.h"
#include "core/StartPosition.h"
#include "files/GameFile.h"
#include "fuzz/FuzzTarget.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tools/sandbox/Sandbox.h"

#include <sys/mman.h>
#include <unistd.h>

namespace brastel {

void RequireSound(const ShownGame& game) {
    const std::string fault = FirstInconsistency();
    Require(fault.empty(), fault);
    Require(Pos.MoveCount <= MaxEntries + 1, "the record ran over");
    Require(!IsThinking, "the game still thinks");
    const std::string wrong = game.FirstWrong();
    Require(wrong.empty(), "shown wrongly: " + wrong);
}

void ShownFiles::OpenMainWindow() { OpenGame(); }

MemoryFile::MemoryFile()
    : File(memfd_create("game", MFD_CLOEXEC)), Name("/proc/self/fd/" + std::to_string(File)) {
    Require(File >= 0, "no file in memory");
}

MemoryFile::~MemoryFile() { close(File); }

void MemoryFile::Write(std::string_view bytes) const {
    Require(ftruncate(File, 0) == 0, "the file in memory cannot be emptied");
    const ssize_t written = pwrite(File, bytes.data(), bytes.size(), 0);
    Require(written == static_cast<ssize_t>(bytes.size()), "the file in memory is full");
}

std::string MemoryFile::Read() const {
    std::string bytes(static_cast<std::size_t>(lseek(File, 0, SEEK_END)), '\0');
    const ssize_t count = pread(File, bytes.data(), bytes.size(), 0);
    Require(count == static_cast<ssize_t>(bytes.size()), "the file in memory cannot be read");
    return bytes;
}

void StartProgram(ShownGame& game, ShownFiles& files) {
    constexpr int StandardLayout = 3;
    SetView(&game);
    SetFileView(&files);
    LoadedFileName.clear();
    PlayedFrom = PlayedTo = LoadedFrom = LoadedTo = RecordColumn();
    LoadedCount = 0;
    Pos = Position();
    SelectStartLayout(StandardLayout);
    TakeLoadedGame();
}

bool LoadFrom(const MemoryFile& file, ShownFiles& files) {
    files.Warnings = 0;
    LoadGameFile(file.Path());
    BeginLoadedGame();
    return files.Warnings == 0;
}

}  // namespace brastel

int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/) {
    // file_chooser needs them to change its root.
    constexpr bool KeepsRights = true;
    brastel::EnterSandbox(KeepsRights);
    return 0;
}
