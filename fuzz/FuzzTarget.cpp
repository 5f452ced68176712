#include "fuzz/FuzzTarget.h"

#include "tests/Sandbox.h"

int LLVMFuzzerInitialize(int* /*count*/, char*** words) {
    brastel::EnterSandbox(*words);
    return 0;
}
