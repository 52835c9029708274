// Printing into a real PDF file: page count, where a label's text lands, a target that can't be
// written.
#include "Aufzeichnungsdrucker.h"
#include "common/Pdfhilfe.h"

#include "core/runtime/TextDatei.h"
#include "output/Druckauftrag.h"
#include "output/Druckercanvas.h"
#include "output/Druckerliste.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <cmath>

namespace zp::test {
namespace {

// The box of a word on page `seite`, in points from the top left corner.
QRectF Wortbox(const QString& pdf, int seite, const QString& wort) {
    const QString html =
        Ausgabe("pdftotext", {"-bbox", "-f", QString::number(seite), "-l", QString::number(seite), pdf, "-"});
    const QRegularExpression re(
        QStringLiteral(
            "<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">%1</word>")
            .arg(QRegularExpression::escape(wort)));
    const auto m = re.match(html);
    if (!m.hasMatch()) return {};
    return QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                  QPointF(m.captured(3).toDouble(), m.captured(4).toDouble()));
}

// A composition that writes the record's name at the label's corner.
Druckhilfen Namenskomposition() {
    Druckhilfen h;
    h.Komposition = [](AppState& s, Canvas& c) {
        WendeDruckversatzAn(s, c);
        LogFont f;
        f.lfHeight = -60;
        f.lfFaceName = QStringLiteral("Arial");
        const GdiHandle schrift = c.CreateFontIndirectA(f);
        const GdiHandle alt = c.SelectObject(schrift);
        c.TextOutA(0, 0, QStringLiteral("Adresse%1").arg(static_cast<int>(s.DatensatzNummer)));
        c.SelectObject(alt);
        c.DeleteObject(schrift);
    };
    h.ZeigeDatensatz = [](AppState&) {};
    return h;
}

AppState Bogen(int adressen) {
    AppState s = Etikettenbogen();
    s.DatensatzAnzahl = adressen;
    return s;
}

TEST(PdfDruck, EtikettenbogenLandetAnDerRichtigenStelle) {
    if (!PopplerDa()) GTEST_SKIP() << "poppler-utils fehlen";
    QTemporaryDir dir;
    const QString pdf = dir.filePath("etiketten.pdf");
    AppState s = Bogen(30);
    s.ErstesEtikett = 5;
    Druckauftrag a;
    a.Wahl.Adressen = Adresswahl::Alle;
    Mitschrift o;
    {
        Druckercanvas drucker(kPdfDatei, pdf, s.AktuelleSeite);
        EXPECT_DOUBLE_EQ(drucker.TwipsPerPixelX(), 2.4);
        EXPECT_EQ(drucker.GetDeviceCaps(PHYSICALOFFSETX), 0);
        ASSERT_EQ(CommandDrucken(s, o, drucker, a, Namenskomposition()), Druckergebnis::Gedruckt);
        EXPECT_FALSE(QFile::exists(pdf + ".entsteht"));
    }
    ASSERT_TRUE(QFile::exists(pdf));
    // 4 places left free, then 30 labels: 20 on the first sheet, 10 on the second.
    EXPECT_EQ(PdfSeiten(pdf), 2);

    const double mmInPt = 72.0 / 25.4;
    // Address 1 stands on place 5: row 2, column 2.
    const QRectF erste = Wortbox(pdf, 1, "Adresse1");
    ASSERT_FALSE(erste.isNull());
    EXPECT_NEAR(erste.left(), (7.2 + 68.5) * mmInPt, 1.5);
    EXPECT_NEAR(erste.top(), (13.0 + 33.8) * mmInPt, 3.0);
    // Address 21 opens the second sheet at its first place.
    const QRectF zweite = Wortbox(pdf, 2, "Adresse21");
    ASSERT_FALSE(zweite.isNull());
    EXPECT_NEAR(zweite.left(), 7.2 * mmInPt, 1.5);
    EXPECT_NEAR(zweite.top(), 13.0 * mmInPt, 3.0);
    // A point stays a point: 60 pixels at 600 dpi are 7.2 pt of em height.
    EXPECT_NEAR(erste.height(), 7.2, 2.0);
}

TEST(PdfDruck, NichtSchreibbaresZielLaesstAllesWieEsWar) {
    QTemporaryDir dir;
    const QString vorhanden = dir.filePath("alt.pdf");
    {
        QFile f(vorhanden);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("alter Inhalt");
    }
    AppState s = Bogen(3);
    s.DatensatzNummer = 2;
    Mitschrift o;
    {
        Druckercanvas drucker(kPdfDatei, dir.filePath("fehlt/ordner/x.pdf"), s.AktuelleSeite);
        EXPECT_EQ(CommandDrucken(s, o, drucker, Druckauftrag{}, Namenskomposition()), Druckergebnis::Fehler);
    }
    ASSERT_EQ(o.Meldungen.size(), 1u);
    EXPECT_TRUE(o.Meldungen[0].first.startsWith("Der Druck kann nicht beginnen"));
    EXPECT_DOUBLE_EQ(s.DatensatzNummer, 2);
    EXPECT_EQ(s.AktuelleSeite.Randlinks, 72);

    // A request that fails midway never replaces an existing file with a torn one.
    {
        Druckercanvas drucker(kPdfDatei, vorhanden, s.AktuelleSeite);
        Druckhilfen h = Namenskomposition();
        h.Komposition = [](AppState&, Canvas&) { throw std::runtime_error("Zeichenfehler"); };
        Mitschrift o2;
        EXPECT_EQ(PrintDocument(s, o2, drucker, Druckwahl{}, h), Druckergebnis::Fehler);
        EXPECT_EQ(o2.Meldungen.size(), 1u);
    }
    QFile f(vorhanden);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), "alter Inhalt");
}

TEST(PdfDruck, DruckerlisteBietetImmerDiePdfDatei) {
    const QStringList liste = Druckerliste();
    ASSERT_FALSE(liste.isEmpty());
    EXPECT_EQ(liste.front(), "PDF-Datei");
    QString meldung;
    EXPECT_EQ(WaehleDrucker("PDF-Datei", liste, meldung), "PDF-Datei");
    EXPECT_TRUE(meldung.isEmpty());
    EXPECT_TRUE(WaehleDrucker("Gibt es nicht 4711", liste, meldung).isEmpty());
    EXPECT_TRUE(meldung.contains("PDF-Datei")) << meldung.toStdString();
    // Without any queue the message says so and offers the file.
    EXPECT_TRUE(WaehleDrucker("Laser", {kPdfDatei}, meldung).isEmpty());
    EXPECT_TRUE(meldung.startsWith("Es ist kein Drucker eingerichtet")) << meldung.toStdString();
}

} // namespace
} // namespace zp::test

namespace zp::test {
namespace {

// The PDFs of a folder with the time each was last written.
QMap<QString, QDateTime> PdfStaende(const QString& ordner) {
    QMap<QString, QDateTime> staende;
    for (const QFileInfo& info : QDir(ordner).entryInfoList({QStringLiteral("*.pdf")}, QDir::Files))
        staende.insert(info.fileName(), info.lastModified());
    return staende;
}

// A queue of the print system (cups-pdf in tests). Where the test script has set one up, it names
// the folder the queue's PDFs land in: then the queue must be there and the pages must come out.
TEST(Druckerwarteschlange, DruckAufEinerCupsWarteschlange) {
    const QStringList liste = Druckerliste();
    const QString ausgabe = qEnvironmentVariable("ZP_CUPS_AUSGABE");
    if (liste.size() < 2 && ausgabe.isEmpty()) GTEST_SKIP() << "keine Druckerwarteschlange eingerichtet";
    ASSERT_GE(liste.size(), 2) << "Die eingerichtete Druckerwarteschlange fehlt in der Druckerliste";
    const QMap<QString, QDateTime> vorher = PdfStaende(ausgabe);
    AppState s = Bogen(2);
    Druckauftrag a;
    a.Wahl.Adressen = Adresswahl::Alle;
    a.Wahl.Kopien = "2";
    Mitschrift o;
    {
        Druckercanvas drucker(liste.at(1), {}, s.AktuelleSeite);
        EXPECT_FALSE(drucker.IstDatei());
        EXPECT_GE(drucker.GetDeviceCaps(PHYSICALOFFSETX), 0);
        EXPECT_DOUBLE_EQ(drucker.TwipsPerPixelX(), 1440.0 / drucker.GetDeviceCaps(LOGPIXELSX));
        EXPECT_EQ(CommandDrucken(s, o, drucker, a, Namenskomposition()), Druckergebnis::Gedruckt);
        EXPECT_EQ(drucker.Seiten(), 1);
        EXPECT_TRUE(o.Meldungen.empty());
    }
    if (ausgabe.isEmpty()) return;
    // The queue works in the background: its file comes within a few seconds. cups-pdf names the
    // file after the job and writes over one of an earlier run, so a file counts when it is new or
    // newer than before, and when it is complete.
    QString fertig;
    for (int versuch = 0; versuch < 300 && fertig.isEmpty(); ++versuch) {
        QThread::msleep(100);
        const QMap<QString, QDateTime> jetzt = PdfStaende(ausgabe);
        for (auto it = jetzt.begin(); it != jetzt.end(); ++it) {
            if (vorher.value(it.key()) == it.value()) continue;
            QFile f(QDir(ausgabe).filePath(it.key()));
            if (f.open(QIODevice::ReadOnly) && f.readAll().trimmed().endsWith("%%EOF")) fertig = it.key();
        }
    }
    ASSERT_FALSE(fertig.isEmpty()) << "Die Warteschlange hat kein vollständiges PDF in "
                                   << ausgabe.toStdString() << " abgelegt";
}

} // namespace
} // namespace zp::test
