#include "tools/sandbox/Sandbox.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <linux/capability.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace brastel {

namespace {

namespace fs = std::filesystem;

constexpr const char* Mark = "BRASTEL_SANDBOX";
constexpr const char* Writable = "BRASTEL_WRITABLE";
constexpr const char* Temporary = "/tmp";
constexpr const char* Home = "/tmp/home";
constexpr std::uint64_t NoDevices = MOUNT_ATTR_NODEV;
constexpr std::uint64_t ReadOnly = MOUNT_ATTR_RDONLY;

/// The name of the mount namespace of this process. No two namespaces have the same name.
fs::path MountNamespace() { return fs::read_symlink("/proc/self/ns/mnt"); }

/// Ends the program if a step fails: half a sandbox protects nothing.
void Require(bool isDone, const char* what) {
    if (isDone) return;
    std::perror(what);
    std::_Exit(125);
}

/// Mounts of this process alone. Users other than root need a user namespace for that, in which
/// they stay who they are.
bool HasOwnMounts() {
    if (unshare(CLONE_NEWNS) == 0) return true;
    const auto user = std::to_string(geteuid());
    const auto group = std::to_string(getegid());
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << user + " " + user + " 1";
    std::ofstream("/proc/self/gid_map") << group + " " + group + " 1";
    return true;
}

/// Sets attributes of all mounts at and below a place. Later mounts there are not seen outside.
bool SetAttributes(int mounts, const char* path, std::uint64_t attributes) {
    mount_attr change{};
    change.attr_set = attributes;
    change.propagation = MS_PRIVATE;
    return mount_setattr(mounts, path, AT_EMPTY_PATH | AT_RECURSIVE, &change, sizeof change) == 0;
}

/// What would be hidden or forbidden, to be mounted again where it was.
struct KeptPlace {
    fs::path Path;
    std::uint64_t Attributes;
    int Mounts = -1;
};

std::vector<KeptPlace> PlacesToKeep() {
    std::vector<KeptPlace> places{{BRASTEL_SOURCES, ReadOnly | NoDevices},
                                  {BRASTEL_BUILD, ReadOnly | NoDevices}};
    for (const auto* device : {"null", "zero", "full", "random", "urandom"}) {
        places.push_back({fs::path("/dev") / device, ReadOnly});
    }
    if (const char* named = std::getenv(Writable); named != nullptr) {
        places.push_back({fs::absolute(named), NoDevices});
        // It must be found from any working folder.
        setenv(Writable, places.back().Path.c_str(), 1);
    }
    for (KeptPlace& place : places) {
        place.Mounts = open_tree(AT_FDCWD, place.Path.c_str(),
                                 OPEN_TREE_CLONE | OPEN_TREE_CLOEXEC | AT_RECURSIVE);
    }
    return places;
}

void PutBack(const KeptPlace& place) {
    const bool isMissing = place.Mounts < 0;
    if (isMissing) return;
    // The new /tmp may hide this path.
    if (!fs::exists(place.Path)) fs::create_directories(place.Path);
    Require(SetAttributes(place.Mounts, "", place.Attributes) &&
                move_mount(place.Mounts, "", AT_FDCWD, place.Path.c_str(),
                           MOVE_MOUNT_F_EMPTY_PATH) == 0,
            place.Path.c_str());
    close(place.Mounts);
}

void MakeTemporaryFolders() {
    for (const auto* folder : {Temporary, "/var/tmp"}) {
        Require(mount("brastel", folder, "tmpfs", MS_NOSUID | MS_NODEV, "mode=1777,size=512m") == 0,
                folder);
    }
    // An X server can make its folder only if root runs it.
    fs::create_directory("/tmp/.X11-unix");
    fs::permissions("/tmp/.X11-unix", fs::perms::all | fs::perms::sticky_bit);
    fs::create_directory(Home);
    fs::permissions(Home, fs::perms::owner_all);
    setenv("TMPDIR", Temporary, 1);
    for (const auto* name : {"HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                             "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
        setenv(name, Home, 1);
    }
}

/// False, and nothing is changed, where the kernel cannot make all mounts read-only.
bool CloseOff() {
    const fs::path folder = fs::current_path();
    const std::vector<KeptPlace> places = PlacesToKeep();
    if (!SetAttributes(AT_FDCWD, "/", ReadOnly | NoDevices)) return false;
    MakeTemporaryFolders();
    for (const KeptPlace& place : places) PutBack(place);
    // The same path, which may lead through what was put back.
    if (chdir(folder.c_str()) != 0) Require(chdir(Temporary) == 0, Temporary);
    return true;
}

void GiveUpRights() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, 2> none{};
    Require(syscall(SYS_capset, &header, none.data()) == 0, "capset");
}

}  // namespace

bool EnterSandbox(bool keepsRights) {
    const char* mark = std::getenv(Mark);
    if (mark != nullptr && mark == MountNamespace()) return true;
    const bool isMade = HasOwnMounts() && CloseOff();
    if (isMade) setenv(Mark, MountNamespace().c_str(), 1);
    if (geteuid() != 0 && !keepsRights) GiveUpRights();
    return isMade;
}

}  // namespace brastel
