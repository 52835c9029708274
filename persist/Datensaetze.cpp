#include "persist/Datensaetze.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Dateimeldungen.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace zp {

namespace {
const QString Kopf = QStringLiteral("ZP Datenbank");
} // namespace

DatenbankLesung LeseDatenbank(const QByteArray& bytes, Datenbank& ziel) {
    ZeilenLeser in(bytes);
    if (in.AtEndOfStream() || in.ReadLine() != Kopf) return DatenbankLesung::FremderKopf;
    in.ReadLine(); // the edition that wrote it
    // Only the version decides the width: files before version 8 have 20 fields a record. The
    // fourth line says 20 in every version and is not looked at.
    const int felder = basic::Val(in.ReadLine()) >= 8.0 ? DatensatzFelder : DatensatzFelderAlt;
    in.ReadLine();
    const int anzahl = in.LeseAnzahl(felder, DatensatzHoechstzahl);

    Datenbank neu;
    neu.FelderJeDatensatz = felder;
    neu.DatensatzAnzahl = anzahl;
    neu.Datensaetze.Redim(DatensatzFelder, anzahl);
    for (int r = 1; r <= anzahl; ++r)
        for (int f = 1; f <= felder; ++f)
            neu.Datensaetze(f, r) = in.ReadLine();
    neu.FremdkodierteZeile = in.FremdkodierteZeile();
    ziel = std::move(neu);
    return DatenbankLesung::Gelesen;
}

QByteArray SchreibeDatenbank(const AppState& s) {
    const auto& tabelle = s.Datensaetze;
    const int anzahl = std::max(0, static_cast<int>(s.DatensatzAnzahl));
    ZeilenSchreiber out;
    out.WriteLine(Kopf);
    out.WriteLine(s.Programmname);
    out.WriteLine(s.Programmversion);
    out.WriteLine(DatensatzFelderAlt); // a constant of the format, whatever the width
    out.WriteLine(anzahl);
    for (int r = 1; r <= anzahl; ++r)
        for (int f = 1; f <= DatensatzFelder; ++f)
            out.WriteLine(tabelle.Gueltig(f, r) ? EinzeiligesFeld(tabelle(f, r)) : QString());
    out.WriteLine(QStringLiteral("-1"));
    return out.Bytes();
}

bool LadeDatensaetze(AppState& s, Oberflaeche& ui) {
    const QString pfad = s.Programmpfad + QStringLiteral("daten.dat");
    if (!QFileInfo::exists(pfad) && !QFileInfo(pfad).isSymLink()) return false;
    QString grund;
    const auto bytes = LeseDatei(pfad, GroessteDatei, &grund);
    if (!bytes) {
        MeldeFalschesFormat(ui, pfad, {0, grund});
        return false;
    }
    Datenbank db;
    try {
        if (LeseDatenbank(*bytes, db) == DatenbankLesung::FremderKopf) {
            ui.Statusmeldung(
                QStringLiteral("Die Adressdatei %1 hat ein fremdes Format und wurde nicht gelesen.")
                    .arg(pfad));
            return false;
        }
    } catch (const FormatFehler& f) {
        MeldeFalschesFormat(ui, pfad, {f.zeile, f.grund});
        return false;
    }
    if (db.FremdkodierteZeile > 0)
        ui.Meldung(
            QStringLiteral("Die Adressdatei enthält Zeichen in fremder Kodierung."),
            QStringLiteral("Warnung!"),
            QStringLiteral("%1, Zeile %2: die Zeile ist kein gültiges UTF-8 und wurde als Windows-1252 "
                           "gelesen. Bitte prüfen Sie die Adresse.")
                .arg(pfad)
                .arg(db.FremdkodierteZeile));
    // An empty database still offers one blank record to type into.
    if (db.DatensatzAnzahl < 1) {
        db.DatensatzAnzahl = 1;
        db.Datensaetze.Redim(DatensatzFelder, 1);
    }
    s.Datensaetze = std::move(db.Datensaetze);
    s.DatensatzAnzahl = db.DatensatzAnzahl;
    s.DatensatzNummer = 1;
    return true;
}

bool SpeichereDatensaetze(const AppState& s, Oberflaeche& ui) {
    const QString pfad = s.Programmpfad + QStringLiteral("daten.dat");
    QString fehler;
    if (SchreibeDateiAtomar(pfad, SchreibeDatenbank(s), &fehler)) return true;
    MeldeSchreibfehler(ui, pfad, fehler);
    return false;
}

} // namespace zp
