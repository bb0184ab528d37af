#include "fileio/ExtractFixtures.h"
#include "support/AniWriter.h"
#include "support/MultiIcon.h"
#include "support/PeLibraryBuilder.h"

#include "fileio/BmpFile.h"
#include "fileio/ModFileIO.h"
#include "fileio/ModPalette.h"
#include "fileio/MultiIconResource.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Readable failures.
inline void PrintTo(const QString& text, std::ostream* os) {
    *os << text.toStdString();
}

namespace {

struct Outcome {
    int code = -1;
    QString out, err;
};

// brevik-cli unless another program is named.
Outcome run(const QStringList& arguments, const QString& program = BREVIK_CLI) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    // The CLI must need neither a display nor a platform plugin.
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(name);
    process.setProcessEnvironment(env);
    process.start(program, arguments);
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QByteArray read(const QString& path) {
    return ModFileIO::readFile(path).value_or(QByteArray());
}

// The files of a folder, by name.
std::map<QString, QByteArray> filesIn(const QString& folder) {
    std::map<QString, QByteArray> files;
    for (const QString& name : QDir(folder).entryList(QDir::Files))
        files[name] = read(QDir(folder).filePath(name));
    return files;
}

class CliTest : public ::testing::Test {
  protected:
    QString path(const QString& name) const { return dir.filePath(name); }
    QString make(const QString& name, const QByteArray& bytes) const {
        EXPECT_TRUE(ModFileIO::saveFile(path(name), bytes));
        return path(name);
    }
    QTemporaryDir dir;
};

TEST_F(CliTest, ExitCodesAndOneLineOnStderr) {
    const QString good = make("good.ico", patternIcon(16, 1));
    const QString corrupt = make("corrupt.ico", QByteArray("\0\0\1\0\1\0garbage", 14));
    const QString missing = path("missing.ico"), unreadable = "Unable to read data from " + missing,
                  invalid = corrupt + " is not a valid icon file.",
                  unwritable = path("no/such/folder/o.ico");
    // Usage faults exit 2 and point at --help; a file that fails exits 1.
    const std::tuple<QStringList, int, QString> cases[] = {
        {{"--help"}, 0, ""},
        {{"convert", "--help"}, 0, ""},
        {{}, 2, "no verb given"},
        {{"frobnicate", good}, 2, "unknown verb frobnicate"},
        {{"info", "--bogus", good}, 2, "unknown option --bogus"},
        {{"info"}, 2, "info needs at least one file"},
        {{"convert", good}, 2, "convert takes one input and one output file"},
        {{"convert", good, path("out.gif")}, 2, "the output must end in .ico, .cur or .bmp"},
        {{"convert", "--size", "20", good, path("o.ico")}, 2, "--size must be 16, 32 or 48"},
        {{"extract", "--size", "16", good},
         2,
         "extract --size takes only 32, the size Extract gives"},
        {{"info", missing, good}, 1, unreadable},
        {{"info", corrupt}, 1, invalid},
        {{"convert", missing, path("never.ico")}, 1, unreadable},
        {{"convert", corrupt, path("never.ico")}, 1, invalid},
        {{"extract", "-o", path("x"), corrupt}, 1, invalid},
        {{"library", path("never.icl"), missing}, 1, unreadable},
        {{"convert", good, unwritable}, 1, "Unable to save the file " + unwritable},
    };
    for (const auto& [arguments, code, message] : cases) {
        const Outcome r = run(arguments);
        const std::string what = arguments.join(' ').toStdString();
        const QString help = code == 2 ? " (see brevik-cli --help)" : "";
        EXPECT_EQ(r.code, code) << what;
        EXPECT_EQ(r.err, message.isEmpty() ? "" : "brevik-cli: " + message + help + "\n") << what;
        EXPECT_EQ(r.out.startsWith("Usage: brevik-cli"), code == 0) << what;
    }
    // The other files still count: the good file is listed behind the missing one.
    EXPECT_TRUE(run({"info", missing, good}).out.startsWith(good + "\t0\t16x16\t24\ticon\t-\n"));
    EXPECT_FALSE(QFile::exists(path("never.ico")));
    EXPECT_FALSE(QFile::exists(path("never.icl")));
    const Outcome help = run({"--help"}, BREVIK_EDITOR), bad = run({"--bogus"}, BREVIK_EDITOR);
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.out.startsWith("Usage: brevik"));
    EXPECT_EQ(bad.code, 2);
    EXPECT_EQ(bad.err, "brevik: unknown option --bogus (see brevik --help)\n");
}

TEST_F(CliTest, ConvertWritesWhatSaveAsWritesForTheSamePlanes) {
    // 2 colours (1 bit), 16 of the standard ones would need the exact
    // values, so 6 and 300 give 8 and 24 bits; the kinds of output too.
    const std::tuple<int, int, QString> cases[] = {{16, 1, "ico"},   {32, 6, "ico"},
                                                   {48, 300, "ico"}, {32, 6, "cur"},
                                                   {16, 300, "bmp"}, {48, 6, "bmp"}};
    for (const auto& [size, colours, kind] : cases) {
        // Every fifth pixel under half opacity, so the editor holds it
        // transparent; the rest opaque in many colours.
        QImage image(size, size, QImage::Format_ARGB32);
        Plane mask(size, size), colour(size, size), clip(size, size, kWhite);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                const int n = (x * 7 + y * 3) % colours;
                const Colour c = rgb(n * 40 % 256, n * 90 % 256, n * 15 % 256);
                const bool clear = (x + y) % 5 == 0;
                image.setPixel(x, y,
                               clear ? qRgba(9, 9, 9, 100) : qRgb(redOf(c), greenOf(c), blueOf(c)));
                mask.setPixel(x, y, clear ? kWhite : kBlack);
                colour.setPixel(x, y, clear ? kBlack : c);
            }
        const QString in = path("in.png"), out = path("out." + kind);
        ASSERT_TRUE(image.save(in));
        drawMasked(clip, 0, 0, mask, colour);
        const int count = ModPalette::countColours(colour, true);
        const QByteArray expected =
            kind == "ico"   ? IcoFile::iconBytes(mask, colour, count)
            : kind == "cur" ? IcoFile::cursorBytes(mask, colour, count, 5, 7)
                            : BmpFile::bytes(clip, ModPalette::countColours(clip, false));
        const Outcome r = run({"convert", "--hotspot", "5,7", in, out});
        EXPECT_EQ(r.code, 0) << r.err.toStdString();
        EXPECT_EQ(read(out), expected) << size << kind.toStdString();
        // An icon read back through the editor's reader converts to itself.
        if (kind != "bmp") {
            ASSERT_EQ(run({"convert", "--hotspot", "5,7", out, out + ".again." + kind}).code, 0);
            EXPECT_EQ(read(out + ".again." + kind), expected);
        }
    }
}

TEST_F(CliTest, ConvertFitsAnOddPictureKeepingItsAspectAndSaysSo) {
    // 20 x 10 into 16 keeps its aspect at 16 x 8, centred: rows 4 to 11.
    const QString in = path("wide.png"), out = path("wide.ico");
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(qRgb(200, 10, 10));
    ASSERT_TRUE(image.save(in));
    EXPECT_EQ(run({"convert", "--size", "16", in, out}).out,
              in + ": 20 x 10 shrunk to 16 x 8 (aspect kept), centred in a 16 x 16 icon\n");
    const IconLoadResult icon = IcoFile(read(out)).image(0);
    Plane mask(16, 16, kWhite), colour(16, 16, kBlack);
    fillRect(mask, 0, 4, 16, 12, kBlack);
    fillRect(colour, 0, 4, 16, 12, rgb(200, 10, 10));
    EXPECT_EQ(icon.mask, mask);
    EXPECT_EQ(icon.image, colour);
    // With no size the nearest is taken, the larger of two as near.
    image = QImage(40, 40, QImage::Format_RGB32);
    ASSERT_TRUE(image.save(in));
    EXPECT_EQ(run({"convert", in, out}).out, in + ": 40 x 40 centred in a 48 x 48 icon\n");
}

TEST_F(CliTest, ExtractGivesBackALibrarysIconFilesAsWrestoolDoes) {
    const QByteArray a = joinIcons(
                         {patternIcon(16, 1, 16), patternIcon(32, 2), patternIcon(48, 3, 2)}),
                     b = joinIcons({patternIcon(32, 4, 256)});
    const QString dll = make("lib.dll", PeLibraryBuilder{"x86_64", {{"3", a}, {"APP", b}}}.build());
    const QString icl = path("lib.icl");
    ASSERT_EQ(run({"library", icl, make("a.ico", a), make("b.ico", b)}).code, 0);
    // The DLL names its groups, the icon library this program writes numbers them.
    const std::tuple<QString, QString, QString> libraries[] = {{dll, "3", "APP"}, {icl, "1", "2"}};
    for (const auto& [library, first, second] : libraries) {
        QDir(path("out")).removeRecursively();
        ASSERT_EQ(run({"extract", library, "-o", path("out")}).code, 0);
        EXPECT_EQ(filesIn(path("out")),
                  (std::map<QString, QByteArray>{{"lib_" + first + ".ico", a},
                                                 {"lib_" + second + ".ico", b}}));
    }
    // wrestool reads the icon library back: two groups of four images, each
    // group as its icon file, then a tail of its own.
    const Outcome listed = run({"-l", icl}, "wrestool");
    EXPECT_EQ(listed.out.count("--type=14"), 2) << listed.out.toStdString();
    EXPECT_EQ(listed.out.count("--type=3"), 4) << listed.out.toStdString();
    for (const auto& [group, icon] : {std::pair{"1", a}, std::pair{"2", b}}) {
        ASSERT_EQ(run({"-x", "-t14", "-n", group, icl, "-o", path("w.ico")}, "wrestool").code, 0);
        EXPECT_EQ(read(path("w.ico")).left(icon.size()), icon) << group;
    }

    // An animated cursor: one file per step; --size 32 gives what Extract
    // shows, as Save As writes it.
    const QByteArray cursor = joinIcons({patternIcon(32, 6)}).replace(2, 1, "\x02");
    const QString ani = make("walk.ani", AniWriter{{patternIcon(16, 5), cursor}, 2, {}}.bytes());
    ASSERT_EQ(run({"extract", ani, "-o", path("ani")}).code, 0);
    EXPECT_EQ(filesIn(path("ani")),
              (std::map<QString, QByteArray>{{"walk_0.ico", patternIcon(16, 5)},
                                             {"walk_1.cur", cursor}}));
    ASSERT_EQ(run({"extract", "--size", "32", ani, "-o", path("ani32")}).code, 0);
    const IconLoadResult shown = shownAs(patternIcon(16, 5));
    EXPECT_EQ(
        read(path("ani32/walk_0.ico")),
        IcoFile::iconBytes(shown.mask, shown.image, ModPalette::countColours(shown.image, true)));
}

TEST_F(CliTest, BuildAddsEveryFileItCanAndNamesTheOneItRefuses) {
    // A 16 x 16 at 24 bits, a 32 x 32 at 1 bit and a second one that
    // replaces it; the multi-image file is refused and the rest still built.
    const QString a = make("a.ico", patternIcon(16, 1)), b = make("b.ico", patternIcon(32, 2, 2)),
                  c = make("c.ico", patternIcon(32, 3, 2)),
                  multi = make("m.ico", joinIcons({patternIcon(16, 4), patternIcon(32, 4)}));
    const Outcome r = run({"build", path("out.ico"), a, b, multi, c});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "brevik-cli: " + multi +
                         " is a multi icon resource. Only single icons can be loaded.\n");
    MultiIconResource builder;
    for (const QString& file : {a, b, c})
        builder.add(read(file));
    EXPECT_EQ(read(path("out.ico")), builder.toBytes());
}

TEST_F(CliTest, InfoListsEveryImageOfEveryIcon) {
    const QString ico = make("two.ico", joinIcons({patternIcon(16, 1, 16), patternIcon(32, 2)}));
    const QString cur = make("p.cur", IcoFile::cursorBytes(Plane(16, 16), Plane(16, 16), 2, 5, 7));
    const QString lib = make(
        "l.dll", PeLibraryBuilder{"x86_64", {{"9", joinIcons({patternIcon(48, 3, 2)})}}}.build());
    const Outcome r = run({"info", ico, cur, lib});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, ico + "\t0\t16x16\t4\ticon\t-\n" + ico + "\t1\t32x32\t24\ticon\t-\n" + cur +
                         "\t0\t16x16\t1\tcursor\t5,7\n" + lib + "\t9/0\t48x48\t1\ticon\t-\n");
    const Outcome json = run({"info", "--json", cur});
    EXPECT_EQ(json.out.simplified(),
              QString("[ { \"depth\": 1, \"file\": \"%1\", \"height\": 16, \"hotspot\": [ 5, 7 ], "
                      "\"icon\": null, \"index\": 0, \"kind\": \"cursor\", \"width\": 16 } ]")
                  .arg(cur));
}

} // namespace
