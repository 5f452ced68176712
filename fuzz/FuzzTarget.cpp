#include "fuzz/FuzzTarget.h"

#include "testing/Sandbox.h"

int LLVMFuzzerInitialize(int* /*count*/, char*** words) {
    brastel::EnterSandbox(*words);
    return 0;
}
