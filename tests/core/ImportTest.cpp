#include "tests/core/state/ProtokollOberflaeche.h"

#include "common/TestHilfe.h"
#include "core/Importbefehl.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Import.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
// An old label file: 13 lines of its own, 8 texts, 492 lines, then the records of 20 lines.
QByteArray Etidatei(const QList<QStringList>& datensaetze, bool leererSchluss) {
    QStringList z;
    for (int i = 1; i <= 13; ++i)
        z << QStringLiteral("kopf %1").arg(i);
    for (int i = 1; i <= 8; ++i)
        z << QStringLiteral("Etikettentext %1").arg(i);
    for (int i = 1; i <= 492; ++i)
        z << QString::number(i);
    for (QStringList d : datensaetze) {
        while (d.size() < 20)
            d << QString();
        z << d;
    }
    if (leererSchluss)
        for (int i = 0; i < 20; ++i)
            z << QString();
    return BytesAusZeilen(z);
}
} // namespace

TEST(TextImport, SeparatorsByLine) {
    const ImportDaten d = LeseTextImport("nur ein Feld; nein\tzwei Felder\r\n" // a tab beats ";"
                                         "Anna;Weg 1;Ort\r\n"
                                         "ohne Trenner\r\n"
                                         "a;;c;\r\n");
    ASSERT_EQ(d.DatensatzAnzahl, 4);
    EXPECT_EQ(d.Datensaetze(1, 1), u"nur ein Feld; nein");
    EXPECT_EQ(d.Datensaetze(2, 1), u"zwei Felder");
    EXPECT_EQ(d.Datensaetze(3, 2), u"Ort");
    EXPECT_EQ(d.Datensaetze(1, 3), u"ohne Trenner");
    EXPECT_TRUE(d.Datensaetze(2, 3).isEmpty());
    EXPECT_EQ(d.Datensaetze(1, 4), u"a");
    EXPECT_TRUE(d.Datensaetze(2, 4).isEmpty());
    EXPECT_EQ(d.Datensaetze(3, 4), u"c");
    EXPECT_EQ(d.Datensaetze.Obergrenze1(), 30);
}

TEST(TextImport, TwentyFieldsAtMost) {
    QStringList felder;
    for (int f = 1; f <= 25; ++f)
        felder << QStringLiteral("f%1").arg(f);
    const ImportDaten d = LeseTextImport(felder.join(u';').toUtf8());
    ASSERT_EQ(d.DatensatzAnzahl, 1);
    EXPECT_EQ(d.Datensaetze(19, 1), u"f19");
    EXPECT_EQ(d.Datensaetze(20, 1), u"f20");
    EXPECT_TRUE(d.Datensaetze(21, 1).isEmpty()); // the rest of the line goes nowhere
}

TEST(TextImport, AnEmptyLineEndsTheRecords) {
    EXPECT_EQ(LeseTextImport("a;b\r\nc;d\r\n\r\ne;f\r\n").DatensatzAnzahl, 2);
    EXPECT_EQ(LeseTextImport("\r\na;b\r\n").DatensatzAnzahl, 0);
    EXPECT_EQ(LeseTextImport("").DatensatzAnzahl, 0);
    // Windows-1252 as the old programs wrote it, and a last line without a line end.
    const ImportDaten d = LeseTextImport("M\xfcller;Stra\xdf"
                                         "e\rZ;W");
    ASSERT_EQ(d.DatensatzAnzahl, 2);
    EXPECT_EQ(d.Datensaetze(1, 1), u"Müller");
    EXPECT_EQ(d.Datensaetze(2, 1), u"Straße");
    EXPECT_EQ(d.Datensaetze(2, 2), u"W");
}

TEST(EtiImport, RecordsUntilTheEmptyOne) {
    const QList<QStringList> adressen{{"Anna", "Weg 1"}, {"", "", "nur Feld 3"}, {"Carl"}};
    for (bool schluss : {true, false}) {
        const ImportDaten d = LeseEtiImport(Etidatei(adressen, schluss));
        ASSERT_EQ(d.Texte.size(), 8);
        EXPECT_EQ(d.Texte[0], u"Etikettentext 1");
        EXPECT_EQ(d.Texte[7], u"Etikettentext 8");
        // The empty record after the last stays in the count, with or without its 20 lines.
        ASSERT_EQ(d.DatensatzAnzahl, 4) << schluss;
        EXPECT_EQ(d.Datensaetze(2, 1), u"Weg 1");
        EXPECT_EQ(d.Datensaetze(3, 2), u"nur Feld 3");
        EXPECT_EQ(d.Datensaetze(1, 3), u"Carl");
        for (int f = 1; f <= 30; ++f)
            EXPECT_TRUE(d.Datensaetze(f, 4).isEmpty());
    }
    // Records after the empty one are not read.
    QByteArray mehr = Etidatei({{"Anna"}}, true);
    mehr += "Bernd\r\n";
    EXPECT_EQ(LeseEtiImport(mehr).DatensatzAnzahl, 2);
}

TEST(EtiImport, CutShortFilesAreRefused) {
    QByteArray datei = Etidatei({{"Anna"}, {"Bernd"}}, false);
    EXPECT_THROW(LeseEtiImport(datei.left(datei.size() - 10)), FormatFehler); // within a record
    EXPECT_THROW(LeseEtiImport("kopf\r\nkopf\r\n"), FormatFehler);
    EXPECT_THROW(LeseEtiImport(datei.left(600)), FormatFehler); // within the passed-over lines
}

TEST(Importieren, ByTheLastThreeCharactersOnly) {
    QTemporaryDir dir;
    AppState s;
    s.IstEtikett = -1;
    s.Datensaetze(1, 1) = QStringLiteral("alt");
    test::ProtokollOberflaeche ui;
    const QString txt = dir.filePath(QStringLiteral("adressen.txt"));
    ASSERT_TRUE(SchreibeDateiAtomar(txt, "Anna;Weg 1;Ort\r\nBernd\tGasse 2\r\n"));
    ASSERT_TRUE(SchreibeDateiAtomar(dir.filePath(QStringLiteral("adressen.TXT")), "X;Y\r\n"));
    ASSERT_TRUE(SchreibeDateiAtomar(dir.filePath(QStringLiteral("adressen.csv")), "X;Y\r\n"));

    for (const char* name : {"adressen.TXT", "adressen.csv", "fehlt.txt", "fehlt.eti"})
        EXPECT_FALSE(Importieren(s, ui, dir.filePath(QString::fromLatin1(name)))) << name;
    EXPECT_EQ(s.Datensaetze(1, 1), u"alt");
    EXPECT_TRUE(ui.meldungen.isEmpty() && ui.status.isEmpty()); // without a word

    s.DatensatzNummer = 5;
    ASSERT_TRUE(Importieren(s, ui, txt));
    EXPECT_EQ(s.DatensatzAnzahl, 2);
    EXPECT_EQ(s.DatensatzNummer, 1);
    EXPECT_EQ(s.Panel.Text1(23), u"Ort");
    EXPECT_EQ(s.Schriftliste(21).Textstring, u"Anna");
    EXPECT_EQ(s.Datensaetze(2, 2), u"Gasse 2");
}

TEST(Importieren, OldLabelFileBringsItsTexts) {
    QTemporaryDir dir;
    AppState s;
    s.IstEtikett = -1;
    s.Schriftliste(9).Textstring = QStringLiteral("bleibt");
    test::ProtokollOberflaeche ui;
    const QString eti = dir.filePath(QStringLiteral("alt.eti"));
    ASSERT_TRUE(SchreibeDateiAtomar(eti, Etidatei({{"Anna", "Weg 1"}}, true)));
    ASSERT_TRUE(Importieren(s, ui, eti));
    EXPECT_EQ(s.Schriftliste(8).Textstring, u"Etikettentext 8");
    EXPECT_EQ(s.Panel.Text1(8), u"Etikettentext 8");
    EXPECT_EQ(s.Panel.Text1(9), u"bleibt");
    EXPECT_EQ(s.DatensatzAnzahl, 2);
    EXPECT_EQ(s.Panel.Text1(22), u"Weg 1");

    // A damaged file is told, and the records stay.
    ASSERT_TRUE(SchreibeDateiAtomar(eti, "nur eine Zeile\r\n"));
    EXPECT_FALSE(Importieren(s, ui, eti));
    EXPECT_EQ(ui.meldungen, QStringList{QStringLiteral("Falsches Datenformat")});
    EXPECT_EQ(s.DatensatzAnzahl, 2);
    EXPECT_EQ(s.Datensaetze(1, 1), u"Anna");
}
