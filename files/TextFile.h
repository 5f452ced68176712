#pragma once

#include "files/FileErrors.h"

#include <string>

/// Writing whole text files. After a failure, errno is what the system calls it, or 0 if no system
/// call failed.
namespace brastel {

/// Writes a new file. Fails with errno EEXIST if the name exists, also as a link that leads
/// nowhere. Another failure can leave a part of the new file behind.
FileError CreateTextFile(const std::string& path, const std::string& text);

/// Writes a file, new or not, or to a device. An existing file is replaced in one step by a new one
/// with its owner and mode: it is whole even if the program is killed. Where that is not possible
/// (the folder is not writable, the file has several names, an access list or a foreign owner), it
/// is overwritten: a failure puts its content back, and if the program is killed, a copy is on
/// disk.
FileError WriteTextFile(const std::string& path, const std::string& text);

}  // namespace brastel
