#pragma once

#include "IcoBuilder.h"
#include "support/EditorFixture.h"

#include <QTemporaryDir>

// An editor over a folder of files of its own.
class FileCommandsFixture : public EditorFixture {
  protected:
    QString path(const QString& name) const { return files.filePath(name); }
    QString writeFile(const QString& name, const QByteArray& bytes);
    static QByteArray readFile(const QString& path);
    // The next file dialog answers with this path and its file name.
    void chooseNext(const QString& path);
    void openThroughDialog(const QString& path);
    // Changes one pixel as an edit does, so the document is modified.
    void edit(int x, int y, Colour c);
    void expectDocument(const TestIcon& icon) const;
    // The messages shown so far, one "title: text" line each, "!" marking a
    // warning.
    std::string shown() const;
    // The caption, path, title and flags in one line; stateOf gives the line
    // of a document just loaded from or saved to file.
    std::string documentState() const;
    std::string stateOf(const QString& file) const;

    QTemporaryDir files;
};

// A line of shown() with a warning under "Brevik - Error" or "Sollent - Error".
std::string brevikError(const QString& text);
std::string sollentError(const QString& text);
