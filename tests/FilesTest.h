#pragma once

#include "files/FileView.h"
#include "files/GameFile.h"
#include "play/GameRecord.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace brastel {

namespace fs = std::filesystem;

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}
inline std::string BytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A new folder to work in as long as this lives, and windows that remember what they are told. A
/// new main window starts a new game, as the real one does.
class FileDesk : public FileView {
public:
    fs::path Before = fs::current_path();
    fs::path Folder;
    std::string Calls;
    bool Answer = false;

    FileDesk() {
        std::string name = fs::temp_directory_path() / "brastel-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder to work in");
        Folder = fs::canonical(name);
        fs::current_path(Folder);
        SetFileView(this);
        LoadedFileName.clear();
    }
    ~FileDesk() override {
        SetFileView(nullptr);
        fs::current_path(Before);
        fs::remove_all(Folder);
    }
    std::string operator/(const std::string& name) const { return Folder / name; }

    /// The calls since the last time, as in "close 3 open " for a load that ends with error 3. A
    /// box is named by its number or a word if its text and title are right to the letter.
    std::string Told() { return std::exchange(Calls, {}); }

    void CloseMainWindow() override { Calls += "close "; }
    void OpenMainWindow() override {
        Calls += "open ";
        OpenGame();
    }
    bool AskYesOrNo(const std::string& text, const std::string& title) override {
        const bool isRight = text + title == "ファイルを上書きしますか？メニュー";
        Calls += (isRight ? "overwrite" : text + title) + "? ";
        return Answer;
    }
    void ShowWarning(const std::string& text, const std::string& title) override {
        const std::string error = "エラーが発生しました。もう一度実行してください。";
        const bool isError = title == "テキストエディタ" && text.starts_with(error);
        const bool isMissing = title + text == "Brastelファイルが存在しません。";
        Calls += isError ? text.substr(error.size()) : isMissing ? "missing" : title + ": " + text;
        Calls += ' ';
    }
    std::string DocumentsFolder() const override { return "/"; }
};

}  // namespace brastel
