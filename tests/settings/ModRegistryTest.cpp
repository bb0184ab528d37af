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
    QString storeFile = dir.filePath("Sollent.ini");
    ModRegistry registry{storeFile};

    void store(const QString& key, const QVariant& value) {
        QSettings settings(storeFile, QSettings::IniFormat);
        settings.setValue(key, value);
    }
    QStringList storedKeys() {
        QSettings settings(storeFile, QSettings::IniFormat);
        return settings.allKeys();
    }
};

TEST_F(ModRegistryTest, ShutdownWritesTheListThatTheNextStartTakesAndDeletes) {
    ModRecent before;
    for (const char* path : {"/x/a.ico", "/x/b.ico", "/x/c.ico"})
        before.AddRecent(QString::fromUtf8(path));
    registry.SaveRecentFiles(before);
    registry.SaveRecentFolder(dir.path());

    QSettings settings(storeFile, QSettings::IniFormat);
    EXPECT_EQ(settings.value("Recent Files/1.").toString(), "/x/c.ico");
    EXPECT_EQ(settings.value("Recent Files/2.").toString(), "/x/b.ico");
    EXPECT_EQ(settings.value("Recent Files/3.").toString(), "/x/a.ico");
    EXPECT_FALSE(settings.contains("Recent Files/4."));
    EXPECT_EQ(settings.value("Recent Folder/Folder").toString(), dir.path());

    ModRecent after;
    registry.LoadRecentFiles(after);
    EXPECT_EQ(registry.LoadRecentFolder(), dir.path());
    EXPECT_EQ(after.paths(), before.paths());
    EXPECT_EQ(after.MnuRecent[1].caption, "&1 c.ico");
    EXPECT_TRUE(after.MnuRecent[0].visible);
    EXPECT_TRUE(storedKeys().isEmpty()) << storedKeys().join(",").toStdString();
}

TEST_F(ModRegistryTest, DamagedAndMissingValuesAreSkippedAndTheRestCloseUp) {
    store("Recent Files/1.", "");
    store("Recent Files/2.", "/x/kept.ico");
    store("Recent Files/3.", QString(300, QLatin1Char('a')));
    store("Recent Files/4.", "/x/also.ico");
    store("Recent Files/5.", "/x/never.ico"); // not one of the four names
    ModRecent recent;
    registry.LoadRecentFiles(recent);
    EXPECT_EQ(recent.paths(), (QStringList{"/x/kept.ico", "/x/also.ico"}));
    EXPECT_EQ(recent.MnuRecent[2].caption, "&2 also.ico");
    EXPECT_EQ(storedKeys(), QStringList{"Recent Files/5."});
}

TEST_F(ModRegistryTest, NoStoredListLeavesTheMenuHidden) {
    ModRecent recent;
    registry.LoadRecentFiles(recent);
    EXPECT_FALSE(recent.MnuRecent[0].visible);
    EXPECT_TRUE(recent.paths().isEmpty());
    EXPECT_TRUE(registry.LoadRecentFolder().isEmpty());
}

TEST_F(ModRegistryTest, AFolderThatHasGoneIsNotUsedButStillHandedOver) {
    store("Recent Folder/Folder", dir.filePath("gone"));
    EXPECT_TRUE(registry.LoadRecentFolder().isEmpty());
    EXPECT_TRUE(storedKeys().isEmpty());
}

TEST_F(ModRegistryTest, EmptyEntriesWriteNothing) {
    ModRecent recent;
    registry.SaveRecentFiles(recent);
    EXPECT_TRUE(storedKeys().isEmpty());
}

} // namespace
