#include "cli/InfoVerb.h"

#include "fileio/IconDirectory.h"
#include "fileio/IconSourceOpener.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace IconLayout;

namespace {

struct ImageFacts {
    int width = 0;
    int height = 0;
    int depth = 0;
    bool png = false;
};

// Vista and later store large images as PNG; the rest are bitmaps whose
// header height counts the mask rows too.
std::optional<ImageFacts> factsOf(const ByteView& in, qint64 offset) {
    // "\x89PNG\r\n\x1a\n", then the IHDR chunk: width, height, bit depth,
    // colour type, all big-endian.
    if (in.contains(offset, 26) && in.u32(offset) == 0x474E5089 &&
        in.u32(offset + 4) == 0x0A1A0A0D) {
        const auto be32 = [&in](qint64 at) {
            return static_cast<int>(in.u8(at) << 24 | in.u8(at + 1) << 16 | in.u8(at + 2) << 8 |
                                    in.u8(at + 3));
        };
        // Samples per pixel by colour type: grey, -, RGB, palette, grey and
        // alpha, -, RGBA.
        static const int kSamples[] = {1, 0, 3, 1, 2, 0, 4};
        const int type = in.u8(offset + 25);
        const int samples = type < 7 ? kSamples[type] : 0;
        return ImageFacts{be32(offset + 16), be32(offset + 20), in.u8(offset + 24) * samples, true};
    }
    const auto info = readInfoHeader(in, offset);
    if (!info)
        return std::nullopt;
    return ImageFacts{info->width, info->height / 2, info->bitCount, false};
}

// One tab-separated line: file, icon/index, size, depth, kind, hot spot.
// Built as bytes, not formatted: hundreds of files are listed at a time, and
// a file name may hold "%1".
QByteArray textLine(const QByteArray& file, const QString& name, int index, const ImageFacts& facts,
                    const QString& kind, const DirEntry* cursor) {
    QByteArray line = file;
    line += '\t';
    if (!name.isEmpty())
        line += name.toUtf8() + '/';
    line += QByteArray::number(index) + '\t' + QByteArray::number(facts.width) + 'x' +
            QByteArray::number(facts.height) + '\t' + QByteArray::number(facts.depth) + '\t' +
            kind.toLatin1() + '\t';
    line += cursor ? QByteArray::number(cursor->planes) + ',' + QByteArray::number(cursor->bitCount)
                   : QByteArray("-");
    line += '\n';
    return line;
}

} // namespace

int InfoVerb::run(const CommandLine& line, CliReport& report) {
    const bool json = line.has("--json");
    QJsonArray all;
    for (const QString& path : line.files) {
        const auto opened = IconSourceOpener::openFile(path);
        if (!opened.source) {
            report.failToRead(path, opened.fault);
            continue;
        }
        const QByteArray file = path.toUtf8();
        bool whole = true;
        for (int icon = 0; icon < opened.source->count(); ++icon) {
            const auto stored = opened.source->storedFile(icon);
            const auto directory = stored ? IconDirectory::read(ByteView(*stored)) : std::nullopt;
            if (!directory) {
                whole = false;
                continue;
            }
            const QString name = opened.source->name(icon);
            const bool cursor = directory->header.type == 2;
            const ByteView in(*stored);
            for (int i = 0; i < static_cast<int>(directory->entries.size()); ++i) {
                const DirEntry& entry = directory->entries[i];
                const auto facts = factsOf(in, entry.imageOffset);
                if (!facts) {
                    whole = false;
                    continue;
                }
                const QString kind = QLatin1String(cursor ? "cursor" : "icon") +
                                     QLatin1String(facts->png ? "/png" : "");
                if (json) {
                    QJsonObject o{{"file", path},
                                  {"icon", name.isEmpty() ? QJsonValue() : QJsonValue(name)},
                                  {"index", i},
                                  {"width", facts->width},
                                  {"height", facts->height},
                                  {"depth", facts->depth},
                                  {"kind", kind}};
                    o["hotspot"] = cursor ? QJsonValue(QJsonArray{entry.planes, entry.bitCount})
                                          : QJsonValue();
                    all.append(o);
                    continue;
                }
                report.write(textLine(file, name, i, *facts, kind, cursor ? &entry : nullptr));
            }
        }
        if (!whole)
            report.fail(QStringLiteral("An error occurred while loading ") + path);
    }
    if (json)
        report.write(QJsonDocument(all).toJson(QJsonDocument::Indented));
    return report.status();
}
