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
    void chooseNext(const QString& path); // the next file dialog's answer
    void openThroughDialog(const QString& path);
    void edit(int x, int y, Colour c); // as an edit does: the document is modified
    void expectDocument(const TestIcon& icon) const;
    // The messages shown so far, one "title: text" line each, "!" marking a
    // warning.
    std::string shown() const;
    // The caption, path, title and flags; stateOf is that of a document just
    // loaded from or saved to the file.
    std::string documentState() const;
    static std::string stateOf(const QString& file);

    QTemporaryDir files;
};

std::string brevikError(const QString& text);
std::string sollentError(const QString& text);
