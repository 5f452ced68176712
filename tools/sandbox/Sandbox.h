#pragma once

namespace brastel {

/// Takes from this process and those it starts the means to change any file outside, even if the
/// program is wrong: all file systems become read-only, and /tmp and /var/tmp empty ones in memory, which go
/// with the last of these processes and holds the home folder as well. Devices cannot be opened but
/// those that lead nowhere, as /dev/null. Only the folder that the environment variable
/// BRASTEL_WRITABLE names, if any, stays as it is.
///
/// False, and nothing is changed, where the system does not allow it: that takes root's rights or
/// user namespaces, and Linux 5.12. True at once in a sandbox. Call it before there are threads.
/// Rights over files that a user gets in a user namespace are given up again unless kept.
bool EnterSandbox(bool keepsRights = false);

}  // namespace brastel
