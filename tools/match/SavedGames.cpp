#include "tools/match/SavedGames.h"

#include "engine/Strengths.h"
#include "files/FileView.h"
#include "files/GameFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {

namespace {

/// Keeps the error of SaveGameFile.
class SavingView : public FileView {
public:
    int Error = 0;

    bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) override {
        Error = EEXIST;
        return false;
    }
    /// SaveGameFile calls this directly after the failed system call, so errno is its error.
    void ShowWarning(const std::string& /*text*/, const std::string& /*title*/) override {
        Error = errno != 0 ? errno : EIO;
    }
};

std::string SystemError() { return std::strerror(errno); }

}  // namespace

std::string SavedGameName(const MatchTerms& terms, int number) {
    const bool firstIsRed = FirstPlaysRed(terms, number);
    const std::string digits = std::to_string(number);
    const std::string zeros(digits.size() < 4 ? 4 - digits.size() : 0, '0');
    return zeros + digits + '-' + StrengthName(firstIsRed ? terms.First : terms.Second) + '-' +
           StrengthName(firstIsRed ? terms.Second : terms.First) + ".txt";
}

std::string PrepareFolder(const std::string& folder, const MatchTerms& terms, int games) {
    constexpr int Permissions = 0777;
    const std::string what = "cannot save games in " + folder + ": ";
    // In a new folder there is no file to overwrite.
    if (mkdir(folder.c_str(), Permissions) == 0) return {};
    if (errno != EEXIST) return what + SystemError();
    struct stat state {};
    if (stat(folder.c_str(), &state) != 0) return what + SystemError();
    if (!S_ISDIR(state.st_mode)) return what + std::strerror(ENOTDIR);
    if (access(folder.c_str(), W_OK | X_OK) != 0) return what + SystemError();
    for (int number = 1; number <= games; ++number) {
        const std::string path = folder + '/' + SavedGameName(terms, number);
        if (lstat(path.c_str(), &state) == 0) return path + " exists and is not overwritten";
    }
    return {};
}

int SaveMatchGame(const std::string& path) {
    SavingView view;
    SetFileView(&view);
    errno = 0;
    SaveGameFile(path);
    SetFileView(nullptr);
    return view.Error;
}

}  // namespace brastel
