#include "fileio/IconSourceOpener.h"

#include "fileio/AniIconSource.h"
#include "fileio/IcoIconSource.h"
#include "fileio/ModFileIO.h"
#include "fileio/NeIconSource.h"
#include "fileio/PeIconSource.h"

IconSourceOpener::Opened IconSourceOpener::open(QByteArray bytes) {
    Opened opened;
    if (PeIconSource::recognises(bytes))
        opened.source = PeIconSource::open(std::move(bytes), opened.fault);
    else if (NeIconSource::recognises(bytes))
        opened.source = NeIconSource::open(std::move(bytes), opened.fault);
    else if (AniIconSource::recognises(bytes))
        opened.source = AniIconSource::open(std::move(bytes), opened.fault);
    else if (IcoIconSource::recognises(bytes))
        opened.source = std::make_unique<IcoIconSource>(std::move(bytes));
    else
        opened.fault = ReadFault::Unsupported;
    return opened;
}

IconSourceOpener::Opened IconSourceOpener::openFile(const QString& path) {
    ReadFault fault = ReadFault::None;
    auto bytes = ModFileIO::readLibraryFile(path, &fault);
    if (!bytes) {
        Opened opened;
        opened.fault = fault;
        return opened;
    }
    return open(std::move(*bytes));
}
