#include "files/TextFile.h"

#include "files/OpenFile.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace brastel {

namespace {

/// For copies of files whose own folder is not writable. Files here are kept after a restart.
constexpr const char* CopyFolder = "/var/tmp";

// ---- Steps that return false and set errno when they fail ----

bool WriteAll(const OpenFile& file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(file.Descriptor(), text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written == 0) errno = ENOSPC;
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool WriteAndClose(OpenFile& file, const std::string& text) {
    return WriteAll(file, text) && file.Close();
}

bool GoToStart(const OpenFile& file) { return lseek(file.Descriptor(), 0, SEEK_SET) == 0; }

/// Sets the size of the file and waits until the file is on disk.
bool SetSizeAndSync(const OpenFile& file, off_t size) {
    return ftruncate(file.Descriptor(), size) == 0 && fsync(file.Descriptor()) == 0;
}

/// Copies the whole file over the start of the other file.
bool CopyAll(const OpenFile& from, const OpenFile& to) {
    if (!GoToStart(from) || !GoToStart(to)) return false;
    std::array<char, 65536> part{};
    while (true) {
        const std::ptrdiff_t count = from.Read(part.data(), part.size());
        if (count <= 0) return count == 0;
        if (!WriteAll(to, {part.data(), static_cast<std::size_t>(count)})) return false;
    }
}

std::string FolderOf(const std::string& path) {
    return std::filesystem::path(path).parent_path().string();
}

bool SyncFolderOf(const std::string& path) {
    const OpenFile folder(FolderOf(path), O_RDONLY | O_DIRECTORY);
    return folder.IsOpen() && fsync(folder.Descriptor()) == 0;
}

/// A new file that only its owner can read. The destructor removes it unless Keep or Rename was
/// called.
class TemporaryFile : public OpenFile {
public:
    explicit TemporaryFile(const std::string& folder) : TemporaryFile(folder, "/.brastel-XXXXXX") {}
    ~TemporaryFile() {
        const int error = errno;
        if (IsOpen() && !IsKept) unlink(Path.c_str());
        errno = error;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& Name() const { return Path; }
    void Keep() { IsKept = true; }
    bool Rename(const std::string& target) {
        IsKept = rename(Path.c_str(), target.c_str()) == 0;
        return IsKept;
    }

private:
    TemporaryFile(std::string path, const std::string& name)
        : OpenFile(mkostemp((path += name).data(), O_CLOEXEC)), Path(std::move(path)) {}

    std::string Path;
    bool IsKept = false;
};

// ---- Replacing a file ----

/// The full path without links. Empty if it does not exist.
std::string RealName(const std::string& path) {
    std::error_code error;
    return std::filesystem::canonical(path, error).string();
}

/// True if the file with this state has this name and no other.
bool IsOnlyName(const std::string& name, const struct stat& state) {
    struct stat found {};
    return stat(name.c_str(), &found) == 0 && found.st_dev == state.st_dev &&
           found.st_ino == state.st_ino && state.st_nlink == 1;
}

bool HasAccessList(const OpenFile& file) {
    return fgetxattr(file.Descriptor(), "system.posix_acl_access", nullptr, 0) > 0;
}

/// The owner is set before the mode, so no other user can read the file in between. The bits that
/// let a program run as its owner or group are cleared, as after every write.
bool SetOwnerAndMode(const struct stat& state, const OpenFile& file) {
    constexpr mode_t Permissions = S_IRWXU | S_IRWXG | S_IRWXO;
    return fchown(file.Descriptor(), state.st_uid, state.st_gid) == 0 &&
           fchmod(file.Descriptor(), state.st_mode & Permissions) == 0;
}

/// Such a file must not be replaced: the shell that redirected the output would go on writing to
/// the old file.
bool IsStandardOutput(const struct stat& state) {
    struct stat output {};
    return fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == state.st_dev &&
           output.st_ino == state.st_ino;
}

bool Replace(const std::string& path, const OpenFile& old, const std::string& text) {
    const std::string name = RealName(path);
    const struct stat state = old.State();
    if (!IsOnlyName(name, state) || HasAccessList(old) || IsStandardOutput(state)) return false;
    TemporaryFile draft(FolderOf(name));
    const bool isReady = draft.IsOpen() && WriteAll(draft, text) && !HasAccessList(draft) &&
                         SetOwnerAndMode(state, draft) && fsync(draft.Descriptor()) == 0;
    if (!isReady || !draft.Rename(name)) return false;
    // If this fails, a power failure leaves the old or the new file, and both are complete.
    SyncFolderOf(name);
    return true;
}

// ---- Overwriting a file ----

bool IsDiskFull() { return FileErrorFromSystem(errno) == FileError::DiskFull; }

/// False if there is no space. True if the file system cannot reserve space.
bool Reserve(const OpenFile& file, off_t size) {
    return fallocate(file.Descriptor(), FALLOC_FL_KEEP_SIZE, 0, size) == 0 || !IsDiskFull();
}

/// Copies the file and waits until the copy is on disk, in the folder of the file if possible.
bool CopyToDisk(const OpenFile& file, const std::string& name, std::optional<TemporaryFile>& copy) {
    if (!name.empty()) copy.emplace(FolderOf(name));
    if (!copy || !copy->IsOpen()) copy.emplace(CopyFolder);
    const bool isSafe = copy->IsOpen() && CopyAll(file, *copy) && fsync(copy->Descriptor()) == 0;
    // Some file systems cannot sync a folder, so the result is ignored.
    if (isSafe) SyncFolderOf(copy->Name());
    return isSafe;
}

/// Old blocks are overwritten before the length changes, so restoring them needs no space.
bool Overwrite(const std::string& path, const std::string& text) {
    const OpenFile file(path, O_RDWR);
    const auto newSize = static_cast<off_t>(text.size());
    if (!file.IsOpen() || !Reserve(file, newSize)) return false;
    const off_t size = file.State().st_size;
    std::optional<TemporaryFile> copy;
    if (size > 0 && !CopyToDisk(file, RealName(path), copy)) return false;
    if (GoToStart(file) && WriteAll(file, text) && SetSizeAndSync(file, newSize)) return true;
    const int error = errno;
    const bool isBack = (!copy || CopyAll(*copy, file)) && SetSizeAndSync(file, size);
    if (copy && !isBack) copy->Keep();
    errno = error;
    return false;
}

// ---- Errors ----

FileError ErrorUnless(bool isWritten) {
    return isWritten ? FileError::None : FileErrorFromSystem(errno);
}

FileError WriteNew(const std::string& path, const std::string& text, int flag) {
    OpenFile file(path, O_WRONLY | O_CREAT | flag);
    if (!file.IsOpen()) return FileErrorOfOpening(path, errno);
    return ErrorUnless(WriteAndClose(file, text));
}

}  // namespace

FileError CreateTextFile(const std::string& path, const std::string& text) {
    return WriteNew(path, text, O_EXCL);
}

FileError WriteTextFile(const std::string& path, const std::string& text) {
    errno = 0;
    OpenFile old(path, O_WRONLY);
    // No file, or a link without a target.
    if (!old.IsOpen() && errno == ENOENT) return WriteNew(path, text, O_TRUNC);
    if (!old.IsOpen()) return FileErrorOfOpening(path, errno);
    const mode_t mode = old.State().st_mode;
    if (S_ISFIFO(mode)) return FileError::NotAFile;
    if (!S_ISREG(mode)) return ErrorUnless(WriteAndClose(old, text));
    const bool isDone = Replace(path, old, text) || Overwrite(path, text);
    return ErrorUnless(isDone);
}

}  // namespace brastel
