#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The drives of the file dialog: the root and the volumes mounted elsewhere that a user would look
/// for files on, each named by its mount point.
namespace brastel {

/// The drives in a table of mounts as the kernel writes it (mountinfo), the root first, then by
/// name. Volumes of the system itself are left out. Only the text is looked at: asking a mount for
/// its state could wait for ever on a dead network.
std::vector<std::string> DrivesIn(std::string_view mountTable);

/// The drives of this moment; only the root where the system has no such table.
std::vector<std::string> ListDrives();

/// The drive that a folder lies on: the longest mount point above it.
std::string DriveOf(const std::vector<std::string>& drives, std::string_view folder);

}  // namespace brastel
