#include "core/Start.h"

#include "calendar/data/Kalendertypen.h"
#include "core/Datensatzbefehle.h"
#include "core/Programmordner.h"
#include "core/Sitzung.h"
#include "core/runtime/Basic.h"
#include "core/runtime/Dateischreiber.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"
#include "persist/Zusatzeinstellungen.h"

#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace zp {

using basic::RGB;

namespace {

// The colour picker's palette: six shades per hue, 0x00BBGGRR.
constexpr Farbe Palette[48] = {
    0x000000, 0x404040, 0x808080, 0xC0C0C0, 0xE0E0E0, 0xFFFFFF, 0x000040, 0x000080, 0x0000C0, 0x0000FF,
    0x8080FF, 0xC0C0FF, 0x404080, 0x004080, 0x0040C0, 0x0080FF, 0x80C0FF, 0xC0E0FF, 0x004040, 0x008080,
    0x00C0C0, 0x00FFFF, 0x80FFFF, 0xC0FFFF, 0x004000, 0x008000, 0x00C000, 0x00FF00, 0x80FF80, 0xC0FFC0,
    0x404000, 0x808000, 0xC0C000, 0xFFFF00, 0xFFFF80, 0xFFFFC0, 0x400000, 0x800000, 0xC00000, 0xFF0000,
    0xFF8080, 0xFFC0C0, 0x400040, 0x800080, 0xC000C0, 0xFF00FF, 0xFF80FF, 0xFFC0FF};

void LeseBildschirm(AppState& s) {
    // Without a screen (no GUI application) the classic 96 dpi stand: 15 twips per pixel.
    const QScreen* screen = qobject_cast<QGuiApplication*>(QCoreApplication::instance())
                                ? QGuiApplication::primaryScreen()
                                : nullptr;
    const double dpiX = screen && screen->logicalDotsPerInchX() > 0 ? screen->logicalDotsPerInchX() : 96;
    const double dpiY = screen && screen->logicalDotsPerInchY() > 0 ? screen->logicalDotsPerInchY() : 96;
    s.TwipsProPixelX = 1440.0 / dpiX;
    s.TwipsProPixelY = 1440.0 / dpiY;
    const QSize groesse = screen ? screen->size() : QSize(1024, 768);
    s.BildschirmBreite = groesse.width() * s.TwipsProPixelX;
    s.BildschirmHoehe = groesse.height() * s.TwipsProPixelY;
}

void Kalendervorgaben(AppState& s) {
    // 1. Calendar defaults, until the settings are read.
    s.Kalenderjahr = 2002;
    s.Kalendertyp = 1;
    s.Seitennummer = 1;
    s.Seitenanzahl = 2;
    s.FarbeSonntag = RGB(255, 0, 0);
    s.FarbeFeiertag = RGB(0, 255, 0);
    s.WocheTag = 0;
    s.WocheMonat = 1;
    s.Kalendertitel = QStringLiteral("Testkalender");
    s.Kalenderunterschrift = QStringLiteral("Text unter dem Kalender");
}

void Listengroessen(AppState& s) {
    // 9. Array sizes; index 0 stays empty.
    s.Schriftliste.Redim(30);
    s.Bildliste.Redim(1);
    s.Rahmenliste.Redim(31);
    s.Linienliste.Redim(1);
    s.Farbtabelle.Redim(60);
    s.RTFliste.Redim(1);
    s.Datensaetze.Redim(10, 20);
    s.KartenformatWerte.Redim(10, 400);
    s.KartenformatNamen.Redim(400);
    s.KartenformatAnzahl = 0;
    s.Termine.Redim(31, 12);
    s.TerminSchrift.Redim(31, 12, -1);
    s.TerminBack.Redim(31, 12, -1);
    s.Feiertage.Redim(31, 12);
    s.FeiertagSchrift.Redim(31, 12, -1);
    s.FeiertagBack.Redim(31, 12, -1);
    s.FeiertagWahl.Redim(30);
    s.Monatsnamen.Redim(12);
    s.Wochentagsnamen.Redim(8);
    s.Monatsbilder.Redim(12);
    s.Monatsbildtexte.Redim(12);
}

void PaletteUndNamen(AppState& s) {
    // 10. Palette, names, the first letter body.
    for (int i = 0; i < 48; ++i)
        s.Farbtabelle(i + 1) = Palette[i];
    static const char* const monate[12] = {"Januar",    "Februar", "März",     "April",
                                           "Mai",       "Juni",    "Juli",     "August",
                                           "September", "Oktober", "November", "Dezember"};
    for (int i = 1; i <= 12; ++i)
        s.Monatsnamen(i) = QString::fromUtf8(monate[i - 1]);
    static const char* const tage[8] = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
    for (int i = 1; i <= 8; ++i)
        s.Wochentagsnamen(i) = QString::fromLatin1(tage[i - 1]);
    s.RTFliste(1) = QStringLiteral("RTF1.rtf");
}

void EingebautesDokument(AppState& s) {
    // 11. The built-in document: 30 text frames and the letter-body frame.
    s.RahmenAnzahl = 0;
    for (int n = 1; n <= 30; ++n) {
        ErzeugeRahmen(s, n, QStringLiteral("Schrift"), n);
        s.Rahmenliste(n).Data = basic::Wahr;
    }
    ErzeugeRahmen(s, 31, QStringLiteral("RTF"), 1);
    s.Rahmenliste(31).Data = basic::Wahr;
    s.Rahmenliste(31).Sichtbar = basic::Wahr;
    for (int n = 1; n <= 30; ++n)
        ErzeugeSchrift(s, n);
    ErzeugeBild(s, 1);
}

void Startwerte(AppState& s) {
    // 12. Bookkeeping.
    s.Schriftliste(1).Data = 1;
    s.SchriftNummer = 1;
    s.SchriftMax = 30;
    s.FesteRahmen = 31;
    s.BildNummer = 0;
    s.BildAnzahl = 0;
    s.RahmenNummer = 1;
    s.Zoomfaktor = 150;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2980;
    s.RTFNummer = 1;
    s.RTFAnzahl = 1;
    s.DatensatzNummer = 1;
    s.DatensatzAnzahl = 10;
    s.AktuellesEtikett.Muster = 1;
    s.AktuellesEtikett.Designbreite = 80;
    s.AktuellesEtikett.Farbe1 = RGB(0, 0, 0);
    s.AktuellesEtikett.Farbe2 = RGB(255, 255, 255);
    s.AktuellesEtikett.Farbe3 = RGB(255, 255, 255);
    s.GridAn = -1;
    s.Rasterbreite = 100;
    s.Rasterhoehe = 100;
    s.GitterX = 100;
    s.GitterY = 50;
    s.GitterAn = 0;
    s.RahmenAnzeigen = 0;
}

void EinstellungenUndEdition(AppState& s, Oberflaeche& ui) {
    // 13. and 14. Settings, then the edition they name. Before them, what a save cut off by a
    // crash or kill left behind goes: the files themselves are whole, old or new.
    RaeumeZwischendateienAuf(s, ui);
    if (!LoadSettings(s, ui) && s.Programmname.isEmpty()) {
        // Settings that could not be read name no edition: the folder's name may, as the
        // per-user folders are named by their edition.
        const QString edition = NormaleEdition(QFileInfo(s.Programmpfad.chopped(1)).fileName());
        if (!edition.isEmpty()) {
            s.Programmname = ProgrammnameDerEdition(edition);
            ui.Statusmeldung(
                QStringLiteral("Die Ausgabe „%1“ wurde nach dem Namen des Programmordners gewählt.")
                    .arg(edition));
        }
    }
    SetzeEditionsflags(s);
}

} // namespace

void Main(AppState& s, const QString& programmpfad, Oberflaeche& ui) {
    Kalendervorgaben(s);

    // 2. Hourglass; version.
    ui.Mauszeiger(11);
    s.Programmversion = QStringLiteral("8.02");

    // 3. Dialog colours.
    s.Dialogfarbe1 = RGB(192, 255, 192);
    s.Dialogfarbe2 = RGB(192, 192, 192);
    s.Dialogfarbe3 = RGB(0, 0, 0);
    s.Dialogfarbe4 = RGB(255, 0, 0);
    s.Dialogfarbe5 = RGB(255, 255, 255);

    // 4. and 5. The screen and the twips per tenth of a millimetre.
    LeseBildschirm(s);
    s.Geraetefaktor = TwipsJeZehntelmm;

    // 6. and 7. Paths, one-shot colour, start-up lock.
    s.Programmpfad = programmpfad.endsWith(u'/') ? programmpfad : programmpfad + u'/';
    s.Hilfedatei = s.Programmpfad + QStringLiteral("deutsch.hlp");
    s.Farbvorgabe = -1;
    s.Seriennummer = 1; // the running number until a print sets it
    s.Datendatei = s.Programmpfad + QStringLiteral("neu.zpd");
    s.LadeSperre = 255;

    // 8. Work objects and the page and sheet of the document.
    s.AktuelleSchrift = {};
    s.AktuellesBild = {};
    s.AktuelleLinie = {};
    s.AktuellerRahmen = {};
    s.SeiteKopie = {};
    s.EtikettKopie = {};
    s.AktuelleSeite = {};
    s.AktuellesEtikett = {};

    Listengroessen(s);
    PaletteUndNamen(s);
    EingebautesDokument(s);
    Startwerte(s);

    EinstellungenUndEdition(s, ui);

    // 15. Normal pointer; the window comes next.
    ui.Mauszeiger(0);
}

void RaeumeZwischendateienAuf(const AppState& s, Oberflaeche& ui) {
    QStringList entfernt = EntferneZwischendateien(s.Programmpfad);
    entfernt += EntferneZwischendateien(s.Programmpfad + QStringLiteral("daten"));
    if (!entfernt.isEmpty())
        ui.Statusmeldung(QStringLiteral("Unfertige Dateien eines abgebrochenen Speicherns entfernt: %1")
                             .arg(entfernt.join(QStringLiteral(", "))));
}

void SetzeEditionsflags(AppState& s) {
    s.IstKalender = s.IstVisitenkarte = s.IstBriefkopf = s.IstEtikett = s.IstCDHuelle = 0;
    const QString& name = s.Programmname;
    if (name == u"ZP Kalender")
        s.IstKalender = -1;
    else if (name == u"ZP Visitenkarte")
        s.IstVisitenkarte = -1;
    else if (name == u"ZP Briefkopf")
        s.IstBriefkopf = -1;
    else if (name == u"ZP Etikett")
        s.IstEtikett = -1;
    else if (name == QStringLiteral("ZP CD-Hülle"))
        s.IstCDHuelle = -1;
}

QStringList Schriftfamilien() {
    // Qt names a family that several foundries offer "C059 [UKWN]"; the user and the design files
    // know it as "C059". Arial is what the designs name most: fontconfig gives it a metric twin.
    QStringList familien;
    for (QString f : QFontDatabase::families()) {
        const qsizetype klammer = f.indexOf(QStringLiteral(" ["));
        if (klammer > 0 && f.endsWith(u']')) f.truncate(klammer);
        if (!familien.contains(f)) familien << f;
    }
    if (!familien.contains(QStringLiteral("Arial"))) familien << QStringLiteral("Arial");
    familien.sort(Qt::CaseInsensitive);
    return familien;
}

void LeseSchriftenliste(AppState& s) {
    const QStringList familien = Schriftfamilien();
    const int anzahl = std::min<int>(familien.size(), s.Schriftenliste.Obergrenze() - 1);
    for (int i = 0; i < anzahl; ++i) {
        s.Schriftenliste(i + 1) = familien[i];
        // A family that fontconfig stands in for (Arial) is as scalable as its stand-in.
        const bool skalierbar = QFontDatabase::isScalable(familien[i]) ||
                                QFontDatabase::isScalable(QFontInfo(QFont(familien[i])).family());
        s.SchriftSkalierbar(i + 1) = skalierbar ? basic::Wahr : basic::Falsch;
    }
    s.Schriftenliste(anzahl + 1) = QStringLiteral("-1");
}

bool LadeStartzustand(AppState& s, Oberflaeche& ui) {
    LeseSchriftenliste(s);
    if (s.IstKalender != 0) {
        // A calendar starts without data: empty day tables, texts and the data file "neu.zpd".
        s.Termine.Fuelle({});
        s.Feiertage.Fuelle({});
        s.TerminSchrift.Fuelle(-1);
        s.TerminBack.Fuelle(-1);
        s.FeiertagSchrift.Fuelle(-1);
        s.FeiertagBack.Fuelle(-1);
        s.Panel.TextTermin.clear();
        s.Panel.TextTitel.clear();
        s.Panel.TextUnterschrift.clear();
        s.Panel.PictureTextfarbe = s.Panel.PictureHintergrundfarbe = 0xFFFFFF;
        s.Panel.PictureFeiertagSchrift = s.Panel.PictureFeiertagBack = 0xFFFFFF;
        s.Datendatei = s.Programmpfad + QStringLiteral("neu.zpd");
        ui.StatusDatei(s.Datendatei);
        // The day data of the last session, unless switched off; the design comes with the type.
        SitzungWiederherstellen(s, ui);
        LoadKalenderIni(s, ui);
        LadeZusatzeinstellungen(s, ui);
        // The month views cover the calendar year; a date outside it moves in first.
        const int jahr = std::clamp(static_cast<int>(s.Kalenderjahr), 100, 9999);
        for (Monatsansicht* ansicht : {&s.Panel.MonthView1, &s.Panel.MonthView2}) {
            ansicht->MinDate = QDate(jahr, 1, 1);
            ansicht->MaxDate = QDate(jahr, 12, 31);
            if (!ansicht->Value.isValid() || ansicht->Value < ansicht->MinDate ||
                ansicht->Value > ansicht->MaxDate)
                ansicht->Value = ansicht->MinDate;
        }
        s.Panel.Textbilddatei = s.Monatsbilder(1);
        s.Panel.TextBildbeschreibung = s.Monatsbildtexte(1);
        ui.SeitentitelAktualisieren();
    }
    if (s.IstVisitenkarte != 0) {
        LadeDatensaetze(s, ui);
        s.SchriftNummer = 21;
    }
    if (s.IstEtikett != 0) {
        LoadKartenformate(s, ui);
        s.SchriftNummer = 1;
    }
    // The start document: the calendar type's working design, else the new document.
    if (s.IstKalender != 0)
        s.AktuelleDatei = Designdatei(s);
    else
        s.Ladevorgabe = QStringLiteral("neu");
    const bool geladen = LoadDesign(s, ui);
    // The other editions bring back the document of the last session over the start document.
    if (s.IstKalender == 0) SitzungWiederherstellen(s, ui);
    // Last: the record on view fills the panel boxes 21 to 30 and the texts that show them.
    if (s.IstKalender == 0) ZeigeDatensatz(s, ui);
    return geladen;
}

} // namespace zp
