#include "fuzz/OwnRoot.h"

#include "fuzz/FuzzTarget.h"

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

namespace brastel {

namespace {

namespace fs = std::filesystem;

std::string NewFolder() {
    std::string name = fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path();
    name += "/brastel-XXXXXX";
    Require(mkdtemp(name.data()) != nullptr, "no folder for a root");
    return name;
}

int OpenFolder(const char* path) { return open(path, O_PATH | O_DIRECTORY | O_CLOEXEC); }

/// The superuser may; others in a user namespace of their own, where there are such.
bool MayChangeRoot() {
    if (chroot("/") == 0) return true;
    return unshare(CLONE_NEWUSER) == 0 && chroot("/") == 0;
}

}  // namespace

OwnRoot::OwnRoot()
    : Folder(NewFolder()),
      RealRoot(OpenFolder("/")),
      Before(OpenFolder(".")),
      IsPermitted(MayChangeRoot()) {
    Require(RealRoot >= 0 && Before >= 0, "the folders to come back to cannot be opened");
}

OwnRoot::~OwnRoot() {
    fs::remove_all(Folder);
    close(RealRoot);
    close(Before);
}

void OwnRoot::Enter() {
    for (const auto& entry : fs::directory_iterator(Folder)) fs::remove_all(entry.path());
    Require(chroot(Folder.c_str()) == 0 && chdir("/") == 0, "the root cannot be changed");
}

void OwnRoot::Leave() {
    const bool isBack = fchdir(RealRoot) == 0 && chroot(".") == 0 && fchdir(Before) == 0;
    Require(isBack, "the way back is lost");
}

}  // namespace brastel
