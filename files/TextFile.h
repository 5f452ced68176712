#pragma once

#include "files/FileErrors.h"

#include <string>

/// Writing whole text files. After a failure, errno is the error number of the system, or 0 if no
/// system call failed.
namespace brastel {

/// Writes a new file. Fails with errno EEXIST if the name exists, even as a link without a target.
/// After another failure, a part of the new file can remain.
FileError CreateTextFile(const std::string& path, const std::string& text);

/// Writes a new or existing file, or to a device. An existing file is replaced in one step by a new
/// file with the same owner and mode, so it is complete even if the program is killed. This is not
/// possible if the folder is not writable, or if the file has several names, an access list or a
/// foreign owner. Then the file is overwritten: after a failure its old content is restored, and if
/// the program is killed, a copy is on disk.
FileError WriteTextFile(const std::string& path, const std::string& text);

}  // namespace brastel
