#include "tools/sandbox/Sandbox.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // CMake may have the list written into the build tree.
    if (!GTEST_FLAG_GET(list_tests)) brastel::EnterSandbox();
    return RUN_ALL_TESTS();
}
