// The page handed to the word processor.
#include "Aufzeichnungsdrucker.h"

#include "output/WordExport.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

QImage Rotes(int w = 200, int h = 100) {
    QImage bild(w, h, QImage::Format_RGB32);
    bild.fill(Qt::red);
    return bild;
}

QByteArray Entpackt(const QString& zip, const QString& eintrag) {
    QProcess p;
    p.start(QStringLiteral("unzip"), {QStringLiteral("-p"), zip, eintrag});
    p.waitForFinished(10000);
    return p.readAllStandardOutput();
}

TEST(WordExport, BildVierzehnLeereAbsaetzeUndTexteingabeAlsOpenDocument) {
    const auto dok = Worddokument(Rotes(), 90);
    std::vector<QString> absaetze;
    for (QTextBlock b = dok->begin(); b.isValid(); b = b.next())
        absaetze.push_back(b.text());
    ASSERT_EQ(absaetze.size(), 16u);
    EXPECT_EQ(absaetze.front(), QString(QChar::ObjectReplacementCharacter)); // the picture
    for (size_t i = 1; i <= 14; ++i)
        EXPECT_TRUE(absaetze[i].isEmpty()) << i;
    EXPECT_EQ(absaetze.back(), "Texteingabe");

    if (QStandardPaths::findExecutable(QStringLiteral("unzip")).isEmpty()) GTEST_SKIP() << "unzip fehlt";
    QTemporaryDir dir;
    const QString pfad = dir.filePath("brief.odt");
    {
        QFile f(pfad);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        ASSERT_TRUE(SchreibeWorddokument(Rotes(), 90, f));
    }
    EXPECT_EQ(Entpackt(pfad, "mimetype"), "application/vnd.oasis.opendocument.text");
    const QByteArray inhalt = Entpackt(pfad, "content.xml");
    EXPECT_TRUE(inhalt.contains("Texteingabe"));
    EXPECT_TRUE(inhalt.contains("draw:image"));
    // 90 mm wide, in points.
    EXPECT_TRUE(inhalt.contains("svg:width=\"255.1")) << inhalt.left(3000).constData();

    QProcess liste;
    liste.start("unzip", {"-l", pfad});
    liste.waitForFinished(10000);
    EXPECT_TRUE(liste.readAllStandardOutput().contains("Pictures/"));
}

TEST(WordExport, mnuWordZeichnetMitExportUndRaeumtAuf) {
    QTemporaryDir dir;
    AppState s;
    s.AktuellesEtikett.Breite = 850;
    Mitschrift o;
    float waehrend = 0;
    const QString ziel = dir.filePath("seite.odt");
    const QString pfad = mnuWord(
        s, o,
        [&](AppState& st) {
            waehrend = st.ExportAktiv;
            return Rotes();
        },
        ziel, false);
    EXPECT_EQ(pfad, ziel);
    EXPECT_TRUE(QFile::exists(ziel));
    EXPECT_EQ(waehrend, -1);
    EXPECT_EQ(s.ExportAktiv, 0);
    EXPECT_FALSE(QFile::exists(QDir(QDir::tempPath()).filePath("test.bmp")));
    EXPECT_TRUE(o.Meldungen.empty());
}

TEST(WordExport, NichtSchreibbaresZielGibtEineMeldung) {
    AppState s;
    Mitschrift o;
    const QString pfad = mnuWord(
        s, o, [](AppState&) { return Rotes(); }, "/nicht/vorhanden/ordner/seite.odt", false);
    EXPECT_TRUE(pfad.isEmpty());
    ASSERT_EQ(o.Meldungen.size(), 1u);
    EXPECT_TRUE(o.Meldungen[0].first.contains("nicht geschrieben"));

    // A page that can't be drawn ends with a message as well.
    Mitschrift o2;
    EXPECT_TRUE(mnuWord(
                    s, o2, [](AppState&) { return QImage(); }, "", false)
                    .isEmpty());
    EXPECT_EQ(o2.Meldungen.size(), 1u);
}

} // namespace
} // namespace zp::test
