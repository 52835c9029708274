#include "persist/Einstellungen.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Dateimeldungen.h"

#include <QFileInfo>
#include <QPrinterInfo>
#include <QSet>

#include <cmath>
#include <limits>
#include <vector>

namespace zp {

using basic::Str;

namespace {

// What a value that doesn't convert raises: caught by the reader, which then keeps the old state.
struct Wertfehler {
    QString grund;
};

float AlsSingle(const QString& wert) {
    const auto v = basic::ParseDouble(wert);
    if (!v || std::fabs(*v) > std::numeric_limits<float>::max())
        throw Wertfehler{QStringLiteral("„%1“ ist keine Zahl").arg(wert)};
    return static_cast<float>(*v);
}
double AlsDouble(const QString& wert) {
    const auto v = basic::ParseDouble(wert);
    if (!v) throw Wertfehler{QStringLiteral("„%1“ ist keine Zahl").arg(wert)};
    return *v;
}
int32_t AlsLong(const QString& wert) {
    const auto v = basic::ParseInt32(wert);
    if (!v) throw Wertfehler{QStringLiteral("„%1“ ist keine ganze Zahl").arg(wert)};
    return *v;
}
// Numeric prefix, rounded half to even into a 32-bit integer.
int32_t AlsGerundet(const QString& wert) {
    const double v = basic::RoundHalfEven(basic::Val(wert));
    if (v < std::numeric_limits<int32_t>::min() || v > std::numeric_limits<int32_t>::max())
        throw Wertfehler{QStringLiteral("„%1“ ist zu groß").arg(wert)};
    return static_cast<int32_t>(v);
}
Wahrheit AlsWahrheit(const QString& wert) {
    const auto v = basic::ParseBool(wert);
    if (!v) throw Wertfehler{QStringLiteral("„%1“ ist kein Wahrheitswert").arg(wert)};
    return basic::AlsWahrheit(*v);
}
// Form B: a plain integer without the leading blank.
QString FormB(double v) {
    return QString::number(static_cast<qlonglong>(v));
}

// One key: how it is written, what the reader compares, how the value goes in and out.
struct Schluessel {
    QString geschrieben; // "Gitter an = "
    QString gesucht;     // "gitter an"; empty: the reader never matches it
    QString (*schreibe)(const AppState&);
    void (*lese)(AppState&, const QString&);
};

QString AktuellerDrucker(const AppState& s) {
    return s.Druckername.isEmpty() ? QPrinterInfo::defaultPrinterName() : s.Druckername;
}

const std::vector<Schluessel>& Schluesseltabelle() {
    static const std::vector<Schluessel> tabelle = [] {
        std::vector<Schluessel> t = {
            {QStringLiteral("Version = "), QStringLiteral("version"),
             [](const AppState& s) { return s.Programmversion; }, [](AppState&, const QString&) {}},
            // Written as "Startdatei", looked for as "start_datei": never restored.
            {QStringLiteral("Startdatei = "), QStringLiteral("start_datei"),
             [](const AppState& s) { return s.Startdatei; },
             [](AppState& s, const QString& w) { s.Startdatei = w; }},
            {QStringLiteral("Sprache = "), QStringLiteral("sprache"),
             [](const AppState& s) { return s.Sprache; },
             [](AppState& s, const QString& w) { s.Sprache = w; }},
            {QStringLiteral("Gitter an = "), QStringLiteral("gitter an"),
             [](const AppState& s) { return Str(s.GitterAn); },
             [](AppState& s, const QString& w) { s.GitterAn = AlsSingle(w); }},
            {QStringLiteral("Gitter x = "), QStringLiteral("gitter x"),
             [](const AppState& s) { return Str(s.GitterX); },
             [](AppState& s, const QString& w) { s.GitterX = basic::Val(w); }},
            {QStringLiteral("Gitter y = "), QStringLiteral("gitter y"),
             [](const AppState& s) { return Str(s.GitterY); },
             [](AppState& s, const QString& w) { s.GitterY = basic::Val(w); }},
            {QStringLiteral("MM Genau = "), QStringLiteral("mm genau"),
             [](const AppState& s) { return Str(s.MMGenau); },
             [](AppState& s, const QString& w) { s.MMGenau = AlsSingle(w); }},
            {QStringLiteral("Rahmen anzeigen = "), QStringLiteral("rahmen anzeigen"),
             [](const AppState& s) { return Str(s.RahmenAnzeigen); },
             [](AppState& s, const QString& w) { s.RahmenAnzeigen = AlsSingle(w); }},
            {QStringLiteral("Hilfsbereiche = "), QStringLiteral("hilfsbereiche"),
             [](const AppState& s) { return Str(s.HilfsbereicheAn); },
             [](AppState& s, const QString& w) { s.HilfsbereicheAn = AlsSingle(w); }},
            {QStringLiteral("Seitenbreite = "), QStringLiteral("seitenbreite"),
             [](const AppState& s) { return Str(s.AktuelleSeite.Breite); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Breite = AlsLong(w); }},
            {QStringLiteral("Seitenhöhe = "), QStringLiteral("seitenhöhe"),
             [](const AppState& s) { return Str(s.AktuelleSeite.Höhe); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Höhe = AlsLong(w); }},
            {QStringLiteral("Seitenrand links = "), QStringLiteral("seitenrand links"),
             [](const AppState& s) { return Str(s.AktuelleSeite.Randlinks); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Randlinks = AlsGerundet(w); }},
            {QStringLiteral("Seitenrand rechts = "), QStringLiteral("seitenrand rechts"),
             [](const AppState& s) { return Str(s.AktuelleSeite.Randrechts); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Randrechts = AlsGerundet(w); }},
            {QStringLiteral("Seitenrand oben = "), QStringLiteral("seitenrand oben"),
             [](const AppState& s) { return Str(s.AktuelleSeite.Randoben); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Randoben = AlsGerundet(w); }},
            {QStringLiteral("Seitenrand unten = "), QStringLiteral("seitenrand unten"),
             [](const AppState& s) { return Str(s.AktuelleSeite.Randunten); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Randunten = AlsGerundet(w); }},
            {QStringLiteral("Papierart  = "), QStringLiteral("papierart"),
             [](const AppState& s) { return s.AktuelleSeite.Papier; },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Papier = w; }},
            {QStringLiteral("Querformat = "), QStringLiteral("querformat"),
             [](const AppState& s) { return FormB(s.AktuelleSeite.Querformat); },
             [](AppState& s, const QString& w) { s.AktuelleSeite.Querformat = AlsWahrheit(w); }},
            {QStringLiteral("Rasterbreite = "), QStringLiteral("rasterbreite"),
             [](const AppState& s) { return Str(s.Rasterbreite); },
             [](AppState& s, const QString& w) { s.Rasterbreite = basic::Val(w); }},
            {QStringLiteral("Rasterhöhe = "), QStringLiteral("rasterhöhe"),
             [](const AppState& s) { return Str(s.Rasterhoehe); },
             [](AppState& s, const QString& w) { s.Rasterhoehe = basic::Val(w); }},
            {QStringLiteral("Programmname = "), QStringLiteral("programmname"),
             [](const AppState& s) { return s.Programmname; },
             [](AppState& s, const QString& w) { s.Programmname = w; }},
            {QStringLiteral("ZoomExport = "), QStringLiteral("zoomexport"),
             [](const AppState& s) { return Str(s.ZoomExport); },
             [](AppState& s, const QString& w) { s.ZoomExport = basic::Val(w); }},
            {QStringLiteral("Etikett links = "), QStringLiteral("etikett links"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Links); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Links = AlsGerundet(w); }},
            {QStringLiteral("Etikett oben = "), QStringLiteral("etikett oben"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Oben); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Oben = AlsGerundet(w); }},
            {QStringLiteral("Etikett Abstand x = "), QStringLiteral("etikett abstand x"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Abstand_x); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Abstand_x = AlsGerundet(w); }},
            {QStringLiteral("Etikett Abstand y = "), QStringLiteral("etikett abstand y"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Abstand_y); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Abstand_y = AlsGerundet(w); }},
            {QStringLiteral("Etikett Anzahl x = "), QStringLiteral("etikett anzahl x"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Anzahl_x); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Anzahl_x = AlsGerundet(w); }},
            {QStringLiteral("Etikett Anzahl y = "), QStringLiteral("etikett anzahl y"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Anzahl_y); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Anzahl_y = AlsGerundet(w); }},
            {QStringLiteral("Etikett Breite = "), QStringLiteral("etikett breite"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Breite); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Breite = AlsGerundet(w); }},
            {QStringLiteral("Etikett Höhe = "), QStringLiteral("etikett höhe"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Höhe); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Höhe = AlsGerundet(w); }},
            {QStringLiteral("Etikett Rand links = "), QStringLiteral("etikett rand links"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Randlinks); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Randlinks = AlsGerundet(w); }},
            {QStringLiteral("Etikett Rand rechts = "), QStringLiteral("etikett rand rechts"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Randrechts); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Randrechts = AlsGerundet(w); }},
            {QStringLiteral("Etikett Rand oben = "), QStringLiteral("etikett rand oben"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Randoben); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Randoben = AlsGerundet(w); }},
            {QStringLiteral("Etikett Rand unten = "), QStringLiteral("etikett rand unten"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Randunten); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Randunten = AlsGerundet(w); }},
            {QStringLiteral("Etikett Vorlage = "), QStringLiteral("etikett vorlage"),
             [](const AppState& s) { return Str(s.AktuellesEtikett.Vorlage); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Vorlage = AlsLong(w); }},
            {QStringLiteral("Etikett Schnittmarken  = "), QStringLiteral("etikett schnittmarken"),
             [](const AppState& s) { return FormB(s.AktuellesEtikett.Schnittmarken); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Schnittmarken = AlsWahrheit(w); }},
            {QStringLiteral("Etikett Schnittrahmen = "), QStringLiteral("etikett schnittrahmen"),
             [](const AppState& s) { return FormB(s.AktuellesEtikett.Schnittrahmen); },
             [](AppState& s, const QString& w) { s.AktuellesEtikett.Schnittrahmen = AlsWahrheit(w); }},
            {QStringLiteral("Abgleich x = "), QStringLiteral("abgleich x"),
             [](const AppState& s) { return Str(s.AbgleichX); },
             [](AppState& s, const QString& w) { s.AbgleichX = basic::Val(w); }},
            {QStringLiteral("Abgleich y = "), QStringLiteral("abgleich y"),
             [](const AppState& s) { return Str(s.AbgleichY); },
             [](AppState& s, const QString& w) { s.AbgleichY = basic::Val(w); }},
            {QStringLiteral("Kalendertyp = "), QStringLiteral("kalendertyp"),
             [](const AppState& s) { return Str(s.Kalendertyp); },
             [](AppState& s, const QString& w) { s.Kalendertyp = AlsDouble(w); }},
            {QStringLiteral("Kalenderjahr = "), QStringLiteral("kalenderjahr"),
             [](const AppState& s) { return Str(s.Kalenderjahr); },
             [](AppState& s, const QString& w) { s.Kalenderjahr = basic::Val(w); }},
            {QStringLiteral("Grid = "), QStringLiteral("grid"),
             [](const AppState& s) { return FormB(s.GridAn); },
             [](AppState& s, const QString& w) { s.GridAn = AlsSingle(w); }},
            // Only an installed printer becomes the current one; else the system's default stays.
            {QStringLiteral("Drucker = "), QStringLiteral("drucker"), AktuellerDrucker,
             [](AppState& s, const QString& w) {
                 // An empty name asks the print system nothing: most runs never print.
                 if (!w.isEmpty() && QPrinterInfo::availablePrinterNames().contains(w)) s.Druckername = w;
             }},
            {QStringLiteral("Dateien1 = "), QStringLiteral("dateien1"),
             [](const AppState& s) { return s.Dateiliste(1); },
             [](AppState& s, const QString& w) { s.Dateiliste(1) = w; }},
            {QStringLiteral("Dateien2 = "), QStringLiteral("dateien2"),
             [](const AppState& s) { return s.Dateiliste(2); },
             [](AppState& s, const QString& w) { s.Dateiliste(2) = w; }},
            {QStringLiteral("Dateien3 = "), QStringLiteral("dateien3"),
             [](const AppState& s) { return s.Dateiliste(3); },
             [](AppState& s, const QString& w) { s.Dateiliste(3) = w; }},
        };
        return t;
    }();
    return tabelle;
}

bool NamenSchluessel(const QString& schluessel, const QString& stamm, int anzahl, int& nummer) {
    if (!schluessel.startsWith(stamm)) return false;
    bool ok = false;
    nummer = schluessel.mid(stamm.size()).toInt(&ok);
    return ok && nummer >= 1 && nummer <= anzahl && schluessel == stamm + QString::number(nummer);
}

} // namespace

IniErgebnis ParseIniLine(const QString& zeile) {
    const qsizetype gleich = zeile.indexOf(u'=');
    if (gleich < 0) return {};
    return {true, {zeile.left(gleich).trimmed().toLower(), zeile.mid(gleich + 1).trimmed()}};
}

bool LeseEinstellungen(AppState& s, const QByteArray& bytes, Lesefehler* fehler) {
    ZeilenLeser zeilen(bytes);
    // Values go into a copy, so that a file that fails half-way changes nothing.
    AppState neu = s;
    while (!zeilen.AtEndOfStream()) {
        const QString zeile = zeilen.ReadLine();
        const int z = zeilen.Zeilennummer();
        const IniErgebnis e = ParseIniLine(zeile);
        if (!e.gueltig) {
            if (zeile.trimmed().isEmpty()) continue;
            // The file is machine-written: text without "=" means it is not a settings file.
            if (fehler) *fehler = {z, QStringLiteral("Die Zeile hat nicht die Form „Name = Wert“.")};
            return false;
        }
        const QString& key = e.zeile.IniSchluessel;
        const QString& wert = e.zeile.IniWert;
        try {
            bool gefunden = false;
            for (const Schluessel& k : Schluesseltabelle()) {
                if (k.gesucht == key) {
                    k.lese(neu, wert);
                    gefunden = true;
                    break;
                }
            }
            int nr = 0;
            if (!gefunden && NamenSchluessel(key, QStringLiteral("monat"), 12, nr))
                neu.Monatsnamen(nr) = wert;
            else if (!gefunden && NamenSchluessel(key, QStringLiteral("wochentag"), 8, nr))
                neu.Wochentagsnamen(nr) = wert;
        } catch (const Wertfehler& f) {
            if (fehler) *fehler = {z, f.grund};
            return false;
        }
    }
    // The grid that counts is the raster; "Gitter x" and "Gitter y" keep only their place.
    neu.GitterX = neu.Rasterbreite;
    neu.GitterY = neu.Rasterhoehe;
    s = std::move(neu);
    return true;
}

QByteArray SchreibeEinstellungen(const AppState& s) {
    QStringList zeilen;
    for (const Schluessel& k : Schluesseltabelle())
        zeilen << k.geschrieben + k.schreibe(s);
    for (int i = 1; i <= 12; ++i)
        zeilen << QStringLiteral("Monat") + Str(i).trimmed() + QStringLiteral(" = ") + s.Monatsnamen(i);
    for (int i = 1; i <= 8; ++i)
        zeilen << QStringLiteral("Wochentag") + Str(i).trimmed() + QStringLiteral(" = ") +
                      s.Wochentagsnamen(i);
    return BytesAusZeilen(zeilen);
}

QStringList FehlendeEinstellungen(const QByteArray& bytes) {
    QSet<QString> gesehen;
    ZeilenLeser zeilen(bytes);
    while (!zeilen.AtEndOfStream()) {
        const IniErgebnis e = ParseIniLine(zeilen.ReadLine());
        if (e.gueltig) gesehen << e.zeile.IniSchluessel;
    }
    // A key counts under the name it is looked for and under the one it is written with, as
    // "Startdatei" is looked for as "start_datei".
    QStringList fehlend;
    for (const Schluessel& k : Schluesseltabelle()) {
        const QString geschrieben = k.geschrieben.section(u'=', 0, 0).trimmed().toLower();
        if (!gesehen.contains(k.gesucht) && !gesehen.contains(geschrieben))
            fehlend << k.geschrieben.section(u'=', 0, 0).trimmed();
    }
    for (int i = 1; i <= 12; ++i)
        if (!gesehen.contains(QStringLiteral("monat%1").arg(i))) fehlend << QStringLiteral("Monat%1").arg(i);
    for (int i = 1; i <= 8; ++i)
        if (!gesehen.contains(QStringLiteral("wochentag%1").arg(i)))
            fehlend << QStringLiteral("Wochentag%1").arg(i);
    return fehlend;
}

bool LoadSettings(AppState& s, Oberflaeche& ui) {
    const QString pfad = s.Programmpfad + QStringLiteral("zp.ini");
    if (!QFileInfo::exists(pfad) && !QFileInfo(pfad).isSymLink()) return true; // missing: the defaults stand
    QString grund;
    const auto bytes = LeseDatei(pfad, GroessteKleineDatei, &grund);
    Lesefehler fehler{0, grund};
    if (bytes && LeseEinstellungen(s, *bytes, &fehler)) {
        const QStringList fehlend = FehlendeEinstellungen(*bytes);
        if (fehlend.isEmpty()) return true;
        // A file cut short: what it holds counts, the rest stays at the defaults, and the exit
        // keeps the file aside rather than write those defaults over it.
        fehler = {0,
                  QStringLiteral("Die Einstellungsdatei ist unvollständig: es fehlen %1 von %2 Einstellungen "
                                 "(%3). Für sie gelten die Vorgaben.")
                      .arg(fehlend.size())
                      .arg(Schluesseltabelle().size() + 20)
                      .arg(fehlend.mid(0, 3).join(QStringLiteral(", ")) +
                           (fehlend.size() > 3 ? QStringLiteral(", …") : QString()))};
    }
    MeldeFalschesFormat(ui, pfad, fehler);
    return false;
}

bool SaveSettings(const AppState& s, Oberflaeche& ui) {
    const QString pfad = s.Programmpfad + QStringLiteral("zp.ini");
    QString fehler;
    if (SchreibeDateiAtomar(pfad, SchreibeEinstellungen(s), &fehler)) return true;
    MeldeSchreibfehler(ui, pfad, fehler);
    return false;
}

} // namespace zp
