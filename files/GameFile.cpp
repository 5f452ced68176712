#include "files/GameFile.h"

#include "core/StartPosition.h"
#include "files/FileView.h"
#include "files/NumberFile.h"
#include "files/PathText.h"
#include "files/TextFile.h"

#include <cerrno>

namespace brastel {

std::string LoadedFileName;

namespace {

const std::string OverwriteText = "ファイルを上書きしますか？";
const std::string OverwriteTitle = "メニュー";
const std::string ErrorTitle = "テキストエディタ";

constexpr const char* LineEnd = "\r\n";

void ReportFileError(FileError error) {
    FileWindows->ShowWarning(FileErrorText(error), ErrorTitle);
}

// ---- Writing ----

std::string NumberLine(Int16 value) { return NumberText(value) + LineEnd; }
std::string NumberLine(Int16 first, Int16 second) {
    return NumberText(first) + NumberText(second) + LineEnd;
}

std::string TableLines(const StartTable& table, Int16 count) {
    std::string lines;
    for (int i = 0; i <= count; ++i) lines += NumberLine(table[i]);
    return lines;
}

std::string StartText() {
    const Int16 redCount = ToInt16(StartCount(Red));
    const Int16 blueCount = ToInt16(StartCount(Blue));
    return NumberLine(redCount, blueCount) + TableLines(RedStart, redCount) +
           TableLines(BlueStart, blueCount);
}

std::string GameText() {
    const Int16 entries = ToInt16(Pos.MoveCount - 1);
    std::string text = StartText() + NumberLine(entries);
    for (int k = 1; k <= entries; ++k) text += NumberLine(PlayedFrom[k], PlayedTo[k]);
    return text;
}

// ---- Reading: each value is stored at once, so values before an error are kept ----

GameReading Failure(FileError error, std::string_view cause, std::int64_t line) {
    return {error, cause, line, 0, {}};
}

/// The error of the reader itself, if any.
GameReading StateOf(const NumberReader& file) {
    return Failure(file.Error(), FileErrorInWords(file.Error()), file.LineNumber());
}

GameReading OutOfRange(const NumberReader& file, std::string_view cause) {
    return Failure(FileError::OutOfRange, cause, file.LineNumber());
}

bool IsGood(const GameReading& reading) { return reading.Error == FileError::None; }

/// A count and its line in the file.
struct Count {
    Int16& Value;
    std::int64_t Line = 0;
};

GameReading ReadCount(NumberReader& file, Count& count) {
    Int16 value = 0;
    if (!file.Read(value)) return StateOf(file);
    if (value < 0) return OutOfRange(file, "a negative count");
    count.Value = value;
    count.Line = file.LineNumber();
    return {};
}

/// Reads entries 0 to `count`. `taken` marks the squares of the pieces read before.
GameReading ReadTable(NumberReader& file, StartTable& table, const Count& count,
                      Table<bool, FirstSquare, LastSquare>& taken) {
    for (int i = 0; i <= count.Value; ++i) {
        if (i > MaxPieces) {
            return Failure(FileError::CountTooLarge, "more than 12 pieces of a side", count.Line);
        }
        Int16 square = 0;
        if (!file.Read(square)) return StateOf(file);
        if (i > 0) {
            if (!IsOnBoard(square)) return OutOfRange(file, "a start square off the board");
            if (taken[square]) return OutOfRange(file, "a start square used twice");
            taken[square] = true;
        }
        table[i] = square;
    }
    return {};
}

GameReading ReadEntries(NumberReader& file, const Count& count) {
    GameReading reading;
    for (int k = 1; k <= count.Value; ++k) {
        if (k > MaxEntries) {
            return Failure(FileError::CountTooLarge, "more than 200 entries", count.Line);
        }
        if (!file.Read(LoadedFrom[k])) return StateOf(file);
        reading.EntryLine[k] = file.LineNumber();
        if (!file.Read(LoadedTo[k])) return StateOf(file);
    }
    return reading;
}

GameReading ReadGame(NumberReader& file) {
    Table<bool, FirstSquare, LastSquare> taken;
    Count red{Pos.RedCount};
    Count blue{Pos.BlueCount};
    Count entries{LoadedCount};
    GameReading reading = StateOf(file);
    if (IsGood(reading)) reading = ReadCount(file, red);
    if (IsGood(reading)) reading = ReadCount(file, blue);
    if (IsGood(reading)) reading = ReadTable(file, RedStart, red, taken);
    if (IsGood(reading)) reading = ReadTable(file, BlueStart, blue, taken);
    if (IsGood(reading)) reading = ReadCount(file, entries);
    return IsGood(reading) ? ReadEntries(file, entries) : reading;
}

/// The start tables in the file LoadedFileName, as text. Empty after a failed load or a save to
/// that file: the file must then be read again.
std::string StartRead;

}  // namespace

void SaveGameFile(const std::string& path) {
    const std::string text = GameText();
    FileError error = CreateTextFile(path, text);
    if (error != FileError::None && errno == EEXIST) {
        if (!FileWindows->AskYesOrNo(OverwriteText, OverwriteTitle)) return;
        error = WriteTextFile(path, text);
    }
    if (error != FileError::None) ReportFileError(error);
    std::error_code ignored;
    if (std::filesystem::equivalent(PathOf(path), PathOf(LoadedFileName), ignored))
        StartRead.clear();
}

GameReading ReadGameFile(const std::string& path) {
    NumberReader file(path);
    GameReading reading = ReadGame(file);
    reading.SystemError = file.SystemError();
    KeepLoadedStart();
    return reading;
}

void LoadGameFile(const std::string& path) {
    FileWindows->CloseMainWindow();
    const bool isLoaded = path == LoadedFileName && StartText() == StartRead;
    const FileError error = isLoaded ? FileError::None : ReadGameFile(path).Error;
    if (error != FileError::None) {
        StartRead.clear();
        ReportFileError(error);
    } else {
        LoadedFileName = path;
        StartRead = StartText();
    }
    FileWindows->OpenMainWindow();
}

}  // namespace brastel
