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

[[noreturn]] void Stop(const char* what) {
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

void Give(const fs::path& path) {
    if (chown(path.c_str(), Nobody, Nobody) != 0) Stop("chown");
}

void GiveUpRights() {
    if (setgroups(0, nullptr) != 0 || setresgid(Nobody, Nobody, Nobody) != 0 ||
        setresuid(Nobody, Nobody, Nobody) != 0) {
        Stop("giving up root's rights");
    }
    // The leak sanitizer could not look into the process any more.
    prctl(PR_SET_DUMPABLE, 1);
}

}  // namespace

ScratchFolder::ScratchFolder() {
    std::string name = fs::temp_directory_path() / "brastel-monkey-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) Stop("mkdtemp");
    Folder = fs::canonical(name);
    CopyGames(Folder);
    if (geteuid() == 0) {
        Give(Folder);
        for (const auto& entry : fs::recursive_directory_iterator(Folder)) Give(entry.path());
        GiveUpRights();
    }
    fs::current_path(Folder);
}

bool ScratchFolder::Holds(const fs::path& path) const {
    const fs::path inside = path.lexically_normal().lexically_relative(Folder);
    return !inside.empty() && *inside.begin() != "..";
}

void ScratchFolder::Remove() const {
    std::error_code ignored;
    fs::remove_all(Folder, ignored);
}

}  // namespace brastel
