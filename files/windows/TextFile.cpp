#include "files/TextFile.h"

#include "files/OpenFile.h"
#include "files/PathText.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace brastel {

namespace {

bool WriteAndClose(OpenFile& file, const std::string& text) {
    const auto size = static_cast<unsigned>(text.size());
    const bool isWritten = write(file.Descriptor(), text.data(), size) == static_cast<int>(size) &&
                           _commit(file.Descriptor()) == 0;
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
    namespace fs = std::filesystem;
    std::error_code error;
    if (const auto status = fs::status(PathOf(path), error);
        exists(status) && !is_regular_file(status))
        return FileError::NotAFile;
    const std::string draft = path + ".brastel-draft";
    fs::remove(PathOf(draft), error);
    const FileError failure = CreateTextFile(draft, text);
    if (failure != FileError::None) return failure;
    fs::rename(PathOf(draft), PathOf(path), error);
    if (!error) return FileError::None;
    errno = error.default_error_condition().value();
    const int systemError = errno;
    fs::remove(PathOf(draft), error);
    errno = systemError;
    return FileErrorFromSystem(systemError);
}

}  // namespace brastel
