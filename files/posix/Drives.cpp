#include "files/Drives.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <mntent.h>

namespace brastel {

namespace {

constexpr std::string_view Root = "/";

/// File systems without a device of their own that a user mounts over the network.
constexpr std::array<std::string_view, 9> RemoteTypes{"nfs", "nfs4", "cifs", "smb3", "smbfs",
                                                      "9p",  "afs",  "ceph", "davfs"};

/// Volumes below these folders belong to the system.
constexpr std::array<std::string_view, 12> SystemFolders{"/boot", "/dev",  "/efi", "/etc",
                                                         "/nix",  "/proc", "/run", "/snap",
                                                         "/sys",  "/usr",  "/var", "/tmp"};

/// The exception: the desktop mounts volumes for its user here.
constexpr std::string_view UserMedia = "/run/media";

bool IsBelow(std::string_view path, std::string_view folder) {
    return path == folder || (path.starts_with(folder) && path[folder.size()] == '/');
}

bool IsUserVolume(std::string_view place, std::string_view type, std::string_view device) {
    const bool isSystem = std::ranges::any_of(
        SystemFolders, [place](std::string_view folder) { return IsBelow(place, folder); });
    if (isSystem && !IsBelow(place, UserMedia)) return false;
    const bool isDisk = device.starts_with("/dev/") && type != "squashfs";
    const bool isRemote = std::ranges::find(RemoteTypes, type) != RemoteTypes.end();
    return isDisk || isRemote || type.starts_with("fuse.");
}

}  // namespace

std::vector<std::string> DrivesIn(const char* tablePath) {
    std::vector<std::string> drives;
    if (std::FILE* const table = setmntent(tablePath, "r")) {
        while (const mntent* mount = getmntent(table)) {
            const bool isChosen = mount->mnt_dir != Root &&
                                  IsUserVolume(mount->mnt_dir, mount->mnt_type, mount->mnt_fsname);
            if (isChosen) drives.emplace_back(mount->mnt_dir);
        }
        endmntent(table);
    }
    std::ranges::sort(drives);
    drives.erase(std::unique(drives.begin(), drives.end()), drives.end());
    drives.insert(drives.begin(), std::string(Root));
    return drives;
}

std::vector<std::string> ListDrives() { return DrivesIn("/proc/self/mounts"); }

std::string DriveOf(const std::vector<std::string>& drives, std::string_view folder) {
    std::string best(Root);
    for (const std::string& drive : drives) {
        if (drive.size() > best.size() && IsBelow(folder, drive)) best = drive;
    }
    return best;
}

}  // namespace brastel
