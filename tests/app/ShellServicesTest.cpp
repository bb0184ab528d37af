#include "app/PlaneImage.h"
#include "app/QtClipboard.h"
#include "app/QtUserDialogs.h"
#include "app/WindowPlacement.h"

#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(QtUserDialogs, FileDialogsOfEachMode) {
    struct Case {
        FileDialogMode mode;
        const char* title;
        bool save;
        const char* suffix;
        QStringList filters;
    };
    const Case cases[] = {
        {FileDialogMode::Open, "Sollent - Open", false, "", {"Windows Icon (*.ico)"}},
        {FileDialogMode::SaveAs, "Sollent - Save As", true, "ico", {"Windows Icon (*.ico)"}},
        {FileDialogMode::SaveAsBitmap,
         "Sollent - Save As Bitmap",
         true,
         "bmp",
         {"Windows Bitmap (*.bmp)"}},
        {FileDialogMode::SaveAsCursor,
         "Sollent - Save As Cursor",
         true,
         "cur",
         {"Windows Cursor (*.cur)"}},
        {FileDialogMode::Extract,
         "Sollent - Extract Icon",
         false,
         "",
         {"ActiveX Control (*.ocx)", "Animated Cursor (*.ani)", "Dynamic Link Library (*.dll)",
          "Executable (*.exe)", "Icon Library (*.icl)", "All Files (*.*)"}},
    };
    QTemporaryDir folder;
    for (const Case& c : cases) {
        auto dialog = QtUserDialogs::makeFileDialog(c.mode, folder.path(), nullptr);
        EXPECT_EQ(dialog->windowTitle(), c.title);
        EXPECT_EQ(dialog->nameFilters(), c.filters);
        EXPECT_EQ(dialog->selectedNameFilter(), c.filters.first());
        EXPECT_EQ(dialog->defaultSuffix(), c.suffix);
        EXPECT_EQ(dialog->acceptMode(), c.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog->fileMode(), c.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        EXPECT_FALSE(dialog->testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(QDir(dialog->directory()).canonicalPath(), QDir(folder.path()).canonicalPath());
    }
}

TEST(QtUserDialogs, ChoiceCarriesPathTitleAndFilterNumber) {
    QTemporaryDir folder;
    auto dialog = QtUserDialogs::makeFileDialog(FileDialogMode::Extract, folder.path(), nullptr);
    dialog->selectNameFilter("Executable (*.exe)");
    dialog->selectFile(folder.filePath("tool.exe"));
    const FileChoice choice = QtUserDialogs::choiceOf(*dialog);
    EXPECT_EQ(QFileInfo(choice.path).fileName(), "tool.exe");
    EXPECT_EQ(choice.title, "tool.exe");
    EXPECT_EQ(choice.filterIndex, 4);
}

TEST(PlaneImage, ColourValuesKeepRedInTheLowByte) {
    Plane plane(3, 1);
    plane.setPixel(0, 0, rgb(255, 0, 0));
    plane.setPixel(1, 0, rgb(1, 2, 3));
    plane.setPixel(2, 0, kWhite);
    const QImage image = PlaneImage::toImage(plane);
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(1, 0), qRgb(1, 2, 3));
    EXPECT_EQ(image.pixel(2, 0), qRgb(255, 255, 255));
    EXPECT_EQ(PlaneImage::toPlane(image), plane);
}

TEST(PlaneImage, SeeThroughPixelsArriveOverWhite) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(0, 0, 0, 0));
    image.setPixel(1, 0, qRgba(0, 0, 255, 255));
    image.setPixel(2, 0, qRgba(0, 0, 0, 128));
    const Plane plane = PlaneImage::toPlane(image);
    EXPECT_EQ(plane.pixel(0, 0), kWhite);
    EXPECT_EQ(plane.pixel(1, 0), rgb(0, 0, 255));
    EXPECT_EQ(plane.pixel(2, 0), rgb(127, 127, 127));
    EXPECT_TRUE(PlaneImage::toPlane(QImage()).isEmpty());
}

TEST(QtClipboard, PicturesGoThroughTheSystemClipboard) {
    QtClipboard clipboard;
    Plane picture(5, 4, kWhite);
    picture.setPixel(1, 2, rgb(10, 20, 30));
    clipboard.setImage(picture);
    EXPECT_TRUE(clipboard.hasImage());
    EXPECT_EQ(clipboard.image(), picture);
}

TEST(WindowPlacement, CentredAcrossAndAThirdDown) {
    struct Case {
        QSize screen, window;
        QPoint expected;
    };
    const Case cases[] = {{{800, 600}, {582, 460}, {109, 46}},
                          {{1280, 1024}, {582, 460}, {349, 188}},
                          {{1025, 769}, {582, 460}, {221, 103}},
                          {{400, 300}, {582, 460}, {-91, -53}}};
    for (const Case& c : cases)
        EXPECT_EQ(WindowPlacement::topLeft(c.screen, c.window), c.expected);
}

} // namespace
