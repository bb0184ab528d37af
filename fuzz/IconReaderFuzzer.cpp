// Feeds arbitrary bytes to every step the Open command takes on an .ico, and
// to the multi-image rewrite, which parses the same directory. Any crash,
// sanitizer report or broken promise about the planes is a finding.
#include "fileio/IcoFile.h"
#include "fileio/IconListing.h"

#include <cstdint>
#include <cstdlib>

namespace {

void check(bool promise) {
    if (!promise)
        std::abort();
}

void checkLoad(const IconLoadResult& r) {
    if (!r.ok()) {
        check(r.mask.isEmpty() && r.image.isEmpty());
        return;
    }
    check(r.width == r.height && (r.width == 16 || r.width == 32 || r.width == 48));
    check(r.mask.width() == r.width && r.image.width() == r.width);
    for (const Colour c : r.mask.pixels())
        check(c == kBlack || c == kWhite);
    for (const Colour c : r.image.pixels())
        check(c <= kWhite);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));

    // Parsed once, as Open parses a file.
    const IcoFile ico(bytes);
    const bool isIcon = ico.isIconFile();
    const int count = ico.count();
    check(count >= 0 && (!isIcon || count > 0));
    checkLoad(ico.image(0));

    if (const auto lines = ico.listing()) {
        check(static_cast<int>(lines->size()) == count);
        for (int i = 0; i < static_cast<int>(lines->size()); ++i) {
            const IconDescription chosen = IconListing::describe(i, (*lines)[i]);
            checkLoad(ico.chosenImage(chosen));
        }
    }
    // Depths and sizes the listing would not have offered for these bytes.
    for (const int depth : {1, 4, 8, 24})
        checkLoad(ico.chosenImage({0, depth, 48, 48}));

    const Plane plane(16, 16, kWhite);
    if (const auto rewritten = ico.withImageReplaced(plane, plane, 256, {0, 8, 16, 16}))
        check(IcoFile(*rewritten).count() == count);
    return 0;
}
