#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The drives of the file dialog: the root and the mounted volumes that can hold files of the user.
/// The name of a drive is its mount point.
namespace brastel {

/// Not on Windows: the drives in a mount table, a file in the form of fstab: the root first, then
/// sorted by name. Volumes of the system are left out. Only the root if the table cannot be read.
/// Only the table is read: a request to the mount itself could wait forever for a network that does
/// not answer.
std::vector<std::string> DrivesIn(const char* tablePath);

/// The drives that are mounted now.
std::vector<std::string> ListDrives();

/// The drive of a folder: the longest mount point above it.
std::string DriveOf(const std::vector<std::string>& drives, std::string_view folder);

}  // namespace brastel
