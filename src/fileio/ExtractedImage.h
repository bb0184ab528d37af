#pragma once

#include "fileio/IconFileTypes.h"
#include "fileio/IconGroup.h"

#include <vector>

// One stored icon image (BITMAPINFOHEADER, colour table, colour rows, mask
// rows, as in an .ico file or an icon resource) turned into the 32 x 32
// planes the extraction browser shows and Extract puts in the document.
class ExtractedImage {
  public:
    static constexpr int kSize = 32;

    // The member's data decoded at its own size, 1 to 256 pixels square and
    // 1, 4, 8, 24 or 32 bits or PNG (through the installed PngDecoder), then
    // stretched to 32 x 32 pixel for pixel.
    // Where a 32-bit image has alpha, alpha below 128 is transparent (mask
    // white, colour black) and the colour elsewhere is weighted by alpha, as
    // drawing the icon over the new document's black colour plane shows it.
    static IconLoadResult decode(const ByteView& bytes, const GroupMember& member);

    // The member IconGroup::pick chooses, decoded.
    static IconLoadResult fromGroup(const ByteView& bytes, const std::vector<GroupMember>& group);
};
