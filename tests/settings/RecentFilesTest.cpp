#include "settings/ModRecent.h"
#include "settings/ModRegistry.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// The four entries' captions, "-" for a hidden one.
QStringList captions(const ModRecent& recent) {
    QStringList result;
    for (int i = 1; i <= ModRecent::kEntries; ++i)
        result << (recent.MnuRecent[i].visible ? recent.MnuRecent[i].caption : QStringLiteral("-"));
    return result;
}

// The same file in other case moves up; removing takes only the exact path.
// A caption names the file after the last "/" or "\\", if there is one.
TEST(ModRecentTest, NewestComesFirstAndRemovingClosesUpAndRenumbers) {
    ModRecent recent;
    for (const char* path : {"/icons/Star.ico", "C:\\Icons/sub\\b.ico", "c.ico", "/ICONS/star.ICO"})
        recent.AddRecent(path);
    EXPECT_TRUE(recent.MnuRecent[0].visible);
    EXPECT_EQ(captions(recent), (QStringList{"&1 star.ICO", "&2 c.ico", "&3 b.ico", "-"}));
    // A fifth file drops the oldest.
    recent.AddRecent("/icons/d.ico");
    recent.AddRecent("/icons/e.ico");
    EXPECT_EQ(recent.paths(),
              (QStringList{"/icons/e.ico", "/icons/d.ico", "/ICONS/star.ICO", "c.ico"}));

    recent.RemoveRecent("/icons/d.ico");
    recent.RemoveRecent("/icons/E.ico");
    EXPECT_EQ(captions(recent), (QStringList{"&1 e.ico", "&2 star.ICO", "&3 c.ico", "-"}));
    EXPECT_TRUE(recent.MnuRecent[4].tag.isEmpty());
    // A tag cleared beforehand is dropped as well.
    recent.MnuRecent[2].tag.clear();
    recent.RemoveRecent("/icons/e.ico");
    EXPECT_EQ(captions(recent), (QStringList{"&1 c.ico", "-", "-", "-"}));
    recent.RemoveRecent("c.ico");
    EXPECT_FALSE(recent.MnuRecent[0].visible);
}

TEST(ModRegistryTest, ShutdownWritesTheListThatTheNextStartTakesAndDeletesDamagedOrNot) {
    QTemporaryDir dir; // a store of its own, never the user's
    QSettings store(dir.filePath("Sollent.ini"), QSettings::IniFormat);
    ModRegistry registry(store.fileName());
    const auto storedKeys = [&store] {
        store.sync();
        return store.allKeys();
    };
    ModRecent before, after, none;
    for (const char* path : {"/x/a.ico", "/x/b.ico", "/x/c.ico"})
        before.AddRecent(path);
    registry.SaveRecentFiles(none);
    EXPECT_TRUE(storedKeys().isEmpty()) << "empty entries write nothing";
    registry.SaveRecentFiles(before);
    registry.SaveRecentFolder(dir.path());
    EXPECT_EQ(storedKeys(), (QStringList{"Recent Files/1.", "Recent Files/2.", "Recent Files/3.",
                                         "Recent Folder/Folder"}));
    EXPECT_EQ(store.value("Recent Files/1.").toString(), "/x/c.ico");

    registry.LoadRecentFiles(after);
    EXPECT_EQ(registry.LoadRecentFolder(), dir.path());
    EXPECT_EQ(after.paths(), before.paths());
    EXPECT_TRUE(storedKeys().isEmpty()) << storedKeys().join(",").toStdString();

    // Damaged values and a folder that is gone are skipped, but deleted too.
    store.setValue("Recent Files/1.", "");
    store.setValue("Recent Files/2.", "/x/kept.ico");
    store.setValue("Recent Files/3.", QString(300, 'a'));
    store.setValue("Recent Files/4.", "/x/also.ico");
    store.setValue("Recent Files/5.", "/x/never.ico"); // not one of the four names
    store.setValue("Recent Folder/Folder", dir.filePath("gone"));
    store.sync();
    ModRecent recent;
    registry.LoadRecentFiles(recent);
    EXPECT_EQ(recent.paths(), (QStringList{"/x/kept.ico", "/x/also.ico"}));
    EXPECT_TRUE(registry.LoadRecentFolder().isEmpty());
    EXPECT_EQ(storedKeys(), QStringList{"Recent Files/5."});
}

} // namespace
