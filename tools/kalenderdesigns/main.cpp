// kalenderdesigns: makes the calendar's shipped data under the program data folder.
//
//   kalenderdesigns PROGRAMMDATEN [--vorschau ORDNER --jahr N]
//
// writes the standard designs daten/kal<n>[v2].zpk with their working copies kal<n>[v2].zpk,
// daten/bilder/monat01.jpg ... monat12.jpg and beispiel.zpd into PROGRAMMDATEN (the folder
// that is copied into a new program folder), and with --vorschau a PNG of page 1 of every type
// and variant (and the last week page) with the sample data, holidays calculated.
#include "Monatsbilder.h"

#include "calendar/data/Feiertage.h"
#include "calendar/data/Kalendertypen.h"
#include "calendar/data/Standarddesign.h"
#include "calendar/data/Tagesdaten.h"
#include "compose/Seitenbild.h"
#include "core/Start.h"
#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Design.h"
#include "persist/Kalenderdaten.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <cstdio>

using namespace zp;

namespace {

const char* kMonate[] = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                         "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
const char* kBildtexte[] = {"Stille Winterhügel", "Raureif im Abendlicht", "Erstes Grün",
                            "Apfelblüte am Hang", "Maiwiesen am See",      "Mohn im Sommerwind",
                            "Kornfelder im Juli", "Spätsommer am Wasser",  "Goldener September",
                            "Herbstwald",         "Nebel über dem Tal",    "Winterabend"};

Kalenderdaten Beispieldaten() {
    Kalenderdaten d;
    for (int m = 1; m <= 12; ++m) {
        d.Monatsbilder(m) = QStringLiteral("daten/bilder/monat%1.jpg").arg(m, 2, 10, QLatin1Char('0'));
        d.Monatsbildtexte(m) = QString::fromUtf8(kBildtexte[m - 1]);
    }
    auto termin = [&](int tag, int monat, const char* text) {
        d.Termine(tag, monat) = QString::fromUtf8(text);
    };
    termin(14, 2, "Valentinstag");
    termin(21, 3, "Geburtstag Oma Hilde");
    termin(9, 5, "Geburtstag Paul");
    termin(17, 6, "Hochzeitstag");
    termin(2, 8, "Geburtstag Lena");
    termin(23, 9, "Geburtstag Papa");
    termin(30, 10, "Geburtstag Mama");
    termin(12, 12, "Geburtstag Jonas");
    d.TerminSchrift(17, 6) = basic::RGB(190, 40, 90);
    d.TerminBack(17, 6) = basic::RGB(252, 232, 238);
    d.TextTitel = QStringLiteral("Familienkalender");
    d.TextUnterschrift = QStringLiteral("Termine und Geburtstage auf einen Blick");
    return d;
}

void Grundzustand(AppState& s, int jahr) {
    s.IstKalender = -1;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Kalenderjahr = jahr;
    for (int m = 1; m <= 12; ++m)
        s.Monatsnamen(m) = QString::fromUtf8(kMonate[m - 1]);
    const char* tage[] = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
    for (int w = 1; w <= 8; ++w)
        s.Wochentagsnamen(w) = QString::fromUtf8(tage[w - 1]);
    s.FarbeSonntag = basic::RGB(196, 30, 40);
    s.FarbeFeiertag = basic::RGB(196, 30, 40);
    s.FarbeSamstag = basic::RGB(90, 96, 120);
    s.FarbeTermin = basic::RGB(0, 96, 170);
    for (int i : {1, 6, 8, 9, 10, 11, 12, 13, 16, 21, 22, 23, 24, 25})
        s.FeiertagWahl(i) = 1;
    KalenderdatenUebernehmen(s, Beispieldaten());
    BerechneFeiertage(s);
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "Aufruf: kalenderdesigns PROGRAMMDATEN [--vorschau ORDNER] [--jahr N]\n");
        return 1;
    }
    const QString ziel = QDir(args[1]).absolutePath() + QLatin1Char('/');
    QString vorschau;
    int jahr = 2027;
    for (int i = 2; i + 1 < args.size(); ++i) {
        if (args[i] == u"--vorschau") vorschau = args[i + 1];
        if (args[i] == u"--jahr") jahr = args[i + 1].toInt();
    }

    QDir().mkpath(ziel + QStringLiteral("daten/bilder"));
    for (int m = 1; m <= 12; ++m) {
        const QString datei =
            ziel + QStringLiteral("daten/bilder/monat%1.jpg").arg(m, 2, 10, QLatin1Char('0'));
        if (!werkzeug::Monatsbild(m, QSize(1464, 1000)).save(datei, "JPG", 88)) {
            std::fprintf(stderr, "%s kann nicht geschrieben werden.\n", qPrintable(datei));
            return 1;
        }
    }
    QString fehler;
    if (!SchreibeDateiAtomar(ziel + QStringLiteral("beispiel.zpd"), ZpdBytes(Beispieldaten()), &fehler)) {
        std::fprintf(stderr, "%s\n", qPrintable(fehler));
        return 1;
    }

    // The standard designs under daten/ and the working copies beside them, the same at first.
    Oberflaeche ui;
    for (int typ = 1; typ <= 7; ++typ)
        for (int variante = 1; variante <= 2; ++variante) {
            AppState s;
            s.IstKalender = -1;
            s.Programmname = QStringLiteral("ZP Kalender");
            BaueStandarddesign(s, typ, variante);
            const QString name =
                QStringLiteral("kal%1%2.zpk").arg(typ).arg(variante == 2 ? QStringLiteral("v2") : QString());
            for (const QString& datei : {ziel + QStringLiteral("daten/") + name, ziel + name})
                if (!SchreibeDateiAtomar(datei, SchreibeDesign(s), &fehler)) {
                    std::fprintf(stderr, "%s\n", qPrintable(fehler));
                    return 1;
                }
        }

    // Previews: each design read back from its file and composed as the page picture shows it.
    if (!vorschau.isEmpty()) {
        QDir().mkpath(vorschau);
        for (int typ = 1; typ <= 7; ++typ)
            for (int variante = 1; variante <= 2; ++variante) {
                std::vector<int> seiten{1};
                if (typ == 6) seiten.push_back(53);
                if (typ == 4 || typ == 5) seiten.insert(seiten.end(), {6, 10});
                for (int seite : seiten) {
                    AppState s;
                    s.Programmpfad = ziel;
                    Grundzustand(s, jahr);
                    LeseSchriftenliste(s);
                    s.Kalendertyp = typ;
                    s.Designvariante = variante == 2 ? QStringLiteral("v2") : QString();
                    s.AktuelleDatei = ziel + QStringLiteral("daten/") + QFileInfo(Designdatei(s)).fileName();
                    if (!LoadDesign(s, ui)) return 1;
                    s.Seitennummer = seite;
                    s.Panel.TextTitel = QStringLiteral("Familienkalender %1").arg(jahr);
                    s.Schriftliste(1).Textstring = s.Panel.TextTitel;
                    s.Zoomfaktor = typ == 7 ? 180 : 100;
                    s.GridAn = 0;   // the page as printed, without the editing grid
                    if (typ == 3) { // the pocket card alone, large enough to read
                        s.AktuelleSeite.Breite = 920;
                        s.AktuelleSeite.Höhe = 640;
                        s.Zoomfaktor = 250;
                    }
                    ZeichneSeitenbild(s).save(QStringLiteral("%1/kal%2v%3_s%4.png")
                                                  .arg(vorschau)
                                                  .arg(typ)
                                                  .arg(variante)
                                                  .arg(seite));
                }
            }
    }
    return 0;
}
