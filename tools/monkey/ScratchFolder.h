#pragma once

#include <filesystem>

namespace brastel {

/// A folder of its own for a program that may save to any path. There is one at a time; it becomes
/// the working folder.
class ScratchFolder {
public:
    /// Makes the folder, with folders and good and damaged games in it. A program run by root then
    /// gives up its rights for good: what the folder's guard overlooks, the system refuses.
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() { Remove(); }

    const std::filesystem::path& Path() const { return Folder; }
    /// True if the absolute path leads into the folder. It holds no links.
    bool Holds(const std::filesystem::path& path) const;
    void Remove() const;

private:
    std::filesystem::path Folder;
};

}  // namespace brastel
