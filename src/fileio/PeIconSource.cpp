#include "fileio/PeIconSource.h"

#include "fileio/ExtractedImage.h"

namespace {

constexpr quint32 kMzSignature = 0x5A4D;     // "MZ"
constexpr quint32 kPeSignature = 0x00004550; // "PE\0\0"
constexpr quint32 kPe32 = 0x10B;
constexpr quint32 kPe32Plus = 0x20B;
constexpr int kResourceDirectoryIndex = 2;
// Windows loads no image with more sections than this; a larger count is a
// damaged or hostile file, and would make every lookup slow.
constexpr int kMostSections = 96;

constexpr quint32 kNamed = 0x80000000;
constexpr quint32 kSubdirectory = 0x80000000;
constexpr quint32 kIcon = 3;
constexpr quint32 kGroupIcon = 14;
constexpr qint64 kDirectoryBytes = 16;
constexpr qint64 kEntryBytes = 8;

// The entries of one resource directory: named ones first, then IDs.
struct Entries {
    qint64 first = 0;
    int count = 0;
};

std::optional<Entries> entriesOf(const ByteView& in, qint64 directory) {
    if (!in.contains(directory, kDirectoryBytes))
        return std::nullopt;
    const int count = in.u16(directory + 12) + in.u16(directory + 14);
    const Entries entries{directory + kDirectoryBytes, count};
    if (!in.contains(entries.first, kEntryBytes * count))
        return std::nullopt;
    return entries;
}

} // namespace

bool PeIconSource::recognises(const QByteArray& bytes) {
    const ByteView in(bytes);
    if (!in.contains(0, 0x40) || in.u16(0) != kMzSignature)
        return false;
    const qint64 header = in.u32(0x3C);
    return in.contains(header, 4) && in.u32(header) == kPeSignature;
}

std::unique_ptr<PeIconSource> PeIconSource::open(QByteArray bytes, ReadFault& fault) {
    std::unique_ptr<PeIconSource> source(new PeIconSource(std::move(bytes)));
    fault = recognises(source->bytes_) ? source->parse() : ReadFault::Unsupported;
    if (fault != ReadFault::None)
        source.reset();
    return source;
}

ReadFault PeIconSource::parse() {
    const ByteView in(bytes_);
    const qint64 coff = static_cast<qint64>(in.u32(0x3C)) + 4;
    if (!in.contains(coff, 20))
        return ReadFault::OutOfBounds;
    const int sectionCount = in.u16(coff + 2);
    const qint64 optionalSize = in.u16(coff + 16);
    const qint64 optional = coff + 20;
    if (sectionCount > kMostSections)
        return ReadFault::Malformed;
    if (!in.contains(optional, optionalSize) || optionalSize < 2)
        return ReadFault::OutOfBounds;

    // PE32+ widens four fields of the optional header, which moves the data
    // directories 16 bytes further on.
    const quint32 magic = in.u16(optional);
    if (magic != kPe32 && magic != kPe32Plus)
        return ReadFault::Unsupported;
    const qint64 countAt = optional + (magic == kPe32 ? 92 : 108);
    const qint64 resourceAt = countAt + 4 + 8 * kResourceDirectoryIndex;
    if (resourceAt + 8 > optional + optionalSize)
        return ReadFault::OutOfBounds;
    const bool hasResources = in.u32(countAt) > kResourceDirectoryIndex;

    const qint64 table = optional + optionalSize;
    if (!in.contains(table, 40LL * sectionCount))
        return ReadFault::OutOfBounds;
    for (int i = 0; i < sectionCount; ++i) {
        const qint64 at = table + 40LL * i;
        sections_.push_back({in.u32(at + 12), in.u32(at + 16), in.u32(at + 20)});
    }

    const quint32 address = in.u32(resourceAt);
    if (!hasResources || address == 0)
        return ReadFault::None;
    const qint64 root = fileOffset(address, kDirectoryBytes);
    if (root < 0)
        return ReadFault::OutOfBounds;
    return readResources(root);
}

// The tree is always type, name, language: it is walked at exactly those
// three levels, so no offset in the file can make it deeper or circular.
ReadFault PeIconSource::readResources(qint64 root) {
    const ByteView in(bytes_);
    const auto types = entriesOf(in, root);
    if (!types)
        return ReadFault::OutOfBounds;
    bool seenGroups = false, seenIcons = false;
    for (int t = 0; t < types->count; ++t) {
        const qint64 entry = types->first + kEntryBytes * t;
        const quint32 type = in.u32(entry);
        const quint32 value = in.u32(entry + 4);
        // A type listed twice counts once, as a lookup by type finds one.
        bool& seen = type == kGroupIcon ? seenGroups : seenIcons;
        if ((type != kGroupIcon && type != kIcon) || seen)
            continue;
        seen = true;
        if (!(value & kSubdirectory))
            return ReadFault::Malformed;
        const auto names = entriesOf(in, root + (value & ~kSubdirectory));
        if (!names)
            return ReadFault::OutOfBounds;
        for (int n = 0; n < names->count; ++n) {
            const qint64 nameEntry = names->first + kEntryBytes * n;
            const quint32 name = in.u32(nameEntry);
            Data data;
            if (const ReadFault fault = firstLanguage(root, in.u32(nameEntry + 4), data);
                fault != ReadFault::None)
                return fault;
            if (type == kGroupIcon) {
                groups_.push_back(data);
                groupNames_.push_back(nameOf(root, name));
            } else if (!(name & kNamed))
                icons_.emplace(name, data);
        }
    }
    return ReadFault::None;
}

ReadFault PeIconSource::firstLanguage(qint64 root, quint32 nameEntryValue, Data& data) const {
    const ByteView in(bytes_);
    if (!(nameEntryValue & kSubdirectory))
        return ReadFault::Malformed;
    const auto languages = entriesOf(in, root + (nameEntryValue & ~kSubdirectory));
    if (!languages)
        return ReadFault::OutOfBounds;
    if (languages->count == 0)
        return ReadFault::Malformed;
    const quint32 value = in.u32(languages->first + 4);
    // A third directory level where the data belongs is how a loop starts.
    if (value & kSubdirectory)
        return ReadFault::Malformed;
    const qint64 at = root + value;
    if (!in.contains(at, 16))
        return ReadFault::OutOfBounds;
    data = {in.u32(at), in.u32(at + 4)};
    return ReadFault::None;
}

QString PeIconSource::nameOf(qint64 root, quint32 name) const {
    if (!(name & kNamed))
        return QString::number(name);
    // A counted UTF-16 string; one cut short names the group by its offset.
    const ByteView in(bytes_);
    const qint64 at = root + (name & ~kNamed);
    if (!in.contains(at, 2) || !in.contains(at + 2, 2LL * in.u16(at)))
        return QString::number(name & ~kNamed);
    QString text;
    for (qint64 i = 0; i < in.u16(at); ++i)
        text += QChar(in.u16(at + 2 + 2 * i));
    return text;
}

qint64 PeIconSource::fileOffset(quint32 address, quint32 size) const {
    for (const Section& s : sections_) {
        const qint64 into = static_cast<qint64>(address) - s.address;
        if (into >= 0 && into + size <= s.size)
            return static_cast<qint64>(s.fileOffset) + into;
    }
    return -1;
}

int PeIconSource::count() const {
    return static_cast<int>(groups_.size());
}

std::optional<std::vector<GroupMember>> PeIconSource::members(int index,
                                                              qint64& groupOffset) const {
    if (index < 0 || index >= count())
        return std::nullopt;
    const Data& group = groups_[index];
    groupOffset = fileOffset(group.address, group.size);
    auto members = IconGroup::read(ByteView(bytes_), groupOffset, IconGroup::kResourceEntryBytes);
    if (groupOffset < 0 || !members)
        return std::nullopt;
    for (GroupMember& m : *members) {
        const auto icon = icons_.find(m.reference);
        if (icon == icons_.end())
            return std::nullopt;
        m.offset = fileOffset(icon->second.address, icon->second.size);
        m.length = icon->second.size;
    }
    return members;
}

std::optional<QByteArray> PeIconSource::storedFile(int index) const {
    qint64 at = -1;
    const auto found = members(index, at);
    if (!found)
        return std::nullopt;
    return IconGroup::toFile(bytes_, at, IconGroup::kResourceEntryBytes, *found);
}

QString PeIconSource::name(int index) const {
    return index >= 0 && index < count() ? groupNames_[index] : QString();
}

IconLoadResult PeIconSource::image(int index) const {
    IconLoadResult failed;
    failed.fault = ReadFault::OutOfBounds;
    if (index < 0 || index >= count())
        return failed;
    const ByteView in(bytes_);
    const Data& group = groups_[index];
    const qint64 at = fileOffset(group.address, group.size);
    auto members = IconGroup::read(in, at, IconGroup::kResourceEntryBytes);
    if (at < 0 || !members)
        return failed;
    // Only the image shown is looked up: a group may name thousands.
    GroupMember chosen = (*members)[IconGroup::pick(*members)];
    const auto icon = icons_.find(chosen.reference);
    if (icon == icons_.end())
        return failed;
    chosen.offset = fileOffset(icon->second.address, icon->second.size);
    chosen.length = icon->second.size;
    return ExtractedImage::decode(in, chosen);
}
