#include "fileio/MultiIconResource.h"

#include "fileio/IcoFile.h"
#include "fileio/IconDirectory.h"

using namespace IconLayout;

namespace {

constexpr int kSizes[3] = {16, 32, 48};
constexpr int kDepths[4] = {1, 4, 8, 24};

// Where a one-image file's data starts when it is laid out as usual.
constexpr qint64 kSingleImageData = kHeaderBytes + kEntryBytes;

} // namespace

int MultiIconResource::slotFor(int size, int bitCount) {
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            if (kDepths[row] == bitCount && kSizes[column] == size)
                return row * 3 + column;
    return -1;
}

int MultiIconResource::imageLength(int slot) {
    if (slot < 0 || slot >= kSlotCount)
        return 0;
    const int size = kSizes[slot % 3];
    const int depth = kDepths[slot / 3];
    return static_cast<int>(kInfoHeaderBytes + 4 * tableEntries(depth) +
                            (rowBytes(size, depth) + rowBytes(size, 1)) * size);
}

MultiIconResource::AddResult MultiIconResource::add(const QByteArray& fileBytes) {
    if (filledCount() >= kMaxFilled)
        return {AddOutcome::LimitReached};
    const IcoFile file(fileBytes);
    if (!file.isIconFile())
        return {AddOutcome::NotAnIcon};
    // The header test has already refused a count below 1 in these same
    // bytes; the outcome stays for callers that count a file read again.
    if (file.count() == 0)
        return {AddOutcome::NoImages};
    if (file.count() > 1)
        return {AddOutcome::MultiImage};

    const DirEntry& entry = file.directory()->entries.front();
    const ByteView in(fileBytes);
    const auto info = readInfoHeader(in, entry.imageOffset);
    if (!info)
        return {AddOutcome::CannotLoad};
    const int size = info->width;
    if (info->height / 2 != size || (size != 16 && size != 32 && size != 48))
        return {AddOutcome::CannotLoad};
    const int slot = slotFor(size, info->bitCount);
    if (slot < 0)
        return {AddOutcome::CannotLoad};

    QByteArray data = fileBytes.mid(kSingleImageData, imageLength(slot));
    data.append(QByteArray(imageLength(slot) - data.size(), '\0'));
    slots_[slot] = Slot{entry, data};
    return {AddOutcome::Added, slot};
}

void MultiIconResource::remove(int slot) {
    if (slot >= 0 && slot < kSlotCount)
        slots_[slot].reset();
}

bool MultiIconResource::isFilled(int slot) const {
    return slot >= 0 && slot < kSlotCount && slots_[slot].has_value();
}

int MultiIconResource::filledCount() const {
    int count = 0;
    for (const auto& slot : slots_)
        count += slot.has_value();
    return count;
}

QByteArray MultiIconResource::toBytes() const {
    IconDirectory directory{{0, 1, filledCount()}, {}};
    QByteArray data;
    qint64 offset = kHeaderBytes + kEntryBytes * filledCount();
    for (int slot = kSlotCount - 1; slot >= 0; --slot) {
        if (!slots_[slot])
            continue;
        // Each entry keeps every field of its source file but the offset;
        // its byte count stays what the source said, even where that
        // differs from the data the slot holds.
        DirEntry entry = slots_[slot]->entry;
        entry.imageOffset = static_cast<qint32>(offset);
        offset += imageLength(slot);
        directory.entries.push_back(entry);
        data.append(slots_[slot]->data);
    }
    QByteArray out;
    directory.write(out);
    return out + data;
}
