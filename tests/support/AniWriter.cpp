#include "AniWriter.h"

#include "fileio/ByteWriter.h"

namespace {

QByteArray chunk(const char* id, const QByteArray& body) {
    QByteArray out(id, 4);
    ByteWriter(out).u32(static_cast<quint32>(body.size()));
    out += body;
    if (body.size() % 2)
        out += '\0';
    return out;
}

} // namespace

QByteArray AniWriter::bytes() const {
    QByteArray body("ACON");
    if (withHeader) {
        QByteArray anih;
        ByteWriter w(anih);
        // cbSize, frames, steps, width, height, bit count, planes, rate, flags
        for (quint32 v : {36u, static_cast<quint32>(frames.size()), steps, 0u, 0u, 0u, 1u, 10u,
                          sequence ? 3u : 1u})
            w.u32(v);
        body += chunk("anih", anih);
    }
    if (sequence) {
        QByteArray seq;
        for (quint32 frame : *sequence)
            ByteWriter(seq).u32(frame);
        body += chunk("seq ", seq);
    }
    QByteArray list("fram");
    for (const QByteArray& frame : frames)
        list += chunk("icon", frame);
    body += chunk("LIST", list);
    return chunk("RIFF", body);
}
