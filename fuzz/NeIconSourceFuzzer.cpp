// The NE reader under the checks every icon reader keeps.
#include "IconSourceChecks.h"

#include "fileio/NeIconSource.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return fuzzIconSource<NeIconSource>(data, size);
}
