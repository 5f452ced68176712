#pragma once

#include "core/Numbers.h"
#include "files/OpenFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Reads and writes text files of 16-bit numbers.
namespace brastel {

/// Maximum size of a file in bytes. A longer file would keep the program busy for a long time.
constexpr std::size_t MaxFileSize = 1'000'000;

/// Reads the numbers of an ordinary file one by one. Devices and pipes are refused at once, without
/// waiting for them. A file longer than MaxFileSize is refused, too. If the file grows later,
/// reading ends at MaxFileSize.
class NumberReader {
public:
    /// Opens the file. Error() is the result.
    explicit NumberReader(const std::string& path);

    FileError Error() const { return Failure; }
    /// The error number of the system (errno), or 0 if no system call failed.
    int SystemError() const { return SystemFailure; }

    /// Skips spaces, tabs, commas and line ends and reads the next number into `value`. After the
    /// first error it always returns false and does not change `value`.
    bool Read(Int16& value);

    /// The line, from 1, of the last number or of a text that is not a number. Lines end with line
    /// feed, carriage return or both.
    std::int64_t LineNumber() const { return ValueLine; }

private:
    static constexpr int EndOfData = -1;

    /// The next byte, or EndOfData at the end and on errors.
    int Peek();
    bool Fail(FileError error);
    void FailBy(int systemError, FileError error);
    void CountLineEnd(int byte);
    bool SkipSeparators();

    std::array<unsigned char, 4096> Buffer{};
    std::size_t Used = 0;
    std::size_t Filled = 0;
    std::size_t Unread = MaxFileSize;
    std::optional<OpenFile> File;
    FileError Failure = FileError::None;
    int SystemFailure = 0;
    std::int64_t CurrentLine = 1;
    std::int64_t ValueLine = 1;
    int LastSeparator = 0;
};

/// A number as text: the sign (a space or a minus), the digits, a space.
std::string NumberText(Int16 value);

}  // namespace brastel
