#pragma once
// A print request as the print dialog fills it, and the dialog's "Drucken" command without the
// window: the page range and zoom repairs, the copies per edition and the loop over the addresses.

#include "output/PrintDocument.h"

#include <QString>
#include <functional>

namespace zp {

struct Druckauftrag {
    Druckwahl Wahl;
    bool EineKarte = false;                   // "Eine Karte drucken"
    QString DruckStart = QStringLiteral("1"); // "Drucke Seite von"
    QString DruckEnde;                        // "bis"; empty: the last page
    QString Prozent = QStringLiteral("100");  // "Ausdruckgröße in %"
};

// Progress of a request: the page being printed and the pages expected. False cancels.
using Druckfortschritt = std::function<bool(int seite, int gesamt)>;

// Requests above this many pages are printed only after the user agreed.
inline constexpr int kSeitenOhneFrage = 10000;

// Runs the request on `ausgabe`: the rules of the dialog's "Drucken" button. `hilfen.Fortschritt` is
// replaced by `fortschritt`, which also learns the expected page count.
Druckergebnis CommandDrucken(AppState& s, Oberflaeche& o, Druckausgabe& ausgabe, const Druckauftrag& auftrag,
                             Druckhilfen hilfen, const Druckfortschritt& fortschritt = {});

// The calendar's page range and print zoom from the dialog's boxes, repaired.
void UebernimmSeitenbereich(AppState& s, const Druckauftrag& auftrag);

// How many pages the request will give, for progress and the question before a very long run.
[[nodiscard]] double ErwarteteSeiten(const AppState& s, const Druckauftrag& auftrag, bool kopienSelbst);

} // namespace zp
