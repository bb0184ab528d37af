#include "ExtractFixtures.h"
#include "support/MultiIcon.h"
#include "support/PeLibraryBuilder.h"

#include "fileio/IconLayout.h"
#include "fileio/IconSourceOpener.h"
#include "fileio/PeIconSource.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

// Four groups as windres lists them: the named one first, then IDs 2, 5, 7.
// Each group's best image is marked: "a" and "b" hold a 32 x 32 at two
// depths (the 24-bit one wins), "c" holds 16 and 48 only (48 wins the tie,
// shrunk), "d" holds one 16 x 16 (grown).
struct Library {
    QByteArray a32 = patternIcon(32, 1), b32 = patternIcon(32, 2), c48 = patternIcon(48, 3),
               d16 = patternIcon(16, 4);
    std::vector<std::pair<QString, QByteArray>> rc{
        {"7", joinIcons({d16})},
        {"5", joinIcons({patternIcon(16, 9), patternIcon(32, 9, 2), b32, patternIcon(48, 9)})},
        {"ICONS", joinIcons({patternIcon(48, 8), a32, patternIcon(32, 8, 2)})},
        {"2", joinIcons({patternIcon(16, 7), c48})},
    };
    // Directory order: named, then 2, 5, 7.
    std::vector<QByteArray> shown{a32, c48, b32, d16};
};

// The 64-bit library is opened from disk, padded past the largest icon file
// with zeros after its last section, as an installer's payload would be.
TEST(PeIconSourceTest, EveryGroupOfARealLibraryShowsItsBestImageInDirectoryOrder) {
    const Library library;
    QTemporaryDir folder;
    QFile file(folder.filePath("big.dll"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(PeLibraryBuilder{"x86_64", library.rc}.build());
    ASSERT_TRUE(file.resize(IconLayout::kMaxFileBytes + 4096));
    file.close();
    for (const char* target : {"x86_64", "i686"}) {
        const auto opened =
            target == std::string("i686")
                ? IconSourceOpener::open(PeLibraryBuilder{target, library.rc}.build())
                : IconSourceOpener::openFile(file.fileName());
        ASSERT_TRUE(opened.source) << target;
        ASSERT_EQ(opened.source->count(), 4) << target;
        for (int i = 0; i < 4; ++i) {
            const IconLoadResult got = opened.source->image(i);
            const IconLoadResult want = shownAs(library.shown[i]);
            ASSERT_TRUE(got.ok()) << target << " group " << i;
            EXPECT_EQ(got.mask, want.mask) << target << " group " << i;
            EXPECT_EQ(got.image, want.image) << target << " group " << i;
        }
        EXPECT_FALSE(opened.source->image(4).ok());
    }
}

TEST(PeIconSourceTest, ACutOrCircularDirectoryGivesATypedFault) {
    const QByteArray dll = PeLibraryBuilder{"x86_64", Library().rc}.build();
    // The resource section's file offset, from its section header.
    const qint64 root = qFromLittleEndian<quint32>(dll.constData() + dll.indexOf(".rsrc") + 20);
    const auto patched = [&dll](qint64 at, QByteArray with) {
        return QByteArray(dll).replace(at, with.size(), with);
    };
    // windres lists RT_ICON (3) before RT_GROUP_ICON (14) at the root.
    const qint64 groupType = root + 16 + 8;
    const std::tuple<const char*, QByteArray, ReadFault> cases[] = {
        {"cut in the root", dll.left(root + 20), ReadFault::OutOfBounds},
        {"cut in the headers", dll.left(0x90), ReadFault::OutOfBounds},
        {"root counts 65535 names", patched(root + 12, QByteArray("\xFF\xFF", 2)),
         ReadFault::OutOfBounds},
        {"group type points at the root", patched(groupType + 4, QByteArray("\x00\x00\x00\x80", 4)),
         ReadFault::Malformed},
        {"group type is a leaf", patched(groupType + 7, QByteArray("\x00", 1)),
         ReadFault::Malformed},
        {"not an optional header", patched(dll.indexOf("PE\0\0") + 24, QByteArray("\x0B\x03", 2)),
         ReadFault::Unsupported},
    };
    for (const auto& [what, bytes, fault] : cases) {
        const auto opened = IconSourceOpener::open(bytes);
        EXPECT_EQ(opened.source, nullptr) << what;
        EXPECT_EQ(opened.fault, fault) << what;
    }
    // Every cut of the file parses to a fault or to groups that decode or fail.
    for (qint64 length = 0; length < dll.size(); length += 13) {
        const auto opened = IconSourceOpener::open(dll.left(length));
        if (!opened.source)
            continue;
        for (int i = 0; i < opened.source->count(); ++i)
            EXPECT_EQ(opened.source->image(i).mask.isEmpty(), !opened.source->image(i).ok());
    }
}

} // namespace
