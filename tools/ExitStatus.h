#pragma once

namespace brastel {

/// Exit statuses of brastel-match and brastel-record.
enum ExitStatus {
    Done = 0,
    /// A record is damaged or breaks the rules.
    FoundFault = 1,
    /// Wrong arguments, or a path or standard output that cannot be read or written.
    CannotDo = 2,
    SystemFailed = 3
};

}  // namespace brastel
