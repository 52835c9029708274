// The options dialog on the command line: --bundesland presets the holiday switches of a state,
// --wochennummern chooses the week count, --geburtstage takes the birthdays of an address file.
// Each hands over what the dialog's boxes would, and is kept at the exit like the dialog's "Ok".
#include "app/Kommandozeile.h"

#include "calendar/data/Kalenderoptionen.h"
#include "calendar/data/Landesfeiertage.h"
#include "core/Kalenderoptionen.h"
#include "core/state/AppState.h"

namespace {

using zp::Batchlauf;

bool NurKalender(Batchlauf& lauf, const QString& option) {
    if (lauf.s.IstKalender != 0) return true;
    lauf.Fehler(QStringLiteral("%1 gibt es nur in der Ausgabe Kalender.").arg(option));
    return false;
}

bool Bundesland(Batchlauf& lauf, const QString& land) {
    if (!NurKalender(lauf, QStringLiteral("--bundesland"))) return false;
    zp::Optionenwahl wahl = zp::OptionenAusZustand(lauf.s);
    if (!zp::BundeslandGewaehlt(wahl, land)) {
        lauf.Fehler(QStringLiteral("Unbekanntes Bundesland \"%1\". Möglich sind: %2.")
                        .arg(land, zp::Bundeslaender().join(QStringLiteral(", "))));
        return false;
    }
    zp::OptionenUebernehmen(lauf.s, wahl);
    return true;
}

bool Wochennummern(Batchlauf& lauf, const QString& art) {
    if (!NurKalender(lauf, QStringLiteral("--wochennummern"))) return false;
    if (art != QLatin1String("iso") && art != QLatin1String("montage")) {
        lauf.Fehler(
            QStringLiteral("--wochennummern erwartet \"iso\" oder \"montage\", nicht \"%1\".").arg(art));
        return false;
    }
    zp::Optionenwahl wahl = zp::OptionenAusZustand(lauf.s);
    wahl.isoWochen = art == QLatin1String("iso");
    zp::OptionenUebernehmen(lauf.s, wahl);
    return true;
}

bool Geburtstage(Batchlauf& lauf, const QString& datei) {
    if (!NurKalender(lauf, QStringLiteral("--geburtstage"))) return false;
    const auto bilanz = zp::GeburtstageUebernehmen(lauf.s, lauf.ui, datei);
    if (!bilanz) return false;
    lauf.ui.Meldung(zp::Bilanztext(*bilanz), QStringLiteral("Geburtstage übernehmen"));
    return true;
}

const bool registriert = [] {
    using zp::OptionArt;
    zp::RegistriereOption(
        {QStringLiteral("--bundesland"), QStringLiteral("NAME"),
         QStringLiteral("die gesetzlichen Feiertage eines Bundeslands (oder \"bundesweit\") "
                        "ankreuzen; mit --feiertage berechnen"),
         OptionArt::Aktion, Bundesland});
    zp::RegistriereOption({QStringLiteral("--wochennummern"), QStringLiteral("iso|montage"),
                           QStringLiteral("Wochennummern nach DIN/ISO 8601 oder als Zahl der Montage"),
                           OptionArt::Aktion, Wochennummern});
    zp::RegistriereOption(
        {QStringLiteral("--geburtstage"), QStringLiteral("DATEI"),
         QStringLiteral("die Geburtstage einer Adressdatei (daten.dat) als Termine eintragen"),
         OptionArt::Aktion, Geburtstage});
    return true;
}();

} // namespace
