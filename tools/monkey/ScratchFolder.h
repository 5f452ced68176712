#pragma once

#include <filesystem>

/// A folder of its own for a program that may save to any path.
namespace brastel {

inline std::filesystem::path ScratchFolder;

/// Makes the folder, with folders and good and damaged games in it, the working folder. A program
/// run by root then gives up its rights for good: what the program overlooks, the system refuses.
void MakeScratchFolder();

/// True if the absolute path leads into the folder. It holds no links.
bool IsInScratchFolder(const std::filesystem::path& path);

void RemoveScratchFolder();

}  // namespace brastel
