#pragma once

#include "files/FileErrors.h"

#include <string>
#include <sys/stat.h>

namespace brastel {

/// A file that is closed at the end of its scope.
class OpenFile {
public:
    /// Opens with the flags of open(2). Pipes and devices are not waited for. On failure errno is
    /// set and Descriptor() is negative.
    OpenFile(const std::string& path, int flags);
    explicit OpenFile(int descriptor) : File(descriptor) {}
    /// Leaves errno as it was.
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Descriptor() const { return File; }
    bool IsOpen() const { return File >= 0; }
    /// All zero for a file that is not open.
    struct stat State() const;
    /// False, with errno set, where the system reports only now that it could not write.
    bool Close();

private:
    int File;
};

/// The cause behind a failure to open a path: a missing file in a missing folder is a missing path.
/// Leaves errno as it was.
FileError FileErrorOfOpening(const std::string& path, int systemError);

}  // namespace brastel
