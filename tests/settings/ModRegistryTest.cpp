#include "settings/ModRegistry.h"
#include "settings/ModRecent.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Every case works on a store file of its own, never on the user's.
class ModRegistryTest : public ::testing::Test {
  protected:
    QTemporaryDir dir;
    QSettings store{dir.filePath("Sollent.ini"), QSettings::IniFormat};
    ModRegistry registry{store.fileName()};

    QStringList storedKeys() {
        store.sync();
        return store.allKeys();
    }
};

TEST_F(ModRegistryTest, ShutdownWritesTheListThatTheNextStartTakesAndDeletes) {
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
}

TEST_F(ModRegistryTest, DamagedValuesAndGoneFoldersAreSkippedButStillDeleted) {
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
