#include "IcoBuilder.h"

#include "fileio/MultiIconResource.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <array>

namespace {

using Outcome = MultiIconResource::AddOutcome;

QByteArray iconFile(int size, int depth) {
    return TestIcon(size, depth).file();
}
int sizeOf(int slot) {
    return 16 * (slot % 3 + 1);
}
int depthOf(int slot) {
    return std::array{1, 4, 8, 24}[slot / 3];
}

TEST(MultiIconResource, SlotLengthsFollowTheSizeAndDepth) {
    const int lengths[] = {176, 304, 816, 296, 744, 1640, 1384, 2216, 3752, 872, 3240, 7336};
    for (int slot = 0; slot < 12; ++slot)
        EXPECT_EQ(MultiIconResource::imageLength(slot), lengths[slot]) << slot;
}

TEST(MultiIconResource, EveryOutcomeOfAdd) {
    QByteArray cursor = iconFile(32, 4);
    cursor[2] = 2;
    QByteArray noCount = iconFile(32, 4);
    noCount[4] = 0;
    QByteArray wide = iconFile(32, 4);
    wide[6] = 0; // 256 pixels wide
    const QByteArray outside = IcoBuilder().header(1, 1).entry(32, 4, 744, 5000).bytes;
    const auto withInfo = [](qint64 width, qint64 height, int bitCount) {
        return IcoBuilder().header(1, 1).entry(32, 4, 744, 22).info(width, height, bitCount).bytes;
    };
    const std::tuple<const char*, QByteArray, Outcome, int> cases[] = {
        {"16 x 16 1 bit", iconFile(16, 1), Outcome::Added, 0},
        {"48 x 48 8 bit", iconFile(48, 8), Outcome::Added, 8},
        {"32 x 32 24 bit", iconFile(32, 24), Outcome::Added, 10},
        {"header only", withInfo(48, 96, 24), Outcome::Added, 11},
        {"odd height halves down", withInfo(16, 33, 4), Outcome::Added, 3},
        {"empty", QByteArray(), Outcome::NotAnIcon, -1},
        {"cursor", cursor, Outcome::NotAnIcon, -1},
        // The header test refuses a count of 0 before the count is read.
        {"no images", noCount, Outcome::NotAnIcon, -1},
        {"width 0", wide, Outcome::NotAnIcon, -1},
        {"two images", icoFile({StoredImage(16, 4), StoredImage(32, 8)}), Outcome::MultiImage, -1},
        {"info header outside", outside, Outcome::CannotLoad, -1},
        {"24 x 24", withInfo(24, 48, 4), Outcome::CannotLoad, -1},
        {"32 x 16", withInfo(32, 32, 4), Outcome::CannotLoad, -1},
        {"negative height", withInfo(32, -64, 4), Outcome::CannotLoad, -1},
        {"32 bits", withInfo(32, 64, 32), Outcome::CannotLoad, -1},
        {"16 bits", withInfo(32, 64, 16), Outcome::CannotLoad, -1},
    };
    for (const auto& [name, bytes, outcome, slot] : cases) {
        MultiIconResource resource;
        const auto result = resource.add(bytes);
        EXPECT_EQ(result.outcome, outcome) << name;
        EXPECT_EQ(result.slot, slot) << name;
        EXPECT_EQ(resource.filledCount(), slot >= 0 ? 1 : 0) << name;
        EXPECT_EQ(resource.isFilled(slot), slot >= 0) << name;
    }
}

TEST(MultiIconResource, TenFilledRefuseEvenAReplacementUntilOneIsRemoved) {
    MultiIconResource resource;
    for (int slot = 0; slot < 10; ++slot)
        ASSERT_EQ(resource.add(iconFile(sizeOf(slot), depthOf(slot))).slot, slot);
    for (int slot : {0, 10})
        EXPECT_EQ(resource.add(iconFile(sizeOf(slot), depthOf(slot))).outcome,
                  Outcome::LimitReached);
    EXPECT_EQ(resource.filledCount(), 10);
    resource.remove(3);
    EXPECT_FALSE(resource.isFilled(3));
    EXPECT_EQ(resource.add(iconFile(32, 24)).slot, 10);
    EXPECT_EQ(resource.filledCount(), 10);
}

TEST(MultiIconResource, ASecondIconOfASlotReplacesTheFirst) {
    TestIcon second(32, 4);
    second.stored.setIndex(1, 1, 9);
    MultiIconResource resource;
    EXPECT_EQ(resource.add(iconFile(32, 4)).slot, 4);
    EXPECT_EQ(resource.add(second.file()).slot, 4);
    EXPECT_EQ(resource.filledCount(), 1);
    const QByteArray file = second.file();
    EXPECT_EQ(resource.toBytes(),
              IcoBuilder().header(1, 1).bytes + file.mid(6, 12) + le(22, 4) + file.mid(22));
}

// Data is read from byte 22 at the slot's length whatever the entry says:
// from the wrong place when the image lies elsewhere, and with zeros for
// what lies past the end of a short file.
TEST(MultiIconResource, DataIsCopiedFromByte22AtTheSlotsLength) {
    const QByteArray image = TestIcon(32, 4).stored.data();
    const QByteArray elsewhere =
        IcoBuilder().header(1, 1).entry(32, 4, 744, 30).bytes + "junk1234" + image;
    const QByteArray mono = iconFile(32, 1);
    const std::tuple<QByteArray, QByteArray> cases[] = {
        {elsewhere, elsewhere.mid(22, 744)},
        {mono.chopped(10), mono.mid(22, 294) + QByteArray(10, '\0')},
    };
    for (const auto& [source, data] : cases) {
        MultiIconResource resource;
        ASSERT_EQ(resource.add(source).outcome, Outcome::Added);
        EXPECT_EQ(resource.toBytes().mid(22), data);
    }
}

// The entry comes from byte 6 as it was, its offset patched; the data from
// byte 22 at the slot's length. The 24-bit source claims a wrong length,
// which is kept.
TEST(MultiIconResource, TwoSlotsMakeTheFileByteForByte) {
    QByteArray trueColour = iconFile(16, 24), mono = iconFile(32, 1);
    trueColour.replace(14, 4, le(1234, 4));
    trueColour[8] = 7; // a colour count where none belongs
    MultiIconResource resource;
    EXPECT_EQ(resource.add(mono).slot, 1);
    EXPECT_EQ(resource.add(trueColour).slot, 9);
    const QByteArray expected = IcoBuilder().header(1, 2).bytes + trueColour.mid(6, 12) +
                                le(38, 4) + mono.mid(6, 12) + le(910, 4) + trueColour.mid(22) +
                                mono.mid(22);
    EXPECT_EQ(resource.toBytes(), expected);
    EXPECT_EQ(expected.size(), 910 + 304);
}

// icotool lists what went in, largest slot first.
TEST(MultiIconResource, IcotoolListsEveryImageOfTheFile) {
    MultiIconResource resource;
    for (int slot : {0, 4, 8, 11})
        ASSERT_EQ(resource.add(iconFile(sizeOf(slot), depthOf(slot))).slot, slot);
    QTemporaryDir dir;
    QFile file(dir.filePath("multi.ico"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(resource.toBytes());
    file.close();
    QProcess icotool;
    icotool.start("icotool", {"-l", file.fileName()});
    ASSERT_TRUE(icotool.waitForFinished(30000)) << "run scripts/install-deps.sh";
    EXPECT_EQ(
        QString(icotool.readAllStandardOutput()).trimmed().split('\n'),
        QStringList({"--icon --index=1 --width=48 --height=48 --bit-depth=24 --palette-size=0",
                     "--icon --index=2 --width=48 --height=48 --bit-depth=8 --palette-size=256",
                     "--icon --index=3 --width=32 --height=32 --bit-depth=4 --palette-size=16",
                     "--icon --index=4 --width=16 --height=16 --bit-depth=1 --palette-size=2"}));
    EXPECT_EQ(icotool.exitCode(), 0) << icotool.readAllStandardError().toStdString();
}

} // namespace
