#include "persist/Katalogdateien.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"

#include <QFileInfo>

#include <algorithm>

namespace zp {

namespace {

const QString EtikettIni = QStringLiteral("etikett.ini");
const QString KalenderIni = QStringLiteral("kalender.ini");

// Reads `<Programmpfad><name>` with `leser`; a missing file is no fault.
template <typename Leser> bool LadeOptional(AppState& s, Oberflaeche& ui, const QString& name, Leser leser) {
    const QString pfad = s.Programmpfad + name;
    if (!QFileInfo::exists(pfad) && !QFileInfo(pfad).isSymLink()) return true;
    QString grund;
    const auto bytes = LeseDatei(pfad, GroessteKleineDatei, &grund);
    Lesefehler fehler{0, grund};
    if (bytes && leser(s, *bytes, &fehler)) return true;
    MeldeFalschesFormat(ui, pfad, fehler);
    return false;
}

bool Schreibe(const AppState& s, Oberflaeche& ui, const QString& name, const QByteArray& bytes) {
    const QString pfad = s.Programmpfad + name;
    QString fehler;
    if (SchreibeDateiAtomar(pfad, bytes, &fehler)) return true;
    MeldeSchreibfehler(ui, pfad, fehler);
    return false;
}

void Melde(Lesefehler* ziel, const FormatFehler& f) {
    if (ziel) *ziel = {f.zeile, f.grund};
}

} // namespace

bool LeseKartenformate(AppState& s, const QByteArray& bytes, Lesefehler* fehler) {
    try {
        ZeilenLeser leser(bytes);
        Tabelle<QString> werte(10, 400);
        Liste<QString> namen(400);
        int zeile = 1;
        for (;;) {
            const QString name = leser.ReadLine();
            if (zeile > KartenformateMax || name == u"ende") break;
            namen(zeile) = name;
            for (int spalte = 1; spalte <= 10; ++spalte) {
                const QString wert = leser.ReadLine();
                // Every value must be a number, as the catalogue's columns are used as numbers.
                if (!basic::ParseDouble(wert))
                    leser.Fehler(QStringLiteral("„%1“ ist keine Zahl (Spalte %2)").arg(wert).arg(spalte));
                werte(spalte, zeile) = wert;
            }
            ++zeile;
        }
        s.KartenformatWerte = std::move(werte);
        s.KartenformatNamen = std::move(namen);
        s.KartenformatAnzahl = zeile - 1;
        return true;
    } catch (const FormatFehler& f) {
        Melde(fehler, f);
        return false;
    }
}

QByteArray SchreibeKartenformate(const AppState& s) {
    // Every row as it was read or added, the user's own too, then the end mark.
    ZeilenSchreiber w;
    const int anzahl = std::min(static_cast<int>(s.KartenformatAnzahl), KartenformateMax);
    for (int zeile = 1; zeile <= anzahl; ++zeile) {
        w.WriteLine(
            EinzeiligesFeld(s.KartenformatNamen.Gueltig(zeile) ? s.KartenformatNamen(zeile) : QString()));
        for (int spalte = 1; spalte <= 10; ++spalte) {
            const QString wert = s.KartenformatWerte.Gueltig(spalte, zeile)
                                     ? s.KartenformatWerte(spalte, zeile).trimmed()
                                     : QString();
            // The reader takes numbers only: a column left empty goes back as 0.
            w.WriteLine(basic::ParseDouble(wert) ? wert : QStringLiteral("0"));
        }
    }
    w.WriteLine(QStringLiteral("ende"));
    return w.Bytes();
}

bool LeseKalenderIni(AppState& s, const QByteArray& bytes, Lesefehler* fehler) {
    try {
        ZeilenLeser leser(bytes);
        Liste<int16_t> wahl(30);
        for (int i = 1; i <= 30; ++i)
            wahl(i) = leser.LeseInt16();
        const Farbe samstag = leser.LeseInt32();
        const Farbe sonntag = leser.LeseInt32();
        const Farbe feiertag = leser.LeseInt32();
        const Farbe termin = leser.LeseInt32();
        s.FeiertagWahl = std::move(wahl);
        s.FarbeSamstag = samstag;
        s.FarbeSonntag = sonntag;
        s.FarbeFeiertag = feiertag;
        s.FarbeTermin = termin;
        return true;
    } catch (const FormatFehler& f) {
        Melde(fehler, f);
        return false;
    }
}

QByteArray SchreibeKalenderIni(const AppState& s) {
    ZeilenSchreiber w;
    for (int i = 1; i <= 30; ++i)
        w.WriteLine(s.FeiertagWahl.Gueltig(i) ? s.FeiertagWahl(i) : 0);
    w.WriteLine(s.FarbeSamstag);
    w.WriteLine(s.FarbeSonntag);
    w.WriteLine(s.FarbeFeiertag);
    w.WriteLine(s.FarbeTermin);
    return w.Bytes();
}

bool LoadKartenformate(AppState& s, Oberflaeche& ui) {
    return LadeOptional(s, ui, EtikettIni, LeseKartenformate);
}
bool SaveKartenformate(const AppState& s, Oberflaeche& ui) {
    return Schreibe(s, ui, EtikettIni, SchreibeKartenformate(s));
}
bool LoadKalenderIni(AppState& s, Oberflaeche& ui) {
    return LadeOptional(s, ui, KalenderIni, LeseKalenderIni);
}
bool SaveKalenderIni(const AppState& s, Oberflaeche& ui) {
    return Schreibe(s, ui, KalenderIni, SchreibeKalenderIni(s));
}

} // namespace zp
