#include "files/OpenFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace brastel {

OpenFile::OpenFile(const std::string& path, int flags) {
    constexpr int Permissions = 0666;
    File = open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, Permissions);
}

std::ptrdiff_t OpenFile::Read(void* bytes, std::size_t size) const {
    ssize_t count = 0;
    do {
        count = read(File, bytes, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

}  // namespace brastel
