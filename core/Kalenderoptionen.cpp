#include "core/Kalenderoptionen.h"

#include "core/Programmordner.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Dateimeldungen.h"
#include "persist/Datensaetze.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace zp {

bool KalenderEditieren(AppState& s) {
    s.KalenderBearbeiten = s.KalenderBearbeiten == 0 ? -1 : 0;
    return s.KalenderBearbeiten != 0;
}

const QStringList& KalenderdesignTexte() {
    static const QStringList liste = {QStringLiteral("Titel des Kalenders (Überschrift)"),
                                      QStringLiteral("Monatsname (Januar, Februar...)"),
                                      QStringLiteral("Tagesziffer (1..31)"),
                                      QStringLiteral("Wochentag (Mo...So)"),
                                      QStringLiteral("Termintext (Geburtstag...)"),
                                      QStringLiteral("Wochennummer (1...52)"),
                                      QStringLiteral("Fußzeile (Text unter dem Kalender)")};
    return liste;
}

const QStringList& KalenderdesignRahmen() {
    static const QStringList liste = {
        QStringLiteral("Hintergrund des Kalenders"),    QStringLiteral("Titelrahmen (Überschrift)"),
        QStringLiteral("Monatsrahmen (Januar...)"),     QStringLiteral("Tagesrahmen (1...31)"),
        QStringLiteral("Terminrahmen (Geburtstag...)"), QStringLiteral("Wochentrennungslinie (1...52)"),
        QStringLiteral("Monatsgruppenrahmen")};
    return liste;
}

namespace {
// The frame exists and points at the object it should: a design that lacks it opens nothing.
bool RahmenZeigtAuf(const AppState& s, int n, const char* typ, int objekt) {
    if (n < 1 || n > s.RahmenAnzahl || !s.Rahmenliste.Gueltig(n)) return false;
    const ClassRahmen& r = s.Rahmenliste(n);
    return r.Objekttyp == QLatin1String(typ) && static_cast<int>(r.Objektnummer) == objekt;
}
} // namespace

int KalenderdesignTextWaehlen(AppState& s, int index) {
    const int k = std::max(1, index + 1);
    if (!RahmenZeigtAuf(s, k, "Schrift", k) || !s.Schriftliste.Gueltig(k)) return 0;
    s.SchriftNummer = k;
    s.RahmenNummer = k;
    return k;
}

int KalenderdesignRahmenWaehlen(AppState& s, int index) {
    const int k = std::max(1, index);
    if (!RahmenZeigtAuf(s, 31 + k, "Linie", k) || !s.Linienliste.Gueltig(k)) return 0;
    s.LinieNummer = k;
    s.RahmenNummer = 31 + k;
    return 31 + k;
}

bool WochenlinieAenderbar(const AppState& s) {
    const int typ = static_cast<int>(s.Kalendertyp);
    return typ == 1 || typ == 2 || typ == 7;
}

QString GeburtstagsdateiVorschlag(const AppState& s) {
    const QString name = QStringLiteral("daten.dat");
    QDir nebenan(s.Programmpfad);
    if (nebenan.cdUp() && nebenan.exists(QStringLiteral("Visitenkarte/") + name))
        return nebenan.filePath(QStringLiteral("Visitenkarte/") + name);
    // The per-user folder of the edition; a program folder chosen by the current directory is the
    // calendar's own and holds no addresses of the cards.
    const QString ordner = WaehleProgrammordner({}, QStringLiteral("Visitenkarte"));
    const QString eigener = ordner + u'/' + name;
    if (QDir(ordner) == QDir(s.Programmpfad)) return {};
    return QFileInfo::exists(eigener) ? eigener : QString();
}

std::optional<Geburtstagsbilanz> GeburtstageUebernehmen(AppState& s, Oberflaeche& ui, QString pfad) {
    const QString titel = QStringLiteral("Geburtstage übernehmen");
    if (pfad.isEmpty()) pfad = GeburtstagsdateiVorschlag(s);
    if (pfad.isEmpty())
        pfad = ui.DateiWaehlen(QStringLiteral("Adressdatei öffnen"),
                               QStringLiteral("Adressen (*.dat)|*.dat|Alle Dateien (*.*)|*.*"), false);
    if (pfad.isEmpty()) return std::nullopt;

    const auto bytes = LeseDatei(pfad);
    if (!bytes) {
        ui.Meldung(QStringLiteral("Die Adressdatei kann nicht gelesen werden."), titel, pfad);
        return std::nullopt;
    }
    Datenbank db;
    try {
        if (LeseDatenbank(*bytes, db) == DatenbankLesung::FremderKopf) {
            ui.Meldung(QStringLiteral("Die Datei ist keine Adressdatei dieses Programms."), titel, pfad);
            return std::nullopt;
        }
    } catch (const FormatFehler& f) {
        MeldeFalschesFormat(ui, pfad, {f.zeile, f.grund});
        return std::nullopt;
    }
    // Only new lines are written, so a file without dates leaves the calendar as it was.
    const Geburtstagsbilanz bilanz = GeburtstageEintragen(s, db);
    if (bilanz.uebernommen + bilanz.schonDa + bilanz.inZukunft + bilanz.unmoeglich == 0) {
        ui.Meldung(QStringLiteral("Die Adressdatei enthält keine Geburtsdaten (TT.MM.JJJJ oder TT.MM.)."),
                   titel, pfad);
        return std::nullopt;
    }
    return bilanz;
}

} // namespace zp
