#include "settings/ModRecent.h"

#include <gtest/gtest.h>

namespace {

// The four entries' captions, "-" for a hidden one.
QStringList captions(const ModRecent& recent) {
    QStringList result;
    for (int i = 1; i <= ModRecent::kEntries; ++i)
        result << (recent.MnuRecent[i].visible ? recent.MnuRecent[i].caption : QStringLiteral("-"));
    return result;
}

TEST(ModRecentTest, FileNameOfTakesTheTextAfterTheLastSeparator) {
    const char* cases[][2] = {{"/home/ann/icons/star.ico", "star.ico"},
                              {"C:\\Icons/sub\\star.ico", "star.ico"},
                              {"star.ico", "star.ico"},
                              {"/home/ann/", ""}};
    for (const auto& c : cases)
        EXPECT_EQ(ModRecent::FileNameOf(c[0]), c[1]) << c[0];
}

// The same file in other case moves up; removing takes only the exact path.
TEST(ModRecentTest, NewestComesFirstAndRemovingClosesUpAndRenumbers) {
    ModRecent recent;
    EXPECT_FALSE(recent.MnuRecent[0].visible);
    for (const char* path : {"/icons/Star.ico", "/icons/b.ico", "/icons/c.ico", "/ICONS/star.ICO"})
        recent.AddRecent(path);
    EXPECT_TRUE(recent.MnuRecent[0].visible);
    EXPECT_EQ(captions(recent), (QStringList{"&1 star.ICO", "&2 c.ico", "&3 b.ico", "-"}));
    // A fifth file drops the oldest.
    recent.AddRecent("/icons/d.ico");
    recent.AddRecent("/icons/e.ico");
    EXPECT_EQ(recent.paths(),
              (QStringList{"/icons/e.ico", "/icons/d.ico", "/ICONS/star.ICO", "/icons/c.ico"}));

    recent.RemoveRecent("/icons/d.ico");
    recent.RemoveRecent("/icons/E.ico");
    EXPECT_EQ(captions(recent), (QStringList{"&1 e.ico", "&2 star.ICO", "&3 c.ico", "-"}));
    EXPECT_TRUE(recent.MnuRecent[4].tag.isEmpty());
    // A tag cleared beforehand is dropped as well.
    recent.MnuRecent[2].tag.clear();
    recent.RemoveRecent("/icons/e.ico");
    EXPECT_EQ(captions(recent), (QStringList{"&1 c.ico", "-", "-", "-"}));
    recent.RemoveRecent("/icons/c.ico");
    EXPECT_FALSE(recent.MnuRecent[0].visible);
}

} // namespace
