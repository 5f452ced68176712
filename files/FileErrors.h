#pragma once

#include <string>
#include <string_view>

namespace brastel {

/// Errors of game files. The user sees the numbers, and FORMAT.md explains them.
enum class FileError {
    None = 0,
    FileNotFound = 1,
    /// A folder of the path is missing, is not a folder or cannot be entered, or the user has no
    /// right to open the file.
    PathNotAccessible = 2,
    EndOfFile = 3,
    NotANumber = 4,
    /// More than 16 bits, or a start position that is not possible.
    OutOfRange = 5,
    /// The count is larger than its table.
    CountTooLarge = 6,
    DiskFull = 7,
    /// A folder, a device or a pipe instead of a file.
    NotAFile = 8,
    /// Anything else that the system reports.
    SystemFailure = 9,
    /// Longer than MaxFileSize.
    FileTooLong = 10,
};

/// The error for a system error number (errno) of opening, reading or writing a file.
FileError FileErrorFromSystem(int systemError);

/// The error for a path that could not be opened: FileNotFound if its folder exists, otherwise
/// PathNotAccessible. Does not change errno.
FileError FileErrorOfOpening(const std::string& path, int systemError);

/// The error in a few English words, for messages of programs.
std::string_view FileErrorInWords(FileError error);

/// The text of the error box: a fixed sentence followed by the number.
std::string FileErrorText(FileError error);

}  // namespace brastel
