#include "fileio/NeLibraryWriter.h"

#include "fileio/ByteWriter.h"
#include "fileio/IconDirectory.h"
#include "fileio/NeLayout.h"

namespace {

using namespace NeLayout;

// Moveable, pure and discardable, as resource compilers mark icons.
constexpr quint32 kResourceFlags = 0x1030;
constexpr qint64 kNeHeader = 0x40;
constexpr int kLargestShift = 15;

struct Resource {
    quint32 id;
    QByteArray data;
};

// Each icon file becomes a group (its directory with 14-byte entries naming
// image IDs) and its images become icon resources.
bool split(const std::vector<QByteArray>& icons, std::vector<Resource>& groups,
           std::vector<Resource>& images) {
    for (const QByteArray& ico : icons) {
        const ByteView in(ico);
        const auto directory = IconDirectory::read(in);
        if (!directory || directory->header.reserved != 0 || directory->header.type != 1 ||
            directory->header.count < 1 ||
            static_cast<int>(directory->entries.size()) != directory->header.count)
            return false;
        QByteArray group = ico.left(6);
        ByteWriter w(group);
        for (int i = 0; i < directory->header.count; ++i) {
            const auto& entry = directory->entries[i];
            if (entry.bytesInRes <= 0 || !in.contains(entry.imageOffset, entry.bytesInRes))
                return false;
            const auto id = static_cast<quint32>(images.size() + 1);
            group += ico.mid(IconLayout::entryOffset(i), 12);
            w.u16(id);
            images.push_back({id, ico.mid(entry.imageOffset, entry.bytesInRes)});
        }
        groups.push_back({static_cast<quint32>(groups.size() + 1), group});
    }
    return true;
}

void pad(QByteArray& out, int shift) {
    out.append(static_cast<qsizetype>((-out.size()) & ((1 << shift) - 1)), '\0');
}

void pascal(QByteArray& out, const QByteArray& text) {
    out += static_cast<char>(text.left(255).size());
    out += text.left(255);
}

std::optional<QByteArray> build(const std::vector<Resource>& groups,
                                const std::vector<Resource>& images, const QByteArray& moduleName,
                                int shift) {
    // The tables behind the NE header: resources, resident names (the
    // module's name), module references (none), imported names (the empty
    // name), entries (none), non-resident names (a description).
    QByteArray resources, resident, imported(1, '\0'), entries(2, '\0'), nonResident;
    const qint64 tableBytes =
        2 + 2 * 8 + 12 * static_cast<qint64>(images.size() + groups.size()) + 2 + 1;
    pascal(resident, moduleName);
    resident.append(3, '\0');
    pascal(nonResident, moduleName + " icon library");
    nonResident.append(3, '\0');
    const qint64 residentAt = kNeHeader + tableBytes;
    const qint64 importedAt = residentAt + resident.size();
    const qint64 entriesAt = importedAt + imported.size();
    const qint64 nonResidentAt = kNeHeader + entriesAt + entries.size();

    QByteArray data(nonResidentAt + nonResident.size(), '\0');
    pad(data, shift);
    ByteWriter table(resources);
    table.u16(static_cast<quint32>(shift));
    const quint32 most = 0xFFFF;
    for (const auto& [type, list] : {std::pair{kIcon, &images}, std::pair{kGroupIcon, &groups}}) {
        table.u16(type);
        table.u16(static_cast<quint32>(list->size()));
        table.u32(0);
        for (const Resource& r : *list) {
            const qint64 offset = data.size() >> shift;
            const qint64 units = (r.data.size() + (1 << shift) - 1) >> shift;
            if (offset > most || units > most)
                return std::nullopt;
            table.u16(static_cast<quint32>(offset));
            table.u16(static_cast<quint32>(units));
            table.u16(kResourceFlags);
            table.u16(kIntegerId | r.id);
            table.u32(0);
            data += r.data;
            pad(data, shift);
        }
    }
    table.u16(0);      // end of the types
    resources += '\0'; // and of the resource names, of which there are none

    QByteArray out(2 * kNeHeader, '\0');
    const auto put16 = [&out](qint64 at, quint32 v) {
        out[at] = static_cast<char>(v & 0xFF);
        out[at + 1] = static_cast<char>(v >> 8);
    };
    // The DOS header: no program of its own, only the way to the NE header.
    out[0] = 'M';
    out[1] = 'Z';
    put16(0x02, 2 * kNeHeader);
    put16(0x04, 1);
    put16(0x08, 4);
    put16(0x18, kNeHeader);
    put16(kNeHeaderField, kNeHeader);
    const qint64 ne = kNeHeader;
    out[ne] = 'N';
    out[ne + 1] = 'E';
    out[ne + 2] = 5;
    put16(ne + 0x04, static_cast<quint32>(entriesAt));
    put16(ne + 0x06, static_cast<quint32>(entries.size()));
    put16(ne + 0x0C, 0x8000); // a library
    put16(ne + 0x20, static_cast<quint32>(nonResident.size()));
    put16(ne + 0x22, kNeHeader); // the segment table, empty
    put16(ne + kResourceTableField, kNeHeader);
    put16(ne + 0x26, static_cast<quint32>(residentAt));
    put16(ne + 0x28, static_cast<quint32>(importedAt));
    put16(ne + 0x2A, static_cast<quint32>(importedAt));
    put16(ne + 0x2C, static_cast<quint32>(nonResidentAt));
    put16(ne + 0x32, static_cast<quint32>(shift));
    out[ne + 0x36] = 2;       // for Windows
    put16(ne + 0x3E, 0x030A); // 3.10
    out += resources + resident + imported + entries + nonResident;
    return out + data.mid(out.size());
}

} // namespace

bool NeLibraryWriter::accepts(const QByteArray& icon) {
    std::vector<Resource> groups, images;
    return split({icon}, groups, images);
}

std::optional<QByteArray> NeLibraryWriter::write(const std::vector<QByteArray>& icons,
                                                 const QByteArray& moduleName, int shift) {
    std::vector<Resource> groups, images;
    if (!split(icons, groups, images))
        return std::nullopt;
    if (shift >= 0)
        return build(groups, images, moduleName, shift);
    for (int s = kSmallestShift; s <= kLargestShift; ++s)
        if (auto bytes = build(groups, images, moduleName, s))
            return bytes;
    return std::nullopt;
}
