#pragma once

#include "core/Numbers.h"
#include "files/OpenFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Text files of 16-bit numbers.
namespace brastel {

/// Bytes of the longest file that is read. A longer one would only keep the program busy.
constexpr std::size_t MaxFileSize = 1'000'000;

/// Reads numbers one by one, from ordinary files only: devices and pipes are refused at once and
/// never waited for. A file longer than MaxFileSize is refused, too; if it grows later, its data
/// end there.
class NumberReader {
public:
    /// Opens the file; Error() tells whether that worked.
    explicit NumberReader(const std::string& path);

    FileError Error() const { return Failure; }
    /// What the system calls the failure (errno), or 0 if the failure is none of its own.
    int SystemError() const { return SystemFailure; }

    /// Skips spaces, tabs, commas and line ends and reads the next value into `value`. False, with
    /// `value` unchanged, on the first error and ever after.
    bool Read(Int16& value);

    /// The line, from 1, of the value read last or of what is no value; at the end of the data that
    /// of the last value. Lines end as in any editor: by line feed, carriage return or both.
    std::int64_t Line() const { return ValueLine; }

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

/// A number as files hold it: a sign column (a space unless negative), the digits, a space.
std::string NumberText(Int16 value);

}  // namespace brastel
