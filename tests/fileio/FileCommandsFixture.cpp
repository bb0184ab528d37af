#include "FileCommandsFixture.h"

#include <QFile>
#include <QFileInfo>

QString FileCommandsFixture::writeFile(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
}

QByteArray FileCommandsFixture::readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FileCommandsFixture::chooseNext(const QString& path) {
    dialogs.files.push_back(FileChoice{path, QFileInfo(path).fileName(), 1});
}

void FileCommandsFixture::openThroughDialog(const QString& path) {
    chooseNext(path);
    editor->files().open();
}

void FileCommandsFixture::edit(int x, int y, Colour c) {
    editor->doc().PicImage.setPixel(x, y, c);
    editor->doc().PicMask.setPixel(x, y, kBlack);
    editor->refresh();
    editor->recordEdit();
}

void FileCommandsFixture::expectDocument(const TestIcon& icon) const {
    EXPECT_EQ(editor->doc().PicMask, icon.mask);
    EXPECT_EQ(editor->doc().PicImage, icon.image);
}

std::string FileCommandsFixture::shown() const {
    std::string lines;
    for (const auto& m : dialogs.messages)
        lines += (m.icon == MessageIcon::Exclamation ? "! " : "") +
                 (m.title + ": " + m.text).toStdString() + "\n";
    return lines;
}

std::string FileCommandsFixture::documentState() const {
    const IconDocument& doc = editor->doc();
    return QStringLiteral("%1 | %2 | %3 | modified %4 | file %5")
        .arg(editor->windowTitle(), doc.filePath, doc.fileTitle)
        .arg(doc.modified)
        .arg(doc.hasFile)
        .toStdString();
}

std::string FileCommandsFixture::stateOf(const QString& file) {
    const QString title = QFileInfo(file).fileName();
    return ("Brevik - " + title + " | " + file + " | " + title + " | modified 0 | file 1")
        .toStdString();
}

std::string brevikError(const QString& text) {
    return ("! Brevik - Error: " + text + "\n").toStdString();
}

std::string sollentError(const QString& text) {
    return ("! Sollent - Error: " + text + "\n").toStdString();
}
