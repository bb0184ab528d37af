#include "NeWriter.h"

#include "fileio/ByteWriter.h"

namespace {

struct Resource {
    int id;
    QByteArray data;
};

void pad(QByteArray& out, int shift) {
    while (out.size() % (1 << shift))
        out += '\0';
}

} // namespace

QByteArray NeWriter::bytes() const {
    // Each .ico becomes a group (14-byte entries naming image IDs) and its
    // images become icon resources.
    std::vector<Resource> groups, images;
    for (const QByteArray& ico : icons) {
        const int count = static_cast<quint8>(ico[4]) | static_cast<quint8>(ico[5]) << 8;
        QByteArray group = ico.left(6);
        for (int i = 0; i < count; ++i) {
            const QByteArray entry = ico.mid(6 + 16 * i, 16);
            const auto field = [&entry](int at) {
                return static_cast<quint32>(static_cast<quint8>(entry[at])) |
                       static_cast<quint32>(static_cast<quint8>(entry[at + 1])) << 8 |
                       static_cast<quint32>(static_cast<quint8>(entry[at + 2])) << 16 |
                       static_cast<quint32>(static_cast<quint8>(entry[at + 3])) << 24;
            };
            const int id = static_cast<int>(images.size()) + 1;
            group += entry.left(12);
            ByteWriter(group).u16(static_cast<quint32>(id));
            images.push_back({id, ico.mid(field(12), field(8))});
        }
        groups.push_back({static_cast<int>(groups.size()) + 1, group});
    }

    // An MZ stub pointing at the NE header right behind it.
    QByteArray out(0x80, '\0');
    out[0] = 'M';
    out[1] = 'Z';
    out[0x3C] = 0x40;
    out[0x40] = 'N';
    out[0x41] = 'E';
    out[0x40 + 0x24] = static_cast<char>(kTableOffset - 0x40);

    // The table: shift, icon type, group type, end; data follows aligned.
    const qint64 tableBytes =
        2 + 2 * 8 + 12 * static_cast<qint64>(images.size() + groups.size()) + 2;
    QByteArray data(kTableOffset + tableBytes, '\0');
    pad(data, shift);
    QByteArray table;
    ByteWriter w(table);
    w.u16(static_cast<quint32>(shift));
    for (const auto& [type, list] : {std::pair{0x8003u, &images}, std::pair{0x800Eu, &groups}}) {
        w.u16(type);
        w.u16(static_cast<quint32>(list->size()));
        w.u32(0);
        for (const Resource& r : *list) {
            const auto units = [this](qint64 n) { return static_cast<quint32>(n >> shift); };
            w.u16(units(data.size()));
            w.u16(units(r.data.size() + (1 << shift) - 1));
            w.u16(0x30);
            w.u16(0x8000u | static_cast<quint32>(r.id));
            w.u16(0);
            w.u16(0);
            data += r.data;
            pad(data, shift);
        }
    }
    w.u16(0);
    return out + table + data.mid(kTableOffset + tableBytes);
}
