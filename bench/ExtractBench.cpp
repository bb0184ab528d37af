// How long the extraction browser takes to read a library of 200 icons:
// opening it, counting its groups and decoding the 32 x 32 picture of every
// one. It must stay well below the time the browser takes to paint.
#include "fileio/IcoFile.h"
#include "fileio/IconSourceOpener.h"
#include "support/MultiIcon.h"
#include "support/PeLibraryBuilder.h"

#include <benchmark/benchmark.h>

namespace {

QByteArray icon(int size, int seed) {
    Plane mask(size, size), image(size, size);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            image.setPixel(x, y, rgb((x * 7 + seed) & 255, (y * 3 + seed) & 255, seed & 255));
    return IcoFile::iconBytes(mask, image, 0);
}

// A real DLL built by windres and ld: 200 groups of 16, 32 and 48 pixels.
const QByteArray& library() {
    static const QByteArray dll = [] {
        PeLibraryBuilder builder{"x86_64", {}};
        for (int i = 1; i <= 200; ++i)
            builder.icons.push_back(
                {QString::number(i), joinIcons({icon(16, i), icon(32, i), icon(48, i)})});
        return builder.build();
    }();
    return dll;
}

void BM_CountAndDecodeLibraryOf200(benchmark::State& state) {
    const QByteArray& dll = library();
    for (auto _ : state) {
        const auto opened = IconSourceOpener::open(dll);
        int shown = 0;
        for (int i = 0; i < opened.source->count(); ++i)
            shown += opened.source->image(i).ok();
        if (shown != 200)
            state.SkipWithError("not every icon decoded");
        benchmark::DoNotOptimize(shown);
    }
}
BENCHMARK(BM_CountAndDecodeLibraryOf200)->Unit(benchmark::kMillisecond);

} // namespace
