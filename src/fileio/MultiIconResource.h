#pragma once

#include "fileio/IconLayout.h"

#include <QByteArray>
#include <array>
#include <optional>

// The twelve slots of the multi icon builder, one per pairing of size (16,
// 32, 48) and depth (1, 4, 8, 24 bits): slot = depth row x 3 + size column.
// Each filled slot holds the directory entry and the image data of a
// one-image icon file, copied byte for byte, and toBytes() joins them into
// one multi-image icon. Pure: bytes in, bytes out, no disk and no dialogs.
class MultiIconResource {
  public:
    static constexpr int kSlotCount = 12;
    static constexpr int kMaxFilled = 10;

    enum class AddOutcome { Added, LimitReached, NotAnIcon, NoImages, MultiImage, CannotLoad };
    struct AddResult {
        AddOutcome outcome;
        int slot = -1;
    };

    // Fills the slot the icon file's size and depth pick, replacing what it
    // held. Ten filled slots refuse every add, even one that would only
    // replace: two slots can never be used with the other ten, and that
    // limit is intended. The file must pass the icon header test, hold one
    // image, and its BITMAPINFOHEADER must say 16, 32 or 48 square at 1, 4,
    // 8 or 24 bits. The entry is copied from byte 6 and the slot's fixed
    // length of data from byte 22, directly behind the one entry, whatever
    // the entry's offset and length say: a file laid out otherwise is
    // accepted and copied from the wrong place on purpose, as is one whose
    // data is shorter than the slot's. What lies past the end of the file
    // reads as zero bytes.
    AddResult add(const QByteArray& fileBytes);
    void remove(int slot);
    bool isFilled(int slot) const;
    int filledCount() const;

    // The fixed image data length of a slot: BITMAPINFOHEADER, the full
    // colour table, colour rows and mask rows. 0 outside 0..11.
    static int imageLength(int slot);
    // The slot for a size and depth, or -1 when there is none.
    static int slotFor(int size, int bitCount);

    // The multi-image icon file: header, the filled slots' entries in
    // descending slot order with the image offsets patched, then their data
    // in the same order.
    QByteArray toBytes() const;

  private:
    struct Slot {
        IconLayout::DirEntry entry;
        QByteArray data;
    };
    std::array<std::optional<Slot>, kSlotCount> slots_;
};
