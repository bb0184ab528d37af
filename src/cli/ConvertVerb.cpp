#include "cli/ConvertVerb.h"

#include "cli/IconFit.h"
#include "cli/PictureReader.h"
#include "fileio/IcoFile.h"
#include "fileio/IcoIconSource.h"
#include "fileio/ModFileIO.h"
#include "fileio/ModPalette.h"
#include "platform/Raster.h"

#include <QFileInfo>

namespace {

enum class Output { Icon, Cursor, Bitmap };

std::optional<int> number(const QString& text) {
    bool ok = false;
    const int n = text.toInt(&ok);
    return ok ? std::optional<int>(n) : std::nullopt;
}

} // namespace

int ConvertVerb::run(const CommandLine& line, CliReport& report) {
    if (line.files.size() != 2)
        return report.usage(QStringLiteral("convert takes one input and one output file"));
    const QString& in = line.files[0];
    const QString& out = line.files[1];
    const QString suffix = QFileInfo(out).suffix().toLower();
    const Output kind = suffix == "cur"   ? Output::Cursor
                        : suffix == "bmp" ? Output::Bitmap
                                          : Output::Icon;
    if (suffix != "ico" && suffix != "cur" && suffix != "bmp")
        return report.usage(QStringLiteral("the output must end in .ico, .cur or .bmp"));
    const auto size = number(line.value("--size").value_or("0"));
    const auto index = number(line.value("--index").value_or("0"));
    const QStringList hot = line.value("--hotspot").value_or("0,0").split(',');
    const auto hotX = number(hot.value(0)), hotY = number(hot.value(1, "x"));
    if (!size || (*size != 0 && *size != 16 && *size != 32 && *size != 48))
        return report.usage(QStringLiteral("--size must be 16, 32 or 48"));
    if (!index || *index < 0)
        return report.usage(QStringLiteral("--index must be a number from 0"));
    if (hot.size() != 2 || !hotX || !hotY || *hotX < 0 || *hotY < 0)
        return report.usage(QStringLiteral("--hotspot must be X,Y"));

    ReadFault fault = ReadFault::None;
    const auto bytes = ModFileIO::readFile(in, &fault);
    if (!bytes) {
        report.failToRead(in, fault);
        return report.status();
    }
    std::optional<PictureReader::Planes> picture;
    QString error;
    if (IcoIconSource::recognises(*bytes)) {
        // Icons and cursors go through the editor's own reader, which also
        // refuses the sizes the editor cannot hold.
        IconLoadResult loaded = IcoFile(*bytes).image(*index);
        if (!loaded.ok()) {
            report.fail(in + QStringLiteral(": ") +
                        ModFileIO::loadMessage(loaded, IcoFile(*bytes).count() > 1));
            return report.status();
        }
        picture = PictureReader::Planes{std::move(loaded.mask), std::move(loaded.image)};
    } else if (!(picture = PictureReader::read(*bytes, error))) {
        report.fail(error.isEmpty()
                        ? in + QStringLiteral(" is not a valid icon file.")
                        : QStringLiteral("Unable to read data from ") + in + " (" + error + ")");
        return report.status();
    }

    const int side =
        *size ? *size : IconFit::nearestSize(picture->image.width(), picture->image.height());
    const IconFit::Result icon = IconFit::fit(picture->mask, picture->image, side);
    if (!icon.note.isEmpty())
        report.print(in + QStringLiteral(": ") + icon.note);
    if (kind == Output::Cursor && (*hotX >= side || *hotY >= side))
        return report.usage(QStringLiteral("the hot spot lies outside the %1 x %1 icon").arg(side));

    // As Save As, Save As Cursor and Save As Bitmap write the document.
    switch (kind) {
    case Output::Icon:
        if (!ModFileIO::writeIcon(icon.mask, icon.image, ModPalette::countColours(icon.image, true),
                                  out))
            report.fail(QStringLiteral("Unable to save the file ") + out);
        break;
    case Output::Cursor:
        if (!ModFileIO::writeCursor(icon.mask, icon.image,
                                    ModPalette::countColours(icon.image, true), *hotX, *hotY, out))
            report.fail(out + QStringLiteral(": Failed to Save Icon As Cursor."));
        break;
    case Output::Bitmap: {
        Plane PicClip(side, side, kWhite);
        drawMasked(PicClip, 0, 0, icon.mask, icon.image);
        if (!ModFileIO::writeBitmap(PicClip, ModPalette::countColours(PicClip, false), out))
            report.fail(out + QStringLiteral(": Failed to Save Icon As Bitmap."));
        break;
    }
    }
    return report.status();
}
