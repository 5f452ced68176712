#include "files/Drives.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <sstream>

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

bool IsOctal(std::string_view digits) {
    return digits.size() == 3 && digits.find_first_not_of("01234567") == std::string_view::npos;
}

/// In the table, spaces and backslashes are a backslash and three octal digits.
std::string Unescaped(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && IsOctal(std::string_view(text).substr(i + 1, 3));
        plain +=
            isEscape ? static_cast<char>(std::stoi(text.substr(i + 1, 3), nullptr, 8)) : text[i];
        if (isEscape) i += 3;
    }
    return plain;
}

struct Mount {
    std::string Place;
    std::string Type;
    std::string Device;
};

/// A line has these fields: number, parent, device number, root, place, options, optional fields up
/// to "-", type, device, further options.
Mount ParseMount(const std::string& line) {
    std::istringstream fields(line);
    Mount mount;
    std::string skipped;
    fields >> skipped >> skipped >> skipped >> skipped >> mount.Place;
    while (fields >> skipped && skipped != "-") {
    }
    fields >> mount.Type >> mount.Device;
    mount.Place = Unescaped(mount.Place);
    return mount;
}

}  // namespace

std::vector<std::string> DrivesIn(std::string_view mountTable) {
    std::vector<std::string> drives;
    std::istringstream lines{std::string(mountTable)};
    for (std::string line; std::getline(lines, line);) {
        const Mount mount = ParseMount(line);
        const bool isChosen =
            mount.Place != Root && IsUserVolume(mount.Place, mount.Type, mount.Device);
        if (isChosen) drives.push_back(mount.Place);
    }
    std::ranges::sort(drives);
    drives.erase(std::unique(drives.begin(), drives.end()), drives.end());
    drives.insert(drives.begin(), std::string(Root));
    return drives;
}

std::vector<std::string> ListDrives() {
    std::ifstream table("/proc/self/mountinfo");
    return DrivesIn(std::string(std::istreambuf_iterator<char>(table), {}));
}

std::string DriveOf(const std::vector<std::string>& drives, std::string_view folder) {
    std::string best(Root);
    for (const std::string& drive : drives) {
        if (drive.size() > best.size() && IsBelow(folder, drive)) best = drive;
    }
    return best;
}

}  // namespace brastel
