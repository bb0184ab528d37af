#pragma once

#include "IcoBuilder.h"
#include "support/EditorFixture.h"

#include <QTemporaryDir>

// A stored image together with the planes a document must hold once it is
// opened: the file and the expectation are written side by side.
struct TestIcon {
    TestIcon(int size, int depth, std::vector<Colour> table = {});

    void opaque(int x, int y, Colour c);
    void transparent(int x, int y);
    // Mask white over a colour other than black: shows background XOR colour.
    void inverting(int x, int y, Colour c);

    StoredImage stored;
    Plane mask;
    Plane image;

  private:
    void store(int x, int y, Colour c);
};

// 32 x 32, 24 bits: a different colour in every pixel, with transparent and
// inverting pixels in the first row.
TestIcon manyColourIcon();
// 16 x 16, 8 bits: forty colours of a 256-entry table, with transparent and
// inverting pixels.
TestIcon fortyColourIcon();
// size x size, 4 bits over the sixteen standard colours.
TestIcon sixteenColourIcon(int size);

// An editor over a folder of files of its own.
class FileCommandsFixture : public EditorFixture {
  protected:
    QString path(const QString& name) const { return files.filePath(name); }
    QString writeFile(const QString& name, const QByteArray& bytes);
    static QByteArray readFile(const QString& path);

    // The next file dialog answers with this path and its file name.
    void chooseNext(const QString& path);
    // Opens path through File > Open.
    void openThroughDialog(const QString& path);
    // Changes one pixel as an edit does, so the document is modified.
    void edit(int x, int y, Colour c);

    void expectPlanes(const Plane& mask, const Plane& image) const;
    void expectMessages(std::initializer_list<ScriptedDialogs::Message> expected) const;
    // The document's file, caption and flags in one line, for comparisons.
    std::string documentState() const;

    QTemporaryDir files;
};

ScriptedDialogs::Message brevikError(const QString& text);
ScriptedDialogs::Message sollentError(const QString& text);

// Pixels of a 24-bit bitmap file, rows from the top.
Plane bitmapPixels(const QByteArray& bytes);

std::uint16_t u16At(const QByteArray& bytes, int offset);
std::uint32_t u32At(const QByteArray& bytes, int offset);
