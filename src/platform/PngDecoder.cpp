#include "platform/PngDecoder.h"

namespace {

const PngDecoder* current = nullptr;

} // namespace

void PngDecoder::install(const PngDecoder* decoder) {
    current = decoder;
}

const PngDecoder* PngDecoder::installed() {
    return current;
}
