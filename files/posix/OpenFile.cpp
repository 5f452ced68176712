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

std::ptrdiff_t OpenFile::Read(void* bytes, std::size_t size) const {
    ssize_t count = 0;
    do {
        count = read(File, bytes, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

bool OpenFile::Close() { return close(std::exchange(File, -1)) == 0; }

}  // namespace brastel
