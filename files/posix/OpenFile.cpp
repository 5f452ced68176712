#include "files/OpenFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace brastel {

OpenFile::OpenFile(const std::string& path, int flags) {
    constexpr int Permissions = 0666;
    File = open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, Permissions);
}

OpenFile::~OpenFile() {
    const int error = errno;
    if (IsOpen()) Close();
    errno = error;
}

struct stat OpenFile::State() const {
    struct stat state {};
    if (IsOpen()) fstat(File, &state);
    return state;
}

bool OpenFile::Close() { return close(std::exchange(File, -1)) == 0; }

FileError FileErrorOfOpening(const std::string& path, int systemError) {
    if (systemError != ENOENT) return FileErrorFromSystem(systemError);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos || slash == 0) return FileError::FileNotFound;
    struct stat folder {};
    const bool hasFolder = stat(path.substr(0, slash).c_str(), &folder) == 0;
    errno = systemError;
    return hasFolder ? FileError::FileNotFound : FileError::PathNotAccessible;
}

}  // namespace brastel
