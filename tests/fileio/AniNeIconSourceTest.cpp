#include "ExtractFixtures.h"
#include "IcoBuilder.h"
#include "fileio/NeLibraryWriter.h"
#include "support/AniWriter.h"
#include "support/MultiIcon.h"

#include "fileio/IconSourceOpener.h"

#include <gtest/gtest.h>

namespace {

// Each frame and group is told apart by its seed; -1 stands for a fault.
std::vector<int> seedsShown(const QByteArray& bytes, const std::vector<QByteArray>& bySeed) {
    const auto opened = IconSourceOpener::open(bytes);
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
        EXPECT_EQ(seedsShown(bytes, frames), seeds) << what;
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
        EXPECT_EQ(seedsShown(bytes, shown), seeds) << what;
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

} // namespace
