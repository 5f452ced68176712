#include "files/GameFile.h"

#include "core/StartPosition.h"
#include "files/FileView.h"
#include "files/NumberFile.h"
#include "play/GameRecord.h"

#include <filesystem>

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

std::string Line(Int16 value) { return NumberText(value) + LineEnd; }
std::string Line(Int16 first, Int16 second) {
    return NumberText(first) + NumberText(second) + LineEnd;
}

std::string TableLines(const StartTable& table, Int16 count) {
    std::string lines;
    for (int i = 0; i <= count; ++i) lines += Line(table[i]);
    return lines;
}

std::string GameText() {
    const Int16 redCount = ToInt16(StartCount(Red));
    const Int16 blueCount = ToInt16(StartCount(Blue));
    const Int16 entries = ToInt16(Pos.MoveCount - 1);
    std::string text = Line(redCount, blueCount);
    text += TableLines(RedStart, redCount) + TableLines(BlueStart, blueCount);
    text += Line(entries);
    for (int k = 1; k <= entries; ++k) text += Line(PlayedFrom[k], PlayedTo[k]);
    return text;
}

bool MayWrite(const std::string& path) {
    std::error_code ignored;
    return !std::filesystem::exists(path, ignored) ||
           FileWindows->AskYesOrNo(OverwriteText, OverwriteTitle);
}

// ---- Reading: each value goes straight to its place, so that those before an error stay ----

/// A negative count is no number of pieces or entries.
FileError ReadCount(NumberReader& file, Int16& count) {
    Int16 value = 0;
    if (!file.Read(value)) return file.Error();
    if (value < 0) return FileError::OutOfRange;
    count = value;
    return FileError::None;
}

/// Reads entries 0 to `count`. `taken` marks the squares of pieces read so far.
FileError ReadTable(NumberReader& file, StartTable& table, Int16 count,
                    Table<bool, FirstSquare, LastSquare>& taken) {
    for (int i = 0; i <= count; ++i) {
        if (i > MaxPieces) return FileError::CountTooLarge;
        Int16 square = 0;
        if (!file.Read(square)) return file.Error();
        if (i > 0) {
            if (!IsOnBoard(square) || taken[square]) return FileError::OutOfRange;
            taken[square] = true;
        }
        table[i] = square;
    }
    return FileError::None;
}

FileError ReadEntries(NumberReader& file) {
    for (int k = 1; k <= LoadedCount; ++k) {
        if (k > MaxEntries) return FileError::CountTooLarge;
        if (!file.Read(LoadedFrom[k]) || !file.Read(LoadedTo[k])) return file.Error();
    }
    return FileError::None;
}

FileError ReadGame(NumberReader& file) {
    if (file.Error() != FileError::None) return file.Error();
    Table<bool, FirstSquare, LastSquare> taken;
    FileError error = ReadCount(file, Pos.RedCount);
    if (error == FileError::None) error = ReadCount(file, Pos.BlueCount);
    if (error == FileError::None) error = ReadTable(file, RedStart, Pos.RedCount, taken);
    if (error == FileError::None) error = ReadTable(file, BlueStart, Pos.BlueCount, taken);
    if (error == FileError::None) error = ReadCount(file, LoadedCount);
    if (error == FileError::None) error = ReadEntries(file);
    return error;
}

void ReadGameFile(const std::string& path) {
    NumberReader file(path);
    const FileError error = ReadGame(file);
    TakeLoadedGame();
    if (error == FileError::None) {
        LoadedFileName = path;
    } else {
        ReportFileError(error);
    }
}

}  // namespace

void SaveGameFile(const std::string& path) {
    if (!MayWrite(path)) return;
    const FileError error = WriteTextFile(path, GameText());
    if (error != FileError::None) ReportFileError(error);
}

void LoadGameFile(const std::string& path) {
    FileWindows->CloseMainWindow();
    if (path == LoadedFileName) {
        BranchMark = 0;
    } else {
        ReadGameFile(path);
    }
    FileWindows->OpenMainWindow();
}

}  // namespace brastel
