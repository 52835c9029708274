// Printing into a real PDF file: page count, where a label's text lands, a target that can't be
// written.
#include "Aufzeichnungsdrucker.h"

#include "common/ProtokollOberflaeche.h"
#include "core/Programmdienste.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/runtime/TextDatei.h"
#include "output/Druckauftrag.h"
#include "output/Druckercanvas.h"
#include "output/Druckerliste.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

namespace zp::test {
namespace {

bool PopplerDa() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

QString Ausgabe(const QString& programm, const QStringList& argumente) {
    QProcess p;
    p.start(programm, argumente);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

int PdfSeiten(const QString& pdf) {
    const QRegularExpression re(QStringLiteral("Pages:\\s+(\\d+)"));
    return re.match(Ausgabe("pdfinfo", {pdf})).captured(1).toInt();
}

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

// A queue of the print system, when the machine has one (cups-pdf serves in tests).
TEST(Druckerwarteschlange, DruckAufEinerCupsWarteschlange) {
    const QStringList liste = Druckerliste();
    if (liste.size() < 2) GTEST_SKIP() << "keine Druckerwarteschlange eingerichtet";
    AppState s = Bogen(2);
    Druckauftrag a;
    a.Wahl.Adressen = Adresswahl::Alle;
    a.Wahl.Kopien = "2";
    Mitschrift o;
    Druckercanvas drucker(liste.at(1), {}, s.AktuelleSeite);
    EXPECT_FALSE(drucker.IstDatei());
    EXPECT_GE(drucker.GetDeviceCaps(PHYSICALOFFSETX), 0);
    EXPECT_DOUBLE_EQ(drucker.TwipsPerPixelX(), 1440.0 / drucker.GetDeviceCaps(LOGPIXELSX));
    EXPECT_EQ(CommandDrucken(s, o, drucker, a, Namenskomposition()), Druckergebnis::Gedruckt);
    EXPECT_EQ(drucker.Seiten(), 1);
    EXPECT_TRUE(o.Meldungen.empty());
}

TEST(PdfDruck, NurEinGanzerAuftragNimmtDenNamenDerDatei) {
    if (!PopplerDa()) GTEST_SKIP() << "poppler-utils fehlen";
    QTemporaryDir dir;
    QString fehler;
    ASSERT_TRUE(RichteProgrammordnerEin(dir.filePath("ordner"), "Etikett", ZP_DATEN_DIR, &fehler));
    AppState s;
    ProtokollOberflaeche ui;
    Main(s, dir.filePath("ordner"), ui);
    LadeStartzustand(s, ui);
    s.LadeSperre = 0;
    s.Datensaetze.Redim(30, 60);
    for (int r = 1; r <= 60; ++r)
        s.Datensaetze(1, r) = QStringLiteral("Adresse%1").arg(r);
    s.DatensatzAnzahl = 60;
    Druckdialogwerte w;
    w.Drucker = kPdfDatei;
    w.PdfDatei = dir.filePath("etiketten.pdf");
    w.Kopien = "1";
    w.TextStart = "1";
    w.Adressen = 4;
    {
        QFile alt(w.PdfDatei);
        ASSERT_TRUE(alt.open(QIODevice::WriteOnly));
        alt.write("die alte Datei");
    }
    const Dokumentdienste d = ProgrammDienste();
    int gefragt = 0;
    // Cancelled after the second piece: the older file stays as it was, and no part is left over.
    EXPECT_FALSE(d.Drucken(s, ui, w, [&](int, int) { return ++gefragt < 2; }));
    EXPECT_EQ(*LeseDatei(w.PdfDatei), "die alte Datei");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"etiketten.pdf"});

    // A whole job replaces it with every page.
    std::pair<int, int> zuletzt;
    ASSERT_TRUE(d.Drucken(s, ui, w, [&](int seite, int gesamt) {
        zuletzt = {seite, gesamt};
        return true;
    }));
    EXPECT_GE(zuletzt.second, 2);
    EXPECT_EQ(zuletzt.first, zuletzt.second);
    EXPECT_EQ(PdfSeiten(w.PdfDatei), zuletzt.second);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"etiketten.pdf"});
}

} // namespace
} // namespace zp::test
