#include "fileio/AniIconSource.h"

#include "fileio/ByteView.h"
#include "fileio/IcoIconSource.h"

#include <algorithm>
#include <climits>

namespace {

constexpr quint32 fourCc(const char (&id)[5]) {
    return static_cast<quint32>(id[0]) | static_cast<quint32>(id[1]) << 8 |
           static_cast<quint32>(id[2]) << 16 | static_cast<quint32>(id[3]) << 24;
}

constexpr qint64 kChunkHeader = 8;
constexpr qint64 kAnihBytes = 36;

// The chunk at offset, checked to end by `end`; nullopt when it does not.
std::optional<qint64> chunkLength(const ByteView& in, qint64 offset, qint64 end) {
    const qint64 length = in.u32(offset + 4);
    if (offset + kChunkHeader + length > end)
        return std::nullopt;
    return length;
}

} // namespace

bool AniIconSource::recognises(const QByteArray& bytes) {
    const ByteView in(bytes);
    return in.contains(0, 12) && in.u32(0) == fourCc("RIFF") && in.u32(8) == fourCc("ACON");
}

std::unique_ptr<AniIconSource> AniIconSource::open(QByteArray bytes, ReadFault& fault) {
    std::unique_ptr<AniIconSource> source(new AniIconSource(std::move(bytes)));
    fault = recognises(source->bytes_) ? source->parse() : ReadFault::Unsupported;
    if (fault != ReadFault::None)
        source.reset();
    return source;
}

ReadFault AniIconSource::parse() {
    const ByteView in(bytes_);
    const qint64 end = 8 + static_cast<qint64>(in.u32(4));
    if (end > in.size())
        return ReadFault::OutOfBounds;
    qint64 steps = -1;
    // Every chunk moves the walk on by at least its 8-byte header.
    for (qint64 at = 12; at + kChunkHeader <= end;) {
        const auto length = chunkLength(in, at, end);
        if (!length)
            return ReadFault::OutOfBounds;
        const qint64 body = at + kChunkHeader;
        const quint32 id = in.u32(at);
        if (id == fourCc("anih")) {
            if (*length < kAnihBytes)
                return ReadFault::OutOfBounds;
            steps = in.u32(body + 8);
        } else if (id == fourCc("seq ")) {
            hasSequence_ = true;
            sequence_.clear();
            for (qint64 i = 0; i + 4 <= *length; i += 4)
                sequence_.push_back(in.u32(body + i));
        } else if (id == fourCc("LIST") && *length >= 4 && in.u32(body) == fourCc("fram")) {
            if (const ReadFault fault = readFrames(body + 4, body + *length);
                fault != ReadFault::None)
                return fault;
        }
        // Chunks of odd length are padded to an even offset.
        at = body + *length + (*length & 1);
    }
    if (steps < 0)
        return ReadFault::Malformed;

    const qint64 listed = hasSequence_ ? static_cast<qint64>(sequence_.size()) : steps;
    const qint64 last = std::min({steps, listed, static_cast<qint64>(INT_MAX)});
    while (count_ < last && frameOf(count_) >= 0)
        ++count_;
    return ReadFault::None;
}

ReadFault AniIconSource::readFrames(qint64 offset, qint64 end) {
    const ByteView in(bytes_);
    for (qint64 at = offset; at + kChunkHeader <= end;) {
        const auto length = chunkLength(in, at, end);
        if (!length)
            return ReadFault::OutOfBounds;
        if (in.u32(at) == fourCc("icon"))
            frames_.push_back({at + kChunkHeader, *length});
        at += kChunkHeader + *length + (*length & 1);
    }
    return ReadFault::None;
}

qint64 AniIconSource::frameOf(qint64 step) const {
    const qint64 frame = hasSequence_ ? sequence_[step] : step;
    return frame < static_cast<qint64>(frames_.size()) ? frame : -1;
}

int AniIconSource::count() const {
    return count_;
}

IconLoadResult AniIconSource::image(int index) const {
    if (index < 0 || index >= count_) {
        IconLoadResult failed;
        failed.fault = ReadFault::OutOfBounds;
        return failed;
    }
    // Each frame is a whole icon or cursor file of its own.
    const Span& frame = frames_[frameOf(index)];
    return IcoIconSource(bytes_.mid(frame.offset, frame.length)).image(0);
}

std::optional<QByteArray> AniIconSource::storedFile(int index) const {
    if (index < 0 || index >= count_)
        return std::nullopt;
    const Span& frame = frames_[frameOf(index)];
    return bytes_.mid(frame.offset, frame.length);
}

QString AniIconSource::name(int index) const {
    return QString::number(index);
}
