#include "fileio/IconGroup.h"

#include "fileio/ByteWriter.h"
#include "fileio/IconLayout.h"

#include <cstdlib>

namespace {

constexpr int kShownSize = 32;

// An entry's width or height of 0 stands for 256.
int side(int stored) {
    return stored == 0 ? 256 : stored;
}

// Smaller is better: distance from 32 first, then larger before smaller,
// then higher depth first.
bool better(const GroupMember& a, const GroupMember& b) {
    const int da = std::abs(a.width - kShownSize) + std::abs(a.height - kShownSize);
    const int db = std::abs(b.width - kShownSize) + std::abs(b.height - kShownSize);
    if (da != db)
        return da < db;
    if (a.width != b.width)
        return a.width > b.width;
    return a.bitCount > b.bitCount;
}

} // namespace

std::optional<std::vector<GroupMember>> IconGroup::read(const ByteView& bytes, qint64 offset,
                                                        int entryBytes) {
    if (!bytes.contains(offset, 6))
        return std::nullopt;
    const int type = bytes.u16(offset + 2);
    if (bytes.u16(offset) != 0 || (type != 1 && type != 2))
        return std::nullopt;
    const int count = bytes.u16(offset + 4);
    std::vector<GroupMember> members;
    // The count is only a ceiling: entries stop where the bytes do.
    for (int i = 0; i < count; ++i) {
        const qint64 at = offset + 6 + static_cast<qint64>(entryBytes) * i;
        if (!bytes.contains(at, entryBytes))
            break;
        GroupMember m;
        m.width = side(bytes.u8(at));
        m.height = side(bytes.u8(at + 1));
        // A cursor keeps its hot spot where an icon keeps planes and depth.
        m.bitCount = type == 1 ? bytes.u16(at + 6) : 0;
        m.length = bytes.u32(at + 8);
        m.reference = entryBytes == kFileEntryBytes ? bytes.u32(at + 12) : bytes.u16(at + 12);
        members.push_back(m);
    }
    if (members.empty())
        return std::nullopt;
    return members;
}

int IconGroup::pick(const std::vector<GroupMember>& members) {
    int best = -1;
    for (int i = 0; i < static_cast<int>(members.size()); ++i)
        if (best < 0 || better(members[i], members[best]))
            best = i;
    return best;
}

std::optional<QByteArray> IconGroup::toFile(const QByteArray& bytes, qint64 offset, int entryBytes,
                                            const std::vector<GroupMember>& members) {
    const ByteView in(bytes);
    const qint64 count = static_cast<qint64>(members.size());
    if (!in.contains(offset, 6 + entryBytes * count))
        return std::nullopt;
    QByteArray out = bytes.mid(offset, 4);
    ByteWriter w(out);
    w.u16(static_cast<quint32>(count));
    qint64 imageAt = 6 + kFileEntryBytes * count;
    for (qint64 i = 0; i < count; ++i) {
        const GroupMember& m = members[i];
        if (!in.contains(m.offset, m.length))
            return std::nullopt;
        out += bytes.mid(offset + 6 + entryBytes * i, 8);
        w.u32(static_cast<quint32>(m.length));
        w.u32(static_cast<quint32>(imageAt));
        imageAt += m.length;
        // A group may name one large image thousands of times; no icon file
        // this program reads is larger than this.
        if (imageAt > IconLayout::kMaxFileBytes)
            return std::nullopt;
    }
    for (const GroupMember& m : members)
        out += bytes.mid(m.offset, m.length);
    return out;
}
