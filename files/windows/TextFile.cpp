#include "files/TextFile.h"

#include "files/OpenFile.h"
#include "files/PathText.h"

#include <cerrno>
#include <fcntl.h>
#include <process.h>
#include <unistd.h>
#include <utility>

namespace brastel {

namespace {

namespace fs = std::filesystem;

bool WriteAndClose(OpenFile& file, const std::string& text) {
    const auto size = static_cast<unsigned>(text.size());
    const int written = write(file.Descriptor(), text.data(), size);
    if (written >= 0 && std::cmp_less(written, size)) errno = ENOSPC;
    const bool isWritten = std::cmp_equal(written, size) && _commit(file.Descriptor()) == 0;
    return file.Close() && isWritten;
}

}  // namespace

FileError CreateTextFile(const std::string& path, const std::string& text) {
    errno = 0;
    OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file.IsOpen()) return FileErrorOfOpening(path, errno);
    return WriteAndClose(file, text) ? FileError::None : FileErrorFromSystem(errno);
}

/// The text is written to a new file beside the old one, which then takes its name in one step.
FileError WriteTextFile(const std::string& path, const std::string& text) {
    std::error_code error;
    const fs::path target = fs::weakly_canonical(PathOf(path), error);
    if (const auto status = fs::status(target, error); exists(status) && !is_regular_file(status))
        return FileError::NotAFile;
    const std::string draft = TextOf(target) + ".brastel-" + std::to_string(_getpid());
    FileError failure = CreateTextFile(draft, text);
    if (failure == FileError::None) {
        fs::rename(PathOf(draft), target, error);
        if (!error) return FileError::None;
        errno = error.default_error_condition().value();
        failure = FileErrorFromSystem(errno);
    }
    const int systemError = errno;
    fs::remove(PathOf(draft), error);
    errno = systemError;
    return failure;
}

}  // namespace brastel
