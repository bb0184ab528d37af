#include "fileio/IcoIconSource.h"

#include "fileio/ExtractedImage.h"

IcoIconSource::IcoIconSource(QByteArray bytes) : bytes_(std::move(bytes)) {
    const ByteView in(bytes_);
    if (auto members = IconGroup::read(in, 0, IconGroup::kFileEntryBytes)) {
        members_ = std::move(*members);
        // An .ico entry names its data by offset from the file's start.
        for (GroupMember& m : members_)
            m.offset = m.reference;
    }
}

bool IcoIconSource::recognises(const QByteArray& bytes) {
    return IconGroup::read(ByteView(bytes), 0, IconGroup::kFileEntryBytes).has_value();
}

int IcoIconSource::count() const {
    return members_.empty() ? 0 : 1;
}

IconLoadResult IcoIconSource::image(int index) const {
    if (index != 0 || members_.empty()) {
        IconLoadResult result;
        result.fault = ReadFault::OutOfBounds;
        return result;
    }
    return ExtractedImage::fromGroup(ByteView(bytes_), members_);
}

std::optional<QByteArray> IcoIconSource::storedFile(int index) const {
    if (index != 0 || members_.empty())
        return std::nullopt;
    return bytes_;
}
