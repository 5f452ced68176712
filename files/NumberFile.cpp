#include "files/NumberFile.h"

#include "files/PathText.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <string_view>
#include <utility>

namespace brastel {

namespace {

/// Limit for leading zeros, of which a file could have very many.
constexpr int MaxTokenLength = 64;

bool IsSeparator(int byte) {
    return std::string_view(" \t,\r\n").find(static_cast<char>(byte)) != std::string_view::npos;
}

/// Also checked before opening, because opening a pipe or a device can start an action.
bool IsNotOrdinaryFile(const std::string& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(PathOf(path), ignored);
    return exists(status) && !is_regular_file(status);
}

}  // namespace

NumberReader::NumberReader(const std::string& path) {
    if (IsNotOrdinaryFile(path)) {
        Fail(FileError::NotAFile);
        return;
    }
    File.emplace(path, O_RDONLY);
    const struct stat state = File->State();
    if (!File->IsOpen()) {
        FailBy(errno, FileErrorOfOpening(path, errno));
    } else if (!S_ISREG(state.st_mode)) {
        Fail(FileError::NotAFile);
    } else if (std::cmp_greater(state.st_size, MaxFileSize)) {
        Fail(FileError::FileTooLong);
    }
}

int NumberReader::Peek() {
    if (Used == Filled) {
        const std::ptrdiff_t count = File->Read(Buffer.data(), std::min(Buffer.size(), Unread));
        if (count < 0) FailBy(errno, FileErrorFromSystem(errno));
        if (count <= 0) return EndOfData;
        Used = 0;
        Filled = static_cast<std::size_t>(count);
        Unread -= Filled;
    }
    return Buffer[Used];
}

bool NumberReader::Fail(FileError error) {
    if (Failure == FileError::None) Failure = error;
    return false;
}

void NumberReader::FailBy(int systemError, FileError error) {
    SystemFailure = systemError;
    Fail(error);
}

/// A line feed directly after a carriage return does not begin another line.
void NumberReader::CountLineEnd(int byte) {
    if (byte == '\r' || (byte == '\n' && LastSeparator != '\r')) ++CurrentLine;
    LastSeparator = byte;
}

bool NumberReader::SkipSeparators() {
    LastSeparator = 0;
    for (; IsSeparator(Peek()); ++Used) CountLineEnd(Peek());
    if (Peek() == EndOfData) return Fail(FileError::EndOfFile);
    ValueLine = CurrentLine;
    return true;
}

bool NumberReader::Read(Int16& value) {
    if (Failure != FileError::None || !SkipSeparators()) return false;
    const int sign = Peek();
    if (sign == '-' || sign == '+') ++Used;
    int number = 0;
    int digits = 0;
    for (int byte = Peek(); byte != EndOfData && !IsSeparator(byte); byte = Peek()) {
        if (std::isdigit(byte) == 0 || ++digits > MaxTokenLength)
            return Fail(FileError::NotANumber);
        number = number * 10 + (byte - '0');
        // The limit is 32768, because -32768 is a 16-bit number.
        if (number > std::numeric_limits<Int16>::max() + 1) return Fail(FileError::OutOfRange);
        ++Used;
    }
    if (Failure != FileError::None) return false;
    if (digits == 0) return Fail(FileError::NotANumber);
    if (sign == '-') number = -number;
    if (number > std::numeric_limits<Int16>::max()) return Fail(FileError::OutOfRange);
    value = ToInt16(number);
    return true;
}

std::string NumberText(Int16 value) {
    std::string text(value < 0 ? "" : " ");
    text += std::to_string(value);
    text += ' ';
    return text;
}

}  // namespace brastel
