#pragma once

#include "platform/Plane.h"

#include <QString>

// One line of the multi-image listing: "32 x 32 ... 256 Color" with the bit
// depth the line stands for (1, 4, 8, or 24 for every "True Color" entry).
struct IconListLine {
    QString text;
    int itemData = 0;

    bool operator==(const IconListLine&) const = default;
};

// The image chosen from a multi-image file, kept from Open for the writers.
// A width of 0 means the choice was cancelled.
struct IconDescription {
    int index = 0;
    int bitDepth = 0;
    int width = 0;
    int height = 0;

    bool operator==(const IconDescription&) const = default;
};

enum class LoadStatus {
    Ok,
    // Not 16, 32 or 48 square: the caller shows the dimension message.
    BadDimensions,
    // Anything else: the caller shows the load's "unexpected error" message.
    Failed,
};

// Why a read failed, for diagnostics and tests; the user only ever sees the
// load's own message.
enum class ReadFault {
    None,
    Unreadable,  // missing, a directory, no permission
    TooLarge,    // larger than any icon file this program reads
    OutOfBounds, // a count, size or offset points outside the file
    Unsupported, // a compression or bit depth the decoder does not know
    Malformed,   // a structure that points back into itself or nests too deep
};

struct IconLoadResult {
    LoadStatus status = LoadStatus::Failed;
    ReadFault fault = ReadFault::None;
    // The image's dimensions as the file gives them (also when refused).
    int width = 0;
    int height = 0;
    // Black where opaque, white where transparent.
    Plane mask;
    // The colour (XOR) bitmap as stored.
    Plane image;

    bool ok() const { return status == LoadStatus::Ok; }
};
