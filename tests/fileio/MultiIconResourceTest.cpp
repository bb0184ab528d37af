#include "IcoBuilder.h"
#include "support/MultiIcon.h"

#include "fileio/MultiIconResource.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Outcome = MultiIconResource::AddOutcome;

// A one-image icon of the slot's size and depth.
QByteArray iconFile(int slot) {
    return TestIcon(16 * (slot % 3 + 1), std::array{1, 4, 8, 24}[slot / 3]).file();
}

TEST(MultiIconResource, EveryOutcomeOfAdd) {
    QByteArray cursor = iconFile(4), noCount = iconFile(4);
    cursor[2] = 2;
    noCount[4] = 0; // refused by the header test before it is counted
    const auto withInfo = [](qint64 width, qint64 height, int bitCount, qint64 offset = 22) {
        IcoBuilder file;
        return file.header(1, 1).entry(32, 4, 744, offset).info(width, height, bitCount).bytes;
    };
    const std::tuple<QByteArray, Outcome, int> cases[] = {
        {iconFile(0), Outcome::Added, 0},
        {withInfo(48, 96, 24), Outcome::Added, 11},
        {withInfo(16, 33, 4), Outcome::Added, 3}, // the height halves down
        {QByteArray(), Outcome::NotAnIcon, -1},
        {cursor, Outcome::NotAnIcon, -1},
        {noCount, Outcome::NotAnIcon, -1},
        {icoFile({StoredImage(16, 4), StoredImage(32, 8)}), Outcome::MultiImage, -1},
        {withInfo(32, 64, 4, 5000), Outcome::CannotLoad, -1},
        {withInfo(24, 48, 4), Outcome::CannotLoad, -1},
        {withInfo(32, 32, 4), Outcome::CannotLoad, -1},
        {withInfo(32, 64, 32), Outcome::CannotLoad, -1},
    };
    for (const auto& [bytes, outcome, slot] : cases) {
        MultiIconResource resource;
        const auto result = resource.add(bytes);
        EXPECT_EQ(std::pair(result.outcome, result.slot), std::pair(outcome, slot)) << slot;
        EXPECT_EQ(resource.filledCount(), slot >= 0 ? 1 : 0);
    }
}

// Ten slots, filled in any order, are laid out from the last slot down, each
// entry as its source had it but for the offset (a colour count included).
// An eleventh icon is refused, even one that would only replace.
TEST(MultiIconResource, TenSlotsMakeTheFileByteForByteAndAnEleventhIsRefused) {
    MultiIconResource resource;
    std::vector<QByteArray> fromLast;
    for (int slot = 2; slot < 12; ++slot) {
        QByteArray file = iconFile(slot);
        file[8] = 7;
        EXPECT_EQ(resource.add(file).slot, slot);
        fromLast.insert(fromLast.begin(), file);
    }
    EXPECT_EQ(resource.add(iconFile(2)).outcome, Outcome::LimitReached);
    EXPECT_EQ(resource.toBytes(), joinIcons(fromLast));
}

// A second icon of a slot replaces the first. Data is read from byte 22
// whatever the entry says: from the wrong place when the image lies
// elsewhere, with zeros for what lies past the end of a short file.
TEST(MultiIconResource, ASlotHoldsTheLastSourcesBytesFrom22) {
    TestIcon second(32, 4);
    second.stored.setIndex(1, 1, 9);
    const QByteArray elsewhere =
        IcoBuilder().header(1, 1).entry(32, 4, 744, 30).bytes + "junk1234" + second.stored.data();
    const QByteArray shortMono = iconFile(1).chopped(10);
    const std::tuple<QByteArray, QByteArray, QByteArray> cases[] = {
        {iconFile(4), second.file(), second.file().mid(22)},
        {iconFile(4), elsewhere, elsewhere.mid(22, 744)},
        {iconFile(1), shortMono, shortMono.mid(22) + QByteArray(10, '\0')},
    };
    for (const auto& [first, last, data] : cases) {
        MultiIconResource resource;
        resource.add(first);
        ASSERT_EQ(resource.add(last).outcome, Outcome::Added);
        EXPECT_EQ(resource.filledCount(), 1);
        EXPECT_EQ(resource.toBytes().mid(22), data);
    }
}

} // namespace
