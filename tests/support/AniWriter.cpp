#include "AniWriter.h"

#include "fileio/ByteWriter.h"

namespace {

QByteArray chunk(const char* id, const QByteArray& body) {
    QByteArray out(id, 4);
    ByteWriter(out).u32(static_cast<quint32>(body.size()));
    return out + body + QByteArray(body.size() % 2, '\0');
}

QByteArray words(const std::vector<quint32>& values) {
    QByteArray out;
    for (quint32 v : values)
        ByteWriter(out).u32(v);
    return out;
}

} // namespace

QByteArray AniWriter::bytes() const {
    QByteArray body("ACON"), list("fram");
    // cbSize, frames, steps, width, height, bit count, planes, rate, flags
    const auto count = static_cast<quint32>(frames.size());
    if (withHeader)
        body += chunk("anih", words({36, count, steps, 0, 0, 0, 1, 10, sequence ? 3u : 1u}));
    if (sequence)
        body += chunk("seq ", words(*sequence));
    for (const QByteArray& frame : frames)
        list += chunk("icon", frame);
    return chunk("RIFF", body + chunk("LIST", list));
}
