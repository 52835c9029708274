#include "core/Beenden.h"

#include "calendar/data/Kalenderdateien.h"
#include "calendar/data/Kalendertypen.h"
#include "core/Befehlsrahmen.h"
#include "core/Sitzung.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"
#include "persist/Unlesbar.h"
#include "persist/Zusatzeinstellungen.h"

namespace zp {

bool Beenden(AppState& s, Oberflaeche& ui) {
    // A file that can't be read is moved aside before its new one is written; one that can't be
    // moved is left alone. The user hears once, when the exit is done.
    Defektsicherung sicherung(ui);
    bool ok = true;
    const auto schreibe = [&](const QString& pfad, qint64 groesste, const Lesepruefung& lesbar,
                              auto&& speichern) {
        ok = sicherung.Frei(pfad, groesste, lesbar) && Sicher(ui, speichern) && ok;
    };
    const QString& ordner = s.Programmpfad;
    // First, while Datendatei and AktuelleDatei still name the user's files.
    // The session's keys and the calendar's extras share zusatz.ini: one write.
    const Zusatzwerte kalender = s.IstKalender != 0 ? Kalenderzusatzwerte(s) : Zusatzwerte{};
    ok = Sicher(ui, [&] { return SitzungSichern(s, ui, kalender); }) && ok;
    if (s.IstVisitenkarte != 0)
        schreibe(ordner + QStringLiteral("daten.dat"), GroessteDatei, LesbarAlsDatenbank,
                 [&] { return SpeichereDatensaetze(s, ui); });
    schreibe(ordner + QStringLiteral("zp.ini"), GroessteKleineDatei, LesbarAlsEinstellungen,
             [&] { return SaveSettings(s, ui); });
    if (s.IstKalender != 0) {
        schreibe(ordner + QStringLiteral("kalender.ini"), GroessteKleineDatei, LesbarAlsKalenderIni,
                 [&] { return SaveKalenderIni(s, ui); });
        // the day data's safety copy auto.zpd, never the user's file
        ok = Sicher(ui, [&] { return SpeichereAutoDaten(s, ui); }) && ok;
        // The calendar's design goes back to the working design of its type and variant.
        s.AktuelleDatei = Designdatei(s);
        schreibe(
            s.AktuelleDatei, GroessteDatei, [&s](const QByteArray& b) { return LesbarAlsDesign(s, b); },
            [&] { return SaveDesign(s, ui); });
    }
    // The card and CD editions read the catalogue when the page dialog first opens; once read, the
    // user's own rows 1 to 5 are kept as in the label edition. Never read, the file stays as it is.
    if (s.IstEtikett != 0 || s.KartenformatAnzahl > 0)
        schreibe(ordner + QStringLiteral("etikett.ini"), GroessteKleineDatei, LesbarAlsKartenformate,
                 [&] { return SaveKartenformate(s, ui); });
    return ok;
}

} // namespace zp
