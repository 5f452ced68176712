#include "files/OpenFile.h"

#include "files/PathText.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {

/// A file is not inherited by other programs, and its bytes are not changed.
OpenFile::OpenFile(const std::string& path, int flags) {
    constexpr int Permissions = S_IRUSR | S_IWUSR;
    File = _wopen(PathOf(path).c_str(), flags | O_BINARY | O_NOINHERIT, Permissions);
}

std::ptrdiff_t OpenFile::Read(void* bytes, std::size_t size) const {
    return read(File, bytes, static_cast<unsigned>(size));
}

}  // namespace brastel
