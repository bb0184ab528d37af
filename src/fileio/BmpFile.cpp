#include "fileio/BmpFile.h"

#include "fileio/ByteWriter.h"
#include "fileio/DibWriter.h"
#include "fileio/IconLayout.h"
#include "fileio/ModPalette.h"

using namespace IconLayout;

namespace {

constexpr qint64 kFileHeaderBytes = 14;

} // namespace

QByteArray BmpFile::bytes(const Plane& picture, int colourCount) {
    QByteArray out;
    if (picture.isEmpty())
        return out;
    const int depth = ModPalette::bitDepthFor(colourCount);
    const qint64 pixelOffset = kFileHeaderBytes + kInfoHeaderBytes + 4 * tableEntries(depth);
    const qint64 imageSize = rowBytes(picture.width(), depth) * picture.height();
    ByteWriter w(out);
    w.u8('B');
    w.u8('M');
    w.u32(static_cast<quint32>(pixelOffset + imageSize));
    w.u16(0);
    w.u16(0);
    w.u32(static_cast<quint32>(pixelOffset));
    DibWriter::write(out, picture, depth, false, picture.height(), static_cast<quint32>(imageSize));
    return out;
}
