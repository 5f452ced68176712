/// Gives a fuzz target every file in the folders named, once. So the inputs that the fuzzer has
/// found are part of the ordinary tests, whatever the compiler.

#include "fuzz/FuzzTarget.h"
#include "testing/Headless.h"

#include <filesystem>
#include <iostream>

int main(int count, char** folders) {
    LLVMFuzzerInitialize(&count, &folders);
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(folders[i])) {
            std::cout << entry.path() << std::endl;
            const std::string bytes = brastel::ReadFile(entry.path());
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
        }
    }
}
