#pragma once

// Feeds arbitrary bytes to one of the icon readers the extraction browser
// uses. Any crash, hang, sanitizer report or broken promise about the result
// is a finding: a source or a typed fault, never both; every icon 32 x 32
// with a two-colour mask, or a failure with empty planes.
#include "fileio/IconLayout.h"
#include "fileio/IconSourceOpener.h"

#include <cstdint>
#include <cstdlib>

namespace {

inline void check(bool promise) {
    if (!promise)
        std::abort();
}

} // namespace

// The promises every icon-container reader keeps, for the harness of one
// reader.
template <typename Reader> int fuzzIconSource(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    ReadFault fault = ReadFault::None;
    const auto source = Reader::open(bytes, fault);
    check((source == nullptr) == (fault != ReadFault::None));
    // The opener must pick the same reader and reach the same verdict.
    const auto opened = IconSourceOpener::open(bytes);
    if (Reader::recognises(bytes))
        check(opened.fault == fault && (opened.source == nullptr) == (source == nullptr));
    if (!source)
        return 0;
    check(source->count() >= 0 && source->count() == opened.source->count());
    // Far fewer icons than bytes: a count is never taken on trust.
    check(source->count() <= static_cast<int>(size));
    for (int i = 0; i < source->count() && i < 64; ++i) {
        // An icon given whole opens with a directory and stays within the
        // size of any icon file, however often its group names one image.
        if (const auto stored = source->storedFile(i)) {
            const ByteView in(*stored);
            check(in.contains(0, 6) && in.u16(0) == 0 && (in.u16(2) == 1 || in.u16(2) == 2));
            check(stored->size() <= IconLayout::kMaxFileBytes);
        }
        source->name(i);
        const IconLoadResult r = source->image(i);
        if (!r.ok()) {
            check(r.fault != ReadFault::None && r.mask.isEmpty() && r.image.isEmpty());
            continue;
        }
        check(r.width == 32 && r.height == 32 && r.mask.width() == 32 && r.image.height() == 32);
        for (const Colour c : r.mask.pixels())
            check(c == kBlack || c == kWhite);
        for (const Colour c : r.image.pixels())
            check(c <= kWhite);
    }
    check(!source->image(-1).ok() && !source->image(source->count()).ok());
    return 0;
}
