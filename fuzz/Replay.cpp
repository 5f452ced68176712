/// Gives a fuzz target every file named, and every file in every folder named, once. So the inputs
/// that the fuzzer has found are part of the ordinary tests, whatever the compiler.

#include "fuzz/FuzzTarget.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesAt(const fs::path& path) {
    if (!fs::is_directory(path)) return {path};
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(path)) files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

void Replay(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    brastel::Require(file.is_open(), "cannot read " + path.string());
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int count, char** paths) {
    LLVMFuzzerInitialize(&count, &paths);
    std::size_t replayed = 0;
    for (int i = 1; i < count; ++i) {
        for (const fs::path& path : FilesAt(paths[i])) {
            std::printf("%s\n", path.c_str());
            std::fflush(stdout);
            Replay(path);
            ++replayed;
        }
    }
    std::printf("%zu inputs replayed\n", replayed);
    return replayed > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
