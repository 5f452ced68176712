#pragma once

namespace brastel {

/// From now on this process and those that it starts cannot change any file outside, even if the
/// program is wrong. All file systems are read-only for them, but for the folder that the
/// environment variable BRASTEL_WRITABLE names. /tmp, which also holds the home folder, and
/// /var/tmp are empty, in memory, and gone with the last of these processes. The only devices that
/// can be opened are null, zero, full, random and urandom.
///
/// False, and nothing is changed, where the system does not allow this: it takes Linux 5.12, and
/// root's rights or user namespaces. True at once in a sandbox. Must be called before there are
/// threads. A user has root's rights in a user namespace; they are given up unless kept.
bool EnterSandbox(bool keepsRights = false);

}  // namespace brastel
