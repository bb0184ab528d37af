#include "fileio/NeIconSource.h"

#include "fileio/ExtractedImage.h"
#include "fileio/NeLayout.h"

#include <algorithm>

namespace {

using namespace NeLayout;

constexpr quint32 kMzSignature = 0x5A4D; // "MZ"
constexpr quint32 kNeSignature = 0x454E; // "NE"
constexpr qint64 kTypeBytes = 8;
constexpr qint64 kNameBytes = 12;
// Beyond this a shifted 16-bit offset leaves any file this program reads.
constexpr int kLargestShift = 24;

// A resource's ID in decimal, or the counted string its name points to (an
// offset from the resource table's start).
QString nameOf(const ByteView& in, qint64 table, quint32 id) {
    if (id & kIntegerId)
        return QString::number(id & ~kIntegerId);
    const qint64 at = table + id;
    if (!in.contains(at, 1) || !in.contains(at + 1, in.u8(at)))
        return QString::number(id);
    QString text;
    for (qint64 i = 0; i < in.u8(at); ++i)
        text += QChar(in.u8(at + 1 + i));
    return text;
}

} // namespace

bool NeIconSource::recognises(const QByteArray& bytes) {
    const ByteView in(bytes);
    if (!in.contains(0, 0x40) || in.u16(0) != kMzSignature)
        return false;
    const qint64 header = in.u32(kNeHeaderField);
    return in.contains(header, 2) && in.u16(header) == kNeSignature;
}

std::unique_ptr<NeIconSource> NeIconSource::open(QByteArray bytes, ReadFault& fault) {
    std::unique_ptr<NeIconSource> source(new NeIconSource(std::move(bytes)));
    fault = recognises(source->bytes_) ? source->parse() : ReadFault::Unsupported;
    if (fault != ReadFault::None)
        source.reset();
    return source;
}

ReadFault NeIconSource::parse() {
    const ByteView in(bytes_);
    const qint64 header = in.u32(kNeHeaderField);
    if (!in.contains(header, 0x40))
        return ReadFault::OutOfBounds;
    const qint64 table = header + in.u16(header + kResourceTableField);
    if (!in.contains(table, 2))
        return ReadFault::OutOfBounds;
    const int shift = in.u16(table);
    if (shift > kLargestShift)
        return ReadFault::Malformed;
    // The table runs forward to a type of 0; every step moves past what it
    // read, so the walk ends within the file.
    for (qint64 at = table + 2;;) {
        if (!in.contains(at, 2))
            return ReadFault::OutOfBounds;
        const quint32 type = in.u16(at);
        if (type == 0)
            return ReadFault::None;
        if (!in.contains(at, kTypeBytes))
            return ReadFault::OutOfBounds;
        const int names = in.u16(at + 2);
        const qint64 first = at + kTypeBytes;
        if (!in.contains(first, kNameBytes * names))
            return ReadFault::OutOfBounds;
        for (int n = 0; n < names; ++n) {
            const qint64 name = first + kNameBytes * n;
            const Span span{static_cast<qint64>(in.u16(name)) << shift,
                            static_cast<qint64>(in.u16(name + 2)) << shift};
            const quint32 id = in.u16(name + 6);
            if (type == kGroupIcon) {
                groups_.push_back(span);
                groupNames_.push_back(nameOf(in, table, id));
            } else if (type == kIcon && (id & kIntegerId))
                icons_.emplace(id & ~kIntegerId, span);
        }
        at = first + kNameBytes * names;
    }
}

int NeIconSource::count() const {
    return static_cast<int>(groups_.size());
}

IconLoadResult NeIconSource::image(int index) const {
    IconLoadResult failed;
    failed.fault = ReadFault::OutOfBounds;
    if (index < 0 || index >= count())
        return failed;
    const ByteView in(bytes_);
    auto members = IconGroup::read(in, groups_[index].offset, IconGroup::kResourceEntryBytes);
    if (!members)
        return failed;
    GroupMember chosen = (*members)[IconGroup::pick(*members)];
    const auto icon = icons_.find(chosen.reference);
    if (icon == icons_.end())
        return failed;
    chosen.offset = icon->second.offset;
    chosen.length = icon->second.length;
    return ExtractedImage::decode(in, chosen);
}

std::optional<QByteArray> NeIconSource::storedFile(int index) const {
    if (index < 0 || index >= count())
        return std::nullopt;
    const ByteView in(bytes_);
    const qint64 at = groups_[index].offset;
    auto members = IconGroup::read(in, at, IconGroup::kResourceEntryBytes);
    if (!members)
        return std::nullopt;
    for (GroupMember& m : *members) {
        const auto icon = icons_.find(m.reference);
        if (icon == icons_.end())
            return std::nullopt;
        // The table gives lengths in whole alignment units; the entry's own
        // length drops the padding, unless it claims more than is there.
        m.offset = icon->second.offset;
        m.length = std::min(m.length, icon->second.length);
    }
    return IconGroup::toFile(bytes_, at, IconGroup::kResourceEntryBytes, *members);
}

QString NeIconSource::name(int index) const {
    return index >= 0 && index < count() ? groupNames_[index] : QString();
}
