#pragma once

namespace brastel {

/// Keeps this process and those it starts from changing any file outside, even if the program is
/// wrong. All file systems become read-only, except for the folder that the environment variable
/// BRASTEL_WRITABLE names. /tmp, which then holds the home folder, and /var/tmp become empty file
/// systems in memory, which end with the last of these processes. No devices can be opened but a
/// few such as /dev/null.
///
/// False, and nothing is changed, where the system does not allow it: that takes root's rights or
/// user namespaces, and Linux 5.12. True at once in a sandbox. Call it before there are threads.
/// Rights over files that a user gets in a user namespace are given up again unless kept.
bool EnterSandbox(bool keepsRights = false);

}  // namespace brastel
