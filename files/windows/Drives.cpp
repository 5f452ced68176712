#include "files/Drives.h"

#include "files/PathText.h"

#include <cctype>
#include <windows.h>

namespace brastel {

/// The letters are read at once, without asking the drives.
std::vector<std::string> ListDrives() {
    std::vector<std::string> drives;
    const DWORD letters = GetLogicalDrives();
    for (int n = 0; n < 26; ++n) {
        if ((letters >> n & 1U) != 0)
            drives.push_back(std::string(1, static_cast<char>('A' + n)) + ":\\");
    }
    return drives;
}

std::string DriveOf(const std::vector<std::string>& /*drives*/, std::string_view folder) {
    std::string drive = TextOf(PathOf(folder).root_path());
    if (drive.ends_with(":\\")) drive.front() = static_cast<char>(std::toupper(drive.front()));
    return drive;
}

}  // namespace brastel
