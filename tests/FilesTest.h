#pragma once

#include "files/FileView.h"
#include "files/GameFile.h"
#include "play/Stepping.h"
#include "tests/Rows.h"

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
    /// box is named by the number at its end, if there is one.
    std::string Told() { return std::exchange(Calls, {}); }

    void CloseMainWindow() override { Calls += "close "; }
    void OpenMainWindow() override {
        Calls += "open ";
        OpenGame();
    }
    bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) override {
        Calls += "overwrite? ";
        return Answer;
    }
    void ShowWarning(const std::string& text, const std::string& title) override {
        const auto number = text.find_last_not_of("0123456789") + 1;
        Calls += (number < text.size() ? text.substr(number) : title + ": " + text) + ' ';
    }
    std::string ProgramFolder() const override { return "/"; }
};

}  // namespace brastel
