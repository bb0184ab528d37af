#include "fileio/DibWriter.h"

#include "fileio/ByteWriter.h"
#include "fileio/IconLayout.h"
#include "fileio/ModPalette.h"
#include "fileio/PixelEncoder.h"

using namespace IconLayout;

namespace {

// The 2- and 16-entry tables are never filled, so 1- and 4-bit files are
// written with all-black tables. Kept on purpose: users compare the files
// this editor writes byte for byte with ones it wrote before, and a new
// table would change every 1- and 4-bit file.
ColourTable tableFor(int depth, const Plane& picture, bool forIcon) {
    if (depth == 8)
        return forIcon ? ModPalette::buildIconPalette(picture)
                       : ModPalette::buildBitmapPalette(picture);
    return ModPalette::blackTable(tableEntries(depth));
}

} // namespace

void DibWriter::write(QByteArray& out, const Plane& picture, int depth, bool forIcon,
                      qint32 heightField, quint32 imageSizeField) {
    ByteWriter w(out);
    w.u32(kInfoHeaderBytes);
    w.i32(picture.width());
    w.i32(heightField);
    w.u16(1);
    w.u16(static_cast<quint32>(depth));
    w.u32(0); // no compression
    w.u32(imageSizeField);
    for (int i = 0; i < 4; ++i) // resolutions, colours used, colours important
        w.u32(0);
    const ColourTable table = tableFor(depth, picture, forIcon);
    for (const Colour c : table) {
        w.u8(static_cast<quint32>(blueOf(c)));
        w.u8(static_cast<quint32>(greenOf(c)));
        w.u8(static_cast<quint32>(redOf(c)));
        w.u8(0);
    }
    PixelEncoder::encode(picture, depth, table, out);
}
