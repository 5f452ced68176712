/// Runs a command in a sandbox.

#include "tools/sandbox/Sandbox.h"

#include <cstdio>
#include <string_view>
#include <unistd.h>

namespace {

constexpr const char* Usage =
    "Usage: in_sandbox [--required] COMMAND [ARGUMENT...]\n"
    "Runs the command where all files are read-only but those in /tmp and /var/tmp, which are "
    "empty\n"
    "file systems in memory, and in the folder that BRASTEL_WRITABLE names. Where the system does\n"
    "not allow that, runs the command without, or, if it is required, ends with status 125.\n";

}  // namespace

int main(int count, char** words) {
    const bool isRequired = count > 1 && words[1] == std::string_view("--required");
    char** const command = words + (isRequired ? 2 : 1);
    if (count < 2 || *command == nullptr) {
        std::fputs(Usage, stderr);
        return 2;
    }
    if (!brastel::EnterSandbox() && isRequired) {
        std::fputs("This system allows no sandbox: it takes root's rights or user namespaces.\n",
                   stderr);
        return 125;
    }
    execvp(command[0], command);
    std::perror(command[0]);
    return 127;
}
