#include "settings/ModRecent.h"

#include <algorithm>

void ModRecent::AddRecent(const QString& path) {
    MnuRecent[0].visible = true;
    int found = kEntries; // when the path is new, entry 4 falls off the end
    for (int i = 1; i <= kEntries; ++i) {
        if (MnuRecent[i].tag.compare(path, Qt::CaseInsensitive) == 0) {
            found = i;
            break;
        }
    }
    for (int i = found; i > 1; --i) {
        MnuRecent[i].tag = MnuRecent[i - 1].tag;
        MnuRecent[i].caption = MnuRecent[i - 1].caption;
    }
    MnuRecent[1].tag = path;
    for (int i = 1; i <= kEntries; ++i) {
        if (!MnuRecent[i].tag.isEmpty())
            setEntry(i, MnuRecent[i].tag);
    }
}

void ModRecent::RemoveRecent(const QString& path) {
    QStringList kept;
    for (int i = 1; i <= kEntries; ++i) {
        // An entry whose tag was already cleared is dropped too, so the
        // remaining ones always close up.
        if (!MnuRecent[i].tag.isEmpty() && MnuRecent[i].tag != path)
            kept << MnuRecent[i].tag;
    }
    setPaths(kept);
}

QString ModRecent::FileNameOf(const QString& path) {
    // Paths here use "/", paths typed on Windows "\": either ends the folder.
    const qsizetype cut =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(cut + 1);
}

QStringList ModRecent::paths() const {
    QStringList result;
    for (int i = 1; i <= kEntries; ++i) {
        if (!MnuRecent[i].tag.isEmpty())
            result << MnuRecent[i].tag;
    }
    return result;
}

void ModRecent::setPaths(const QStringList& paths) {
    for (int i = 1; i <= kEntries; ++i) {
        if (i <= paths.size()) {
            setEntry(i, paths[i - 1]);
        } else {
            MnuRecent[i] = Item{};
        }
    }
    MnuRecent[0].visible = !paths.isEmpty();
}

void ModRecent::setEntry(int index, const QString& path) {
    Item& item = MnuRecent[index];
    item.tag = path;
    item.caption = QStringLiteral("&%1 %2").arg(index).arg(FileNameOf(path));
    item.visible = true;
}
