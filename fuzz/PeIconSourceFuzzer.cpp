// The PE reader under the checks every icon reader keeps.
#include "IconSourceChecks.h"

#include "fileio/PeIconSource.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return fuzzIconSource<PeIconSource>(data, size);
}
