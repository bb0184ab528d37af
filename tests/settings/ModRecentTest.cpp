#include "settings/ModRecent.h"

#include <gtest/gtest.h>

namespace {

QStringList captions(const ModRecent& recent) {
    QStringList result;
    for (int i = 1; i <= ModRecent::kEntries; ++i)
        result << (recent.MnuRecent[i].visible ? recent.MnuRecent[i].caption : QStringLiteral("-"));
    return result;
}

TEST(ModRecentTest, FileNameOfTakesTheTextAfterTheLastSeparator) {
    const struct {
        const char* path;
        const char* name;
    } cases[] = {
        {"/home/ann/icons/star.ico", "star.ico"},
        {"C:\\Icons\\star.ico", "star.ico"},
        {"C:\\Icons/sub\\star.ico", "star.ico"},
        {"/mixed\\dir/plain.ico", "plain.ico"},
        {"star.ico", "star.ico"},
        {"/home/ann/", ""},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ModRecent::FileNameOf(QString::fromUtf8(c.path)), QString::fromUtf8(c.name))
            << c.path;
}

TEST(ModRecentTest, NewestComesFirstAndTheFifthFileDropsTheOldest) {
    ModRecent recent;
    EXPECT_FALSE(recent.MnuRecent[0].visible);
    for (const char* name : {"a.ico", "b.ico", "c.ico", "d.ico", "e.ico"})
        recent.AddRecent(QStringLiteral("/icons/") + QString::fromUtf8(name));
    EXPECT_TRUE(recent.MnuRecent[0].visible);
    EXPECT_EQ(captions(recent), (QStringList{"&1 e.ico", "&2 d.ico", "&3 c.ico", "&4 b.ico"}));
    EXPECT_EQ(recent.MnuRecent[4].tag, "/icons/b.ico");
}

TEST(ModRecentTest, TheSameFileInOtherCaseMovesUpInsteadOfRepeating) {
    ModRecent recent;
    recent.AddRecent("/icons/Star.ico");
    recent.AddRecent("/icons/moon.ico");
    recent.AddRecent("/icons/sun.ico");
    recent.AddRecent("/ICONS/star.ICO");
    EXPECT_EQ(recent.paths(),
              (QStringList{"/ICONS/star.ICO", "/icons/sun.ico", "/icons/moon.ico"}));
    EXPECT_EQ(captions(recent), (QStringList{"&1 star.ICO", "&2 sun.ico", "&3 moon.ico", "-"}));

    // Re-adding the top entry changes nothing but its spelling.
    recent.AddRecent("/icons/STAR.ico");
    EXPECT_EQ(recent.paths(),
              (QStringList{"/icons/STAR.ico", "/icons/sun.ico", "/icons/moon.ico"}));
}

TEST(ModRecentTest, RemovingAnEntryClosesUpAndRenumbers) {
    ModRecent recent;
    for (const char* path : {"/a.ico", "/b.ico", "/c.ico", "/d.ico"})
        recent.AddRecent(QString::fromUtf8(path));
    recent.RemoveRecent("/c.ico");
    EXPECT_EQ(captions(recent), (QStringList{"&1 d.ico", "&2 b.ico", "&3 a.ico", "-"}));
    EXPECT_TRUE(recent.MnuRecent[4].tag.isEmpty());
    EXPECT_TRUE(recent.MnuRecent[0].visible);

    // The match is exact: another spelling removes nothing.
    recent.RemoveRecent("/D.ico");
    EXPECT_EQ(recent.paths(), (QStringList{"/d.ico", "/b.ico", "/a.ico"}));

    // A tag cleared beforehand is dropped as well.
    recent.MnuRecent[2].tag.clear();
    recent.RemoveRecent("/d.ico");
    EXPECT_EQ(captions(recent), (QStringList{"&1 a.ico", "-", "-", "-"}));

    recent.RemoveRecent("/a.ico");
    EXPECT_EQ(captions(recent), (QStringList{"-", "-", "-", "-"}));
    EXPECT_FALSE(recent.MnuRecent[0].visible);
}

} // namespace
