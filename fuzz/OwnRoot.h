#pragma once

#include <filesystem>

namespace brastel {

/// A folder that is the root of all paths while the process is in it, so that whatever is typed,
/// chosen, saved or removed stays inside.
class OwnRoot {
public:
    /// Makes the folder. Where the system forbids a process to change its root, CanEnter is false.
    OwnRoot();
    /// Removes the folder with all that is in it.
    ~OwnRoot();
    OwnRoot(const OwnRoot&) = delete;
    OwnRoot& operator=(const OwnRoot&) = delete;

    bool CanEnter() const { return IsPermitted; }

    /// Empties the folder and goes into it. Precondition: CanEnter, and outside.
    void Enter();
    /// Back to where the process was. Precondition: inside.
    void Leave();

private:
    std::filesystem::path Folder;
    int RealRoot;
    int Before;
    bool IsPermitted = false;
};

}  // namespace brastel
