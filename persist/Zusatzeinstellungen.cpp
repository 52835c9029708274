#include "persist/Zusatzeinstellungen.h"

#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Einstellungen.h"

#include <QFileInfo>

namespace zp {

QString ZusatzDatei(const AppState& s) {
    return s.Programmpfad + QStringLiteral("zusatz.ini");
}

std::optional<QString> Zusatzwert(const QByteArray& bytes, const QString& schluessel) {
    std::optional<QString> wert;
    for (const QString& zeile : ZeilenAusBytes(bytes)) {
        const IniErgebnis e = ParseIniLine(zeile);
        if (e.gueltig && e.zeile.IniSchluessel == schluessel) wert = e.zeile.IniWert; // the last one counts
    }
    return wert;
}

QByteArray ZusatzwerteSetzen(const QByteArray& bytes, const Zusatzwerte& werte) {
    QStringList zeilen = bytes.isEmpty() ? QStringList() : ZeilenAusBytes(bytes);
    while (!zeilen.isEmpty() && zeilen.last().trimmed().isEmpty())
        zeilen.removeLast();
    for (const auto& [schluessel, wert] : werte) {
        const QString zeile = schluessel + QStringLiteral(" = ") + EinzeiligesFeld(wert);
        bool ersetzt = false;
        for (qsizetype i = 0; i < zeilen.size(); ++i) {
            const IniErgebnis e = ParseIniLine(zeilen[i]);
            if (!e.gueltig || e.zeile.IniSchluessel != schluessel) continue;
            if (ersetzt) {
                zeilen.removeAt(i--); // a doubled key: the one line left holds the new value
            } else {
                zeilen[i] = zeile;
                ersetzt = true;
            }
        }
        if (!ersetzt) zeilen << zeile;
    }
    return BytesAusZeilen(zeilen);
}

bool ZusatzwerteSpeichern(const AppState& s, Oberflaeche& ui, const Zusatzwerte& werte) {
    const QString pfad = ZusatzDatei(s);
    QByteArray alt;
    if (QFileInfo(pfad).isFile()) {
        // A file too large or unreadable to be this one is not merged into; it is written anew.
        if (const auto bytes = LeseDatei(pfad, GroessteKleineDatei)) alt = *bytes;
    }
    QString fehler;
    if (SchreibeDateiAtomar(pfad, ZusatzwerteSetzen(alt, werte), &fehler)) return true;
    MeldeSchreibfehler(ui, pfad, fehler);
    return false;
}

bool LeseZusatzeinstellungen(AppState& s, const QByteArray& bytes, Lesefehler* fehler) {
    bool iso = s.WochennummernIso;
    QString land = s.Bundesland;
    const QStringList zeilen = ZeilenAusBytes(bytes);
    for (int i = 0; i < zeilen.size(); ++i) {
        const IniErgebnis e = ParseIniLine(zeilen[i]);
        if (!e.gueltig) continue;
        const QString& wert = e.zeile.IniWert;
        if (e.zeile.IniSchluessel == QLatin1String("wochennummern")) {
            if (wert.compare(QLatin1String("iso"), Qt::CaseInsensitive) == 0)
                iso = true;
            else if (wert.compare(QLatin1String("montage"), Qt::CaseInsensitive) == 0)
                iso = false;
            else {
                if (fehler) *fehler = {i + 1, QStringLiteral("„wochennummern“ ist „iso“ oder „montage“.")};
                return false;
            }
        } else if (e.zeile.IniSchluessel == QLatin1String("bundesland")) {
            land = wert;
        }
    }
    s.WochennummernIso = iso;
    s.Bundesland = land;
    return true;
}

Zusatzwerte Kalenderzusatzwerte(const AppState& s) {
    return {{QStringLiteral("wochennummern"),
             s.WochennummernIso ? QStringLiteral("iso") : QStringLiteral("montage")},
            {QStringLiteral("bundesland"), s.Bundesland}};
}

QByteArray SchreibeZusatzeinstellungen(const AppState& s) {
    return ZusatzwerteSetzen({}, Kalenderzusatzwerte(s));
}

bool LadeZusatzeinstellungen(AppState& s, Oberflaeche& ui) {
    const QString pfad = ZusatzDatei(s);
    if (!QFileInfo::exists(pfad)) return true;
    const auto bytes = LeseDatei(pfad);
    Lesefehler fehler{0, QStringLiteral("Die Datei kann nicht gelesen werden.")};
    if (bytes && LeseZusatzeinstellungen(s, *bytes, &fehler)) return true;
    MeldeFalschesFormat(ui, pfad, fehler);
    return false;
}

} // namespace zp
