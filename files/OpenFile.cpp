#include "files/OpenFile.h"

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace brastel {

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

}  // namespace brastel
