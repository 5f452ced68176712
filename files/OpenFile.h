#pragma once

#include "files/FileErrors.h"

#include <cstddef>
#include <string>
#include <sys/stat.h>

namespace brastel {

/// An open file. The destructor closes it.
class OpenFile {
public:
    /// Opens with the flags of open(2), without waiting for pipes and devices. After a failure,
    /// errno is set and Descriptor() is negative.
    OpenFile(const std::string& path, int flags);
    explicit OpenFile(int descriptor) : File(descriptor) {}
    /// Does not change errno.
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Descriptor() const { return File; }
    bool IsOpen() const { return File >= 0; }
    /// The result of read(2), also after a signal.
    std::ptrdiff_t Read(void* bytes, std::size_t size) const;
    /// The result of fstat(2). All zero if the file is not open.
    struct stat State() const;
    /// Returns false and sets errno if the system reports a failed write only when closing.
    bool Close();

private:
    int File;
};

}  // namespace brastel
