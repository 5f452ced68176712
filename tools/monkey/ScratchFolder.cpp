#include "tools/monkey/ScratchFolder.h"

#include <cstdio>
#include <cstdlib>
#include <grp.h>
#include <string>
#include <sys/prctl.h>
#include <unistd.h>

namespace brastel {

namespace {

namespace fs = std::filesystem;

constexpr unsigned Nobody = 65534;

void Require(bool isDone, const char* what) {
    if (isDone) return;
    std::perror(what);
    std::_Exit(2);
}

void CopyGames(const fs::path& to) {
    const fs::path from = BRASTEL_TEST_DATA;
    fs::create_directories(to / "unter" / "tief");
    for (const auto* name : {"03-example.txt", "06-passes.txt", "200-entries.txt",
                             "01-free-setup-red-ready.txt", "06-free-setup-uneven.txt"}) {
        fs::copy(from / "good" / name, to);
    }
    fs::copy(from / "damaged", to / "unter");
}

void GiveUpRights() {
    // The folder last: before, nobody else can put a link into it.
    for (const auto& entry : fs::recursive_directory_iterator(ScratchFolder)) {
        Require(lchown(entry.path().c_str(), Nobody, Nobody) == 0, "lchown");
    }
    Require(lchown(ScratchFolder.c_str(), Nobody, Nobody) == 0, "lchown");
    Require(setgroups(0, nullptr) == 0 && setresgid(Nobody, Nobody, Nobody) == 0 &&
                setresuid(Nobody, Nobody, Nobody) == 0,
            "giving up root's rights");
    // The leak sanitizer could not look into the process any more.
    prctl(PR_SET_DUMPABLE, 1);
}

}  // namespace

void MakeScratchFolder() {
    std::string name = fs::temp_directory_path() / "brastel-monkey-XXXXXX";
    Require(mkdtemp(name.data()) != nullptr, "mkdtemp");
    ScratchFolder = fs::canonical(name);
    CopyGames(ScratchFolder);
    if (geteuid() == 0) GiveUpRights();
    fs::current_path(ScratchFolder);
}

bool IsInScratchFolder(const fs::path& path) {
    const fs::path inside = path.lexically_normal().lexically_relative(ScratchFolder);
    return !inside.empty() && *inside.begin() != "..";
}

void RemoveScratchFolder() {
    if (ScratchFolder.empty()) return;
    std::error_code ignored;
    fs::remove_all(ScratchFolder, ignored);
}

}  // namespace brastel
