#include "files/FileErrors.h"

#include <cerrno>

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
        case EDQUOT:
        case EFBIG:
            return FileError::DiskFull;
        default:
            return FileError::SystemFailure;
    }
}

std::string FileErrorText(FileError error) {
    return "エラーが発生しました。もう一度実行してください。" +
           std::to_string(static_cast<int>(error));
}

}  // namespace brastel
