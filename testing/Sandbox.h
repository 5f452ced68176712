#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

namespace brastel {

/// True in the sandbox of testing/in_sandbox.
inline bool IsInSandbox() {
    const char* mark = std::getenv("BRASTEL_SANDBOX");
    return mark != nullptr && mark == std::filesystem::read_symlink("/proc/self/ns/mnt");
}

/// Starts this program again in the sandbox, if the system allows one and it does not run there
/// yet. Call it first, with all words of the command line.
inline void EnterSandbox(char** words) {
    if (IsInSandbox() || std::getenv("BRASTEL_NO_SANDBOX") != nullptr) return;
    std::string script = BRASTEL_IN_SANDBOX;
    std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::vector<char*> command{script.data(), program.data()};
    while (*words != nullptr) command.push_back(*++words);
    execv(script.c_str(), command.data());
}

}  // namespace brastel
