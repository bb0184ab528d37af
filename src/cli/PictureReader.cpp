#include "cli/PictureReader.h"

#include <QCoreApplication>
#include <QLibrary>

#include <vector>

namespace {

using ReadPicture = bool (*)(const QByteArray&, int&, int&, std::vector<quint32>&);
using GetPngDecoder = const PngDecoder* (*)();

struct Module {
    ReadPicture read = nullptr;
    GetPngDecoder pngDecoder = nullptr;
};

// Beside the program in the build tree; in its library folder once
// installed. Loaded once, on first need.
const Module& loadModule(QString& error) {
    static QLibrary library;
    static Module module;
    if (module.read)
        return module;
    const QString here = QCoreApplication::applicationDirPath();
    for (const QString& folder : {here, here + QStringLiteral("/" BREVIK_PICTURES_DIR)}) {
        library.setFileName(folder + QStringLiteral("/brevik-cli-pictures"));
        if (library.load()) {
            module.read = reinterpret_cast<ReadPicture>(library.resolve("brevikReadPicture"));
            module.pngDecoder =
                reinterpret_cast<GetPngDecoder>(library.resolve("brevikPngDecoder"));
            if (module.read && module.pngDecoder) {
                error.clear();
                return module;
            }
            module = {};
        }
        error = library.errorString();
    }
    return module;
}

} // namespace

std::optional<PictureReader::Planes> PictureReader::read(const QByteArray& bytes, QString& error) {
    const ReadPicture readPicture = loadModule(error).read;
    int width = 0, height = 0;
    std::vector<quint32> argb;
    if (!readPicture || !readPicture(bytes, width, height, argb))
        return std::nullopt;
    Planes p{Plane(width, height), Plane(width, height)};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const quint32 pixel = argb[static_cast<std::size_t>(y) * width + x];
            const bool opaque = pixel >> 24 >= 128;
            p.mask.setPixel(x, y, opaque ? kBlack : kWhite);
            // ARGB holds red in bits 16-23, the planes in bits 0-7.
            p.image.setPixel(
                x, y, opaque ? rgb(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF) : kBlack);
        }
    return p;
}

std::optional<Plane> PictureReader::LazyPngDecoder::decode(const QByteArray& png,
                                                           int largestSide) const {
    QString error;
    const Module& module = loadModule(error);
    return module.pngDecoder ? module.pngDecoder()->decode(png, largestSide) : std::nullopt;
}
