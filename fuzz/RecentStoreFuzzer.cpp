// Reads the recent files and the recent folder from a per-user store whose
// text is fuzzed (another program, an old version or a damaged disk may have
// written it), as start-up does, and checks what the File menu then shows:
// at most four entries, numbered in order with no gaps, each a sane path; the
// store handed over; and what shutdown writes is what the next start reads.
#include "settings/ModRecent.h"
#include "settings/ModRegistry.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void check(bool promise) {
    if (!promise)
        std::abort();
}

void checkMenu(const ModRecent& recent) {
    bool gap = false;
    for (int i = 1; i <= ModRecent::kEntries; ++i) {
        const ModRecent::Item& item = recent.MnuRecent[i];
        const bool used = !item.tag.isEmpty();
        check(!(gap && used) && item.visible == used);
        gap = !used;
        if (!used)
            continue;
        check(item.tag.size() <= 259);
        const QString name = ModRecent::FileNameOf(item.tag);
        check(item.tag.endsWith(name) && !name.contains('/') && !name.contains('\\'));
        check(item.caption == QLatin1Char('&') + QString::number(i) + QLatin1Char(' ') + name);
    }
    check(recent.MnuRecent[0].visible == !recent.paths().isEmpty());
}

// The values start-up takes are gone from the store once read.
void checkHandedOver(const QString& file) {
    const QSettings store(file, QSettings::IniFormat);
    for (int i = 1; i <= ModRecent::kEntries; ++i)
        check(!store.contains(QStringLiteral("Recent Files/%1.").arg(i)));
    check(!store.contains(QStringLiteral("Recent Folder/Folder")));
}

// Every write of the store is flushed to disk: kept in memory where there is
// a /dev/shm, the fuzzer runs ten times faster. One file per process, removed
// after each run, so nothing is left behind when libFuzzer exits.
QString storeFile() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) +
           QStringLiteral("/brevik-fuzz-%1.ini").arg(QCoreApplication::applicationPid());
}

void quiet(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

// A list value in the store ("@Variant(...)") makes Qt reserve as many
// elements as it claims, tens of gigabytes, before reading any. Outside the
// sanitizer that costs nothing: the system refuses, or grants address space
// that is never touched and freed at once, and Qt reads on without the value.
// AddressSanitizer would map shadow memory for all of it, so here a request
// above 256 MB is refused, as a smaller machine would; what the store does
// with it is still checked.
extern "C" const char* __asan_default_options() {
    return "allocator_may_return_null=1:max_allocation_size_mb=256";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Qt warns about every odd value it meets in the store; that is expected.
    [[maybe_unused]] static const QtMessageHandler previous = qInstallMessageHandler(quiet);
    // QSettings keeps a parsed store until its file's size or time changes:
    // each run's file gets a time of its own, so none is taken for the last.
    static qint64 run = 0;
    static const QString file = storeFile();
    {
        QFile out(file);
        check(out.open(QIODevice::WriteOnly));
        out.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
        out.flush();
        check(out.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000 + ++run),
                              QFileDevice::FileModificationTime));
    }
    {
        const ModRegistry registry(file);
        ModRecent recent;
        registry.LoadRecentFiles(recent);
        const QString folder = registry.LoadRecentFolder();
        checkMenu(recent);
        check(folder.isEmpty() || (folder.size() <= 259 && QDir(folder).exists()));
        checkHandedOver(file);

        // Opening a file puts it on top; one already listed in any letter
        // case moves up instead of being repeated.
        const QStringList loaded = recent.paths();
        const QString opened =
            loaded.isEmpty() ? QStringLiteral("/a.ico") : loaded.last().toUpper();
        const bool listed = loaded.contains(opened, Qt::CaseInsensitive);
        recent.AddRecent(opened);
        checkMenu(recent);
        const qsizetype grown = std::min<qsizetype>(loaded.size() + 1, ModRecent::kEntries);
        check(recent.paths().first() == opened &&
              recent.paths().size() == (listed ? loaded.size() : grown));
        recent.RemoveRecent(opened);
        checkMenu(recent);

        // Shutdown writes what the next start reads back.
        registry.SaveRecentFiles(recent);
        registry.SaveRecentFolder(folder);
        ModRecent next;
        registry.LoadRecentFiles(next);
        check(next.paths() == recent.paths());
        check(registry.LoadRecentFolder() == folder);
        checkHandedOver(file);
    }
    QFile::remove(file);
    return 0;
}
