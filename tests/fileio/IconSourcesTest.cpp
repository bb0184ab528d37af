#include "ExtractFixtures.h"
#include "IcoBuilder.h"
#include "fileio/NeLibraryWriter.h"
#include "support/AniWriter.h"
#include "support/MultiIcon.h"
#include "support/PeLibraryBuilder.h"

#include "fileio/IconLayout.h"
#include "fileio/IconSourceOpener.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

// Each frame and group is told apart by its seed; -1 stands for a fault.
// Past the last icon there is none.
std::vector<int> seedsShown(const IconSourceOpener::Opened& opened,
                            const std::vector<QByteArray>& bySeed) {
    if (!opened.source)
        return {-1, static_cast<int>(opened.fault)};
    std::vector<int> seeds;
    for (int i = 0; i < opened.source->count(); ++i) {
        const IconLoadResult got = opened.source->image(i);
        int seed = -1;
        for (int s = 0; s < static_cast<int>(bySeed.size()); ++s) {
            const IconLoadResult want = shownAs(bySeed[s]);
            if (got.ok() && got.mask == want.mask && got.image == want.image)
                seed = s;
        }
        seeds.push_back(seed);
    }
    EXPECT_FALSE(opened.source->image(opened.source->count()).ok());
    return seeds;
}

TEST(AniIconSourceTest, OneIconPerStepMappedThroughTheSequence) {
    const std::vector<QByteArray> frames{patternIcon(32, 0), patternIcon(16, 1),
                                         patternIcon(48, 2)};
    const auto ani = [&frames](quint32 steps, std::optional<std::vector<quint32>> seq,
                               int frameCount = 3) {
        return AniWriter{{frames.begin(), frames.begin() + frameCount}, steps, seq}.bytes();
    };
    const int outOfBounds = static_cast<int>(ReadFault::OutOfBounds);
    const std::tuple<const char*, QByteArray, std::vector<int>> cases[] = {
        {"three steps, no sequence", ani(3, {}), {0, 1, 2}},
        {"two steps of three frames", ani(2, {}), {0, 1}},
        {"five steps of three frames", ani(5, {}), {0, 1, 2}},
        {"sequence", ani(5, std::vector<quint32>{2, 0, 2, 1, 1}), {2, 0, 2, 1, 1}},
        {"sequence longer than the steps", ani(2, std::vector<quint32>{1, 1, 0}), {1, 1}},
        {"sequence shorter than the steps", ani(4, std::vector<quint32>{2, 1}), {2, 1}},
        {"sequence naming a missing frame", ani(4, std::vector<quint32>{1, 0, 3, 0}), {1, 0}},
        {"steps 4 billion", ani(0xFFFFFFFF, {}), {0, 1, 2}},
        {"a cursor frame",
         AniWriter{{joinIcons({frames[0]}).replace(2, 1, "\x02")}, 1, {}}.bytes(),
         {0}},
        {"no frames", ani(3, {}, 0), {}},
        {"cut short", ani(3, {}).chopped(7), {-1, outOfBounds}},
        {"no header",
         AniWriter{frames, 3, {}, false}.bytes(),
         {-1, static_cast<int>(ReadFault::Malformed)}},
    };
    for (const auto& [what, bytes, seeds] : cases)
        EXPECT_EQ(seedsShown(IconSourceOpener::open(bytes), frames), seeds) << what;
}

TEST(NeIconSourceTest, GroupsInTableOrderFromShiftedOffsets) {
    const std::vector<QByteArray> shown{patternIcon(32, 0), patternIcon(32, 1), patternIcon(16, 2)};
    const std::vector<QByteArray> icons{
        joinIcons({patternIcon(16, 5), shown[0], patternIcon(32, 5, 2)}),
        joinIcons({patternIcon(48, 6, 2), patternIcon(32, 6, 2), shown[1]}), joinIcons({shown[2]})};
    const QByteArray ne = NeLibraryWriter::write(icons, "ICONS", 4).value();
    const qint64 table = NeLibraryWriter::kTableOffset;
    const auto malformed = static_cast<int>(ReadFault::Malformed);
    const auto outOfBounds = static_cast<int>(ReadFault::OutOfBounds);
    const std::tuple<const char*, QByteArray, std::vector<int>> cases[] = {
        {"shift 4", ne, {0, 1, 2}},
        {"shift 0", NeLibraryWriter::write(icons, "ICONS", 0).value(), {0, 1, 2}},
        {"shift 9", NeLibraryWriter::write(icons, "ICONS", 9).value(), {0, 1, 2}},
        {"shift 25", QByteArray(ne).replace(table, 2, le(25, 2)), {-1, malformed}},
        {"cut in the table", ne.left(table + 12), {-1, outOfBounds}},
        {"no end of table", ne.left(table + 2 + 8 + 12 * 7), {-1, outOfBounds}},
        {"image types renamed", QByteArray(ne).replace(table + 2, 2, le(0x8002, 2)), {-1, -1, -1}},
        {"first group past the end",
         QByteArray(ne).replace(table + 2 + 8 + 12 * 7 + 8, 2, le(0xFFFF, 2)),
         {-1, 1, 2}},
    };
    for (const auto& [what, bytes, seeds] : cases)
        EXPECT_EQ(seedsShown(IconSourceOpener::open(bytes), shown), seeds) << what;
}

TEST(IconSourceOpenerTest, IconFilesHoldOneIconAndAlphaHidesFaintPixels) {
    StoredImage alpha(32, 32);
    // Alpha 0, 127, 128 and 255 on white, then an AND-masked opaque white.
    const int alphas[] = {0, 127, 128, 255, 255};
    for (int x = 0; x < 5; ++x) {
        alpha.setColour(x, 0, kWhite);
        alpha.colourRows[31 * 128 + 4 * x + 3] = static_cast<char>(alphas[x]);
    }
    alpha.setTransparent(4, 0);
    const auto opened = IconSourceOpener::open(icoFile({alpha}));
    ASSERT_TRUE(opened.source);
    const IconLoadResult r = opened.source->image(0);
    const Colour masks[] = {kWhite, kWhite, kBlack, kBlack, kWhite, kWhite};
    const Colour colours[] = {kBlack, kBlack, rgb(128, 128, 128), kWhite, kWhite, kBlack};
    for (int x = 0; x < 6; ++x) {
        EXPECT_EQ(r.mask.pixel(x, 0), masks[x]) << x;
        EXPECT_EQ(r.image.pixel(x, 0), colours[x]) << x;
    }

    const std::tuple<const char*, QByteArray, int, ReadFault> files[] = {
        {"two-image icon", joinIcons({patternIcon(16, 0), patternIcon(32, 1)}), 1, ReadFault::None},
        {"cursor", IcoFile::cursorBytes(Plane(16, 16), Plane(16, 16), 2, 3, 4), 1, ReadFault::None},
        {"text", QByteArray("not an icon at all"), -1, ReadFault::Unsupported},
        {"PNG", QByteArray("\x89PNG\r\n\x1a\n", 8), -1, ReadFault::Unsupported},
    };
    for (const auto& [what, bytes, count, fault] : files) {
        const auto file = IconSourceOpener::open(bytes);
        EXPECT_EQ(file.source ? file.source->count() : -1, count) << what;
        EXPECT_EQ(file.fault, fault) << what;
    }
    EXPECT_EQ(IconSourceOpener::openFile("/nonexistent/shell32.dll").fault, ReadFault::Unreadable);
}

// Four groups, shown as windres lists them: the named one first, then IDs 2,
// 5, 7. Each group's best image is marked: "a" and "b" hold a 32 x 32 at two
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
    const std::vector<int> inOrder{0, 1, 2, 3};
    EXPECT_EQ(seedsShown(IconSourceOpener::openFile(file.fileName()), library.shown), inOrder);
    const QByteArray pe32 = PeLibraryBuilder{"i686", library.rc}.build();
    EXPECT_EQ(seedsShown(IconSourceOpener::open(pe32), library.shown), inOrder);
}

TEST(PeIconSourceTest, ACutOrCircularDirectoryGivesATypedFault) {
    const QByteArray dll = PeLibraryBuilder{"x86_64", Library().rc}.build();
    // The resource section's file offset, from its section header.
    const qint64 root = qFromLittleEndian<quint32>(dll.constData() + dll.indexOf(".rsrc") + 20);
    const auto patched = [&dll](qint64 at, qint64 value, int length) {
        return QByteArray(dll).replace(at, length, le(value, length));
    };
    // windres lists RT_ICON (3) before RT_GROUP_ICON (14) at the root.
    const qint64 groupType = root + 16 + 8;
    const std::tuple<const char*, QByteArray, ReadFault> cases[] = {
        {"cut in the root", dll.left(root + 20), ReadFault::OutOfBounds},
        {"cut in the headers", dll.left(0x90), ReadFault::OutOfBounds},
        {"root counts 65535 names", patched(root + 12, 0xFFFF, 2), ReadFault::OutOfBounds},
        {"group type points at the root", patched(groupType + 4, 0x80000000, 4),
         ReadFault::Malformed},
        {"group type is a leaf", patched(groupType + 7, 0, 1), ReadFault::Malformed},
        {"not an optional header", patched(dll.indexOf("PE\0\0") + 24, 0x30B, 2),
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
