#include "files/FileErrors.h"

#include "files/PathText.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <filesystem>

namespace brastel {

FileError FileErrorFromSystem(int systemError) {
    switch (systemError) {
        case ENOENT:
            return FileError::FileNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case ENOTDIR:
        case ELOOP:
        case ENAMETOOLONG:
        case EINVAL:
        case EILSEQ:
        case ETXTBSY:
            return FileError::PathNotAccessible;
        case EISDIR:
        case ENXIO:
        case ENODEV:
            return FileError::NotAFile;
        case ENOSPC:
#ifdef EDQUOT
        case EDQUOT:
#endif
        case EFBIG:
            return FileError::DiskFull;
        default:
            return FileError::SystemFailure;
    }
}

FileError FileErrorOfOpening(const std::string& path, int systemError) {
    const std::filesystem::path folder = PathOf(path).parent_path();
    std::error_code ignored;
    const bool lacksFolder =
        systemError == ENOENT && !folder.empty() && !std::filesystem::exists(folder, ignored);
    errno = systemError;
    return lacksFolder ? FileError::PathNotAccessible : FileErrorFromSystem(systemError);
}

std::string_view FileErrorInWords(FileError error) {
    constexpr std::array<std::string_view, 11> Words{
        "",
        "there is no such file",
        "the path cannot be followed, or the file may not be opened",
        "the file ends before its last value",
        "this is no number",
        "a number beyond -32768 to 32767",
        "a count larger than its table",
        "the disk is full",
        "not an ordinary file",
        "the system failed while reading or writing",
        "the file is longer than 1 MB",
    };
    return Words[static_cast<std::size_t>(error)];
}

std::string FileErrorText(FileError error) {
    return "エラーが発生しました。もう一度実行してください。" +
           std::to_string(static_cast<int>(error));
}

}  // namespace brastel
