#include "testing/Sandbox.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    brastel::EnterSandbox(argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
