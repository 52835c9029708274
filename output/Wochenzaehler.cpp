// Week counters and page counts of the calendar types, as the print run steps through the pages.
// The counting itself is the calendar walk's; the print run steps the state's counters.
#include "output/PrintDocument.h"

#include "calendar/data/Kalendertypen.h"
#include "calendar/walks/KalenderLauf.h"
#include "core/state/AppState.h"

namespace zp {

int SeitenanzahlDesTyps(int kalendertyp) {
    return Seitenanzahl(kalendertyp);
}

void WocheWeiter(AppState& s, int seite) {
    NaechsteWoche(static_cast<int>(s.Kalenderjahr), seite, s.WocheTag, s.WocheMonat);
}

void WocheAufSeite(AppState& s, int seite) {
    Wochenstart(static_cast<int>(s.Kalenderjahr), seite, s.WocheTag, s.WocheMonat);
}

} // namespace zp
