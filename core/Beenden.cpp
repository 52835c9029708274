#include "core/Beenden.h"

#include "calendar/data/Kalenderdateien.h"
#include "calendar/data/Kalendertypen.h"
#include "core/Sitzung.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"

namespace zp {

bool BeendenDateienSchreiben(AppState& s, Oberflaeche& ui) {
    // First, while Datendatei and AktuelleDatei still name the user's files.
    bool ok = SitzungSichern(s, ui);
    if (s.IstVisitenkarte != 0) ok = SpeichereDatensaetze(s, ui) && ok;
    ok = SaveSettings(s, ui) && ok;
    if (s.IstKalender != 0) {
        ok = SaveKalenderIni(s, ui) && ok;
        ok = SpeichereAutoDaten(s, ui) && ok; // the day data's safety copy auto.zpd
        // The calendar's design goes back to the working design of its type and variant.
        s.AktuelleDatei = Designdatei(s);
        ok = SaveDesign(s, ui) && ok;
    }
    if (s.IstEtikett != 0) ok = SaveKartenformate(s, ui) && ok;
    return ok;
}

} // namespace zp
