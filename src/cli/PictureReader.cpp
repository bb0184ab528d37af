#include "cli/PictureReader.h"

#include <QCoreApplication>
#include <QLibrary>

#include <vector>

namespace {

using ReadPicture = bool (*)(const QByteArray&, int&, int&, std::vector<quint32>&);

// Beside the program in the build tree; in its library folder once
// installed.
ReadPicture loadModule(QString& error) {
    static QLibrary module;
    static ReadPicture read = nullptr;
    if (read)
        return read;
    const QString here = QCoreApplication::applicationDirPath();
    for (const QString& folder : {here, here + QStringLiteral("/" BREVIK_PICTURES_DIR)}) {
        module.setFileName(folder + QStringLiteral("/brevik-cli-pictures"));
        if (module.load()) {
            read = reinterpret_cast<ReadPicture>(module.resolve("brevikReadPicture"));
            if (read) {
                error.clear();
                return read;
            }
        }
        error = module.errorString();
    }
    return nullptr;
}

} // namespace

std::optional<PictureReader::Planes> PictureReader::read(const QByteArray& bytes, QString& error) {
    const ReadPicture readPicture = loadModule(error);
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
