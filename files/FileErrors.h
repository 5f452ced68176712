#pragma once

#include <string>
#include <string_view>

namespace brastel {

/// What can go wrong with a game file. The numbers are shown to the user; FORMAT.md explains each.
enum class FileError {
    None = 0,
    FileNotFound = 1,
    /// A folder of the path is missing, is no folder or may not be entered, or the file may not be
    /// opened.
    PathNotAccessible = 2,
    EndOfFile = 3,
    NotANumber = 4,
    /// Beyond 16 bits, or a start position that no board could hold.
    OutOfRange = 5,
    /// A count larger than the table it counts.
    CountTooLarge = 6,
    DiskFull = 7,
    /// A folder, a device or a pipe where a file is to be read.
    NotAFile = 8,
    /// Anything else that the system reports.
    SystemFailure = 9,
    /// Longer than MaxFileSize.
    FileTooLong = 10,
};

/// The cause behind a system error number (errno) of opening, reading or writing a file.
FileError FileErrorFromSystem(int systemError);

/// What the error means, in a few English words. FORMAT.md has more.
std::string_view FileErrorInWords(FileError error);

/// The text of the error box: a fixed sentence with the number right behind it.
std::string FileErrorText(FileError error);

}  // namespace brastel
