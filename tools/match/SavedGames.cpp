#include "tools/match/SavedGames.h"

#include "engine/Strengths.h"
#include "files/FileView.h"
#include "files/GameFile.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace brastel {

namespace {

/// Keeps the error of SaveGameFile.
class SavingView : public FileView {
public:
    explicit SavingView(bool force) : Force(force) {}

    bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) override {
        if (!Force) Error = EEXIST;
        return Force;
    }
    /// SaveGameFile calls this directly after the failed system call, so errno is its error.
    void ShowWarning(const std::string& /*text*/, const std::string& /*title*/) override {
        Error = errno != 0 ? errno : EIO;
    }

    int Error = 0;

private:
    bool Force;
};

}  // namespace

std::string SavedGameName(const MatchTerms& terms, int number) {
    const std::string digits = std::to_string(number);
    const std::string zeros(digits.size() < 4 ? 4 - digits.size() : 0, '0');
    return zeros + digits + '-' + StrengthName(StrengthOf(terms, number, Red)) + '-' +
           StrengthName(StrengthOf(terms, number, Blue)) + ".txt";
}

std::string PrepareFolder(const std::string& folder, const MatchTerms& terms,
                          const std::vector<int>& numbers, bool force) {
    constexpr int Permissions = 0777;
    const bool isNew = mkdir(folder.c_str(), Permissions) == 0;
    // The slash makes it an error if this is not a folder.
    const bool isUsable =
        isNew || (errno == EEXIST && access((folder + '/').c_str(), W_OK | X_OK) == 0);
    if (!isUsable) return "cannot save games in " + folder + ": " + std::strerror(errno);
    for (const int number : numbers) {
        const std::string path = folder + '/' + SavedGameName(terms, number);
        struct stat state {};
        if (force || lstat(path.c_str(), &state) != 0) continue;
        return path + " exists; --force overwrites it";
    }
    return {};
}

int SaveMatchGame(const std::string& path, bool force) {
    SavingView view(force);
    SetFileView(&view);
    errno = 0;
    SaveGameFile(path);
    SetFileView(nullptr);
    return view.Error;
}

}  // namespace brastel
