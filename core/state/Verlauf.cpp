#include "core/state/Verlauf.h"

#include "core/state/AppState.h"

namespace zp {

namespace {

Dokumentstand Stand(const AppState& s) {
    Dokumentstand d;
    d.Rahmenliste = s.Rahmenliste;
    d.Schriftliste = s.Schriftliste;
    d.Bildliste = s.Bildliste;
    d.Linienliste = s.Linienliste;
    d.RTFliste = s.RTFliste;
    d.RahmenAnzahl = s.RahmenAnzahl;
    d.SchriftMax = s.SchriftMax;
    d.BildAnzahl = s.BildAnzahl;
    d.LinieAnzahl = s.LinieAnzahl;
    d.RTFAnzahl = s.RTFAnzahl;
    d.RahmenNummer = s.RahmenNummer;
    d.SchriftNummer = s.SchriftNummer;
    d.BildNummer = s.BildNummer;
    d.LinieNummer = s.LinieNummer;
    d.RTFNummer = s.RTFNummer;
    d.Text1 = s.Panel.Text1;
    d.Datensaetze = s.Datensaetze;
    d.AktuelleSeite = s.AktuelleSeite;
    d.AktuellesEtikett = s.AktuellesEtikett;
    return d;
}

void Zurueckschreiben(AppState& s, Dokumentstand d) {
    s.Rahmenliste = std::move(d.Rahmenliste);
    s.Schriftliste = std::move(d.Schriftliste);
    s.Bildliste = std::move(d.Bildliste);
    s.Linienliste = std::move(d.Linienliste);
    s.RTFliste = std::move(d.RTFliste);
    s.RahmenAnzahl = d.RahmenAnzahl;
    s.SchriftMax = d.SchriftMax;
    s.BildAnzahl = d.BildAnzahl;
    s.LinieAnzahl = d.LinieAnzahl;
    s.RTFAnzahl = d.RTFAnzahl;
    s.RahmenNummer = d.RahmenNummer;
    s.SchriftNummer = d.SchriftNummer;
    s.BildNummer = d.BildNummer;
    s.LinieNummer = d.LinieNummer;
    s.RTFNummer = d.RTFNummer;
    s.Panel.Text1 = std::move(d.Text1);
    s.Datensaetze = std::move(d.Datensaetze);
    s.AktuelleSeite = d.AktuelleSeite;
    s.AktuellesEtikett = d.AktuellesEtikett;
    // A frame waiting to be drawn or a drag under way belongs to the state that is left.
    s.Auswahlmodus = 0;
    s.ZiehenAktiv = 0;
}

void Begrenzen(std::deque<Dokumentstand>& stapel) {
    while (static_cast<int>(stapel.size()) > Bearbeitungsverlauf::Tiefe)
        stapel.pop_front();
}

} // namespace

void VerlaufMerken(AppState& s, bool einfuegen) {
    Dokumentstand d = Stand(s);
    d.Einfuegen = einfuegen;
    s.Verlauf.Zurueck.push_back(std::move(d));
    Begrenzen(s.Verlauf.Zurueck);
    s.Verlauf.VorDemLetzten = std::move(s.Verlauf.Vor);
    s.Verlauf.Vor.clear();
}

void VerlaufZuruecknehmen(AppState& s) {
    if (s.Verlauf.Zurueck.empty()) return;
    s.Verlauf.Zurueck.pop_back();
    s.Verlauf.Vor = std::move(s.Verlauf.VorDemLetzten);
    s.Verlauf.VorDemLetzten.clear();
}

void EinfuegenVerwerfen(AppState& s) {
    if (!s.Verlauf.Zurueck.empty() && s.Verlauf.Zurueck.back().Einfuegen) s.Verlauf.Zurueck.pop_back();
}

bool VerlaufZurueck(AppState& s) {
    if (s.Verlauf.Zurueck.empty()) return false;
    Dokumentstand ziel = std::move(s.Verlauf.Zurueck.back());
    s.Verlauf.Zurueck.pop_back();
    s.Verlauf.Vor.push_back(Stand(s));
    Zurueckschreiben(s, std::move(ziel));
    return true;
}

bool VerlaufVor(AppState& s) {
    if (s.Verlauf.Vor.empty()) return false;
    Dokumentstand ziel = std::move(s.Verlauf.Vor.back());
    s.Verlauf.Vor.pop_back();
    s.Verlauf.Zurueck.push_back(Stand(s));
    Begrenzen(s.Verlauf.Zurueck);
    Zurueckschreiben(s, std::move(ziel));
    return true;
}

void VerlaufLeeren(AppState& s) {
    s.Verlauf.Zurueck.clear();
    s.Verlauf.Vor.clear();
    s.Verlauf.VorDemLetzten.clear();
}

} // namespace zp
