#pragma once

#include "IcoBuilder.h"
#include "support/EditorFixture.h"

#include <QFile>
#include <QFileInfo>

// An editor over a folder of files of its own.
class FileCommandsFixture : public EditorFixture {
  protected:
    QString path(const QString& name) const { return files.filePath(name); }
    QString writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    static QByteArray readFile(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // The next file dialog's answer.
    void chooseNext(const QString& path) {
        dialogs.files.push_back(FileChoice{path, QFileInfo(path).fileName(), 1});
    }
    void openThroughDialog(const QString& path) {
        chooseNext(path);
        editor->files().open();
    }
    // As an edit does: the document is modified.
    void edit(int x, int y, Colour c) {
        editor->doc().PicImage.setPixel(x, y, c);
        editor->doc().PicMask.setPixel(x, y, kBlack);
        editor->refresh();
        editor->recordEdit();
    }
    // The messages shown so far, one "title: text" line each, "!" marking a
    // warning.
    std::string shown() const {
        std::string lines;
        for (const auto& m : dialogs.messages)
            lines += (m.icon == MessageIcon::Exclamation ? "! " : "") +
                     (m.title + ": " + m.text).toStdString() + "\n";
        return lines;
    }
    // The caption, path, title and flags; stateOf is that of a document just
    // loaded from or saved to the file.
    std::string documentState() const {
        const IconDocument& doc = editor->doc();
        return QStringLiteral("%1 | %2 | %3 | modified %4 | file %5")
            .arg(editor->windowTitle(), doc.filePath, doc.fileTitle)
            .arg(doc.modified)
            .arg(doc.hasFile)
            .toStdString();
    }
    static std::string stateOf(const QString& file) {
        const QString title = QFileInfo(file).fileName();
        return ("Brevik - " + title + " | " + file + " | " + title + " | modified 0 | file 1")
            .toStdString();
    }

    QTemporaryDir files;
};

inline std::string brevikError(const QString& text) {
    return ("! Brevik - Error: " + text + "\n").toStdString();
}
