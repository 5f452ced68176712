#include "files/NumberFile.h"

#include <cctype>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {

namespace {

/// Longer than any number a hand would write; leading zeros could go on for ever.
constexpr int MaxTokenLength = 64;

bool IsSeparator(int byte) {
    return std::string_view(" \t,\r\n").find(static_cast<char>(byte)) != std::string_view::npos;
}

/// Pipes without a writer, or a device, must not hold the program up.
constexpr int NeverWait = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// Sorts a path that cannot be opened: a missing file in a missing folder is a missing path. Leaves
/// errno as it was.
FileError OpenFailure(const std::string& path, int systemError) {
    if (systemError != ENOENT) return FileErrorFromSystem(systemError);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos || slash == 0) return FileError::FileNotFound;
    struct stat folder {};
    const bool hasFolder = stat(path.substr(0, slash).c_str(), &folder) == 0;
    errno = systemError;
    return hasFolder ? FileError::FileNotFound : FileError::PathNotAccessible;
}

/// Asked before opening, too: opening a pipe or a device can set something off.
bool IsOtherThanFile(const std::string& path) {
    struct stat state {};
    return stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode);
}

bool IsOrdinaryFile(int file) {
    struct stat state {};
    return fstat(file, &state) == 0 && S_ISREG(state.st_mode);
}

bool IsPipe(int file) {
    struct stat state {};
    return fstat(file, &state) == 0 && S_ISFIFO(state.st_mode);
}

FileError WriteAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return FileErrorFromSystem(written < 0 ? errno : ENOSPC);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return FileError::None;
}

}  // namespace

NumberReader::NumberReader(const std::string& path) {
    if (IsOtherThanFile(path)) {
        Failure = FileError::NotAFile;
        return;
    }
    File = open(path.c_str(), O_RDONLY | NeverWait);
    if (File < 0) {
        FailBy(errno, OpenFailure(path, errno));
    } else if (!IsOrdinaryFile(File)) {
        Failure = FileError::NotAFile;
    }
}

NumberReader::~NumberReader() {
    if (File >= 0) close(File);
}

int NumberReader::Peek() {
    if (Used == Filled) {
        ssize_t count = 0;
        do {
            count = read(File, Buffer.data(), Buffer.size());
        } while (count < 0 && errno == EINTR);
        if (count < 0) FailBy(errno, FileErrorFromSystem(errno));
        if (count <= 0) return EndOfData;
        Used = 0;
        Filled = static_cast<std::size_t>(count);
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

/// A line feed right behind a carriage return belongs to it.
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
        // One more than the largest 16-bit number is still read: it may be negative.
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

FileError WriteTextFile(const std::string& path, const std::string& text) {
    constexpr int Permissions = 0666;
    errno = 0;
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | NeverWait, Permissions);
    if (file < 0) return OpenFailure(path, errno);
    const FileError written = IsPipe(file) ? FileError::NotAFile : WriteAll(file, text);
    const bool isClosed = close(file) == 0;
    if (written != FileError::None || isClosed) return written;
    return FileErrorFromSystem(errno);
}

}  // namespace brastel
