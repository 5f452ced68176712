#include "files/Drives.h"

#include "files/PathText.h"

#include <windows.h>

namespace brastel {

/// Windows has no mount table.
std::vector<std::string> DrivesIn(const char* /*tablePath*/) { return ListDrives(); }

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
    return TextOf(PathOf(folder).root_path());
}

}  // namespace brastel
