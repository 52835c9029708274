#include "core/state/Inhalt.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"

namespace zp {

namespace {

// The list of an object kind, with its count and current number, seen through one interface.
template <typename T> void EntferneObjekt(Liste<T>& liste, double& anzahl, int position) {
    const int letzte = static_cast<int>(anzahl);
    for (int k = position; k < letzte; ++k)
        liste(k) = liste(k + 1);
    if (letzte >= 1 && letzte <= liste.Obergrenze()) liste(letzte) = T{};
    anzahl -= 1;
}

bool IstKarte(const AppState& s) {
    return s.IstEtikett != 0 || s.IstVisitenkarte != 0;
}

} // namespace

int FuegeInhaltEin(AppState& s, const QString& typ) {
    int objekt = 0;
    if (typ == u"Schrift") {
        if (s.SchriftMax == s.Schriftliste.Obergrenze())
            s.Schriftliste.RedimPreserve(s.Schriftliste.Obergrenze() + 1);
        s.SchriftMax += 1;
        s.SchriftNummer = s.SchriftMax;
        objekt = static_cast<int>(s.SchriftMax);
    } else if (typ == u"Bild") {
        if (s.BildAnzahl == s.Bildliste.Obergrenze()) s.Bildliste.RedimPreserve(s.Bildliste.Obergrenze() + 1);
        s.BildAnzahl += 1;
        s.BildNummer = s.BildAnzahl;
        objekt = static_cast<int>(s.BildAnzahl);
    } else if (typ == u"Linie") {
        if (s.LinieAnzahl == s.Linienliste.Obergrenze())
            s.Linienliste.RedimPreserve(s.Linienliste.Obergrenze() + 1);
        s.LinieAnzahl += 1;
        s.LinieNummer = s.LinieAnzahl;
        objekt = static_cast<int>(s.LinieAnzahl);
    } else {
        return 0;
    }
    const int n = static_cast<int>(s.RahmenAnzahl) + 1;
    ErzeugeRahmen(s, n, typ, objekt);
    s.RahmenNummer = s.RahmenAnzahl;
    if (typ == u"Schrift") ErzeugeSchrift(s, objekt);
    if (typ == u"Bild") ErzeugeBild(s, objekt);
    if (typ == u"Linie") ErzeugeLinie(s, objekt);
    ClassRahmen& r = s.Rahmenliste(n);
    r.Objektnummer = objekt;
    if (typ == u"Bild") r.Proportional = basic::Wahr;
    // Invisible until the user has drawn it on the page.
    r.Sichtbar = basic::Falsch;
    s.Auswahlmodus = 1;
    return n;
}

Loeschergebnis LoescheRahmen(AppState& s, Oberflaeche& ui, bool schonGefragt) {
    const int nummer = static_cast<int>(s.RahmenNummer);
    if (nummer < 1 || nummer > static_cast<int>(s.RahmenAnzahl)) return Loeschergebnis::Unveraendert;
    ClassRahmen& rahmen = s.Rahmenliste(nummer);

    // Template frames and record pictures stay: they can only be emptied.
    if (rahmen.bilddaten > 0 || nummer <= s.FesteRahmen) {
        if (s.IstKalender != 0) return Loeschergebnis::Unveraendert;
        Loeschergebnis ergebnis = Loeschergebnis::Geleert;
        if (rahmen.Objekttyp == u"Schrift") {
            const int t = static_cast<int>(rahmen.Objektnummer);
            if (s.Schriftliste.Gueltig(t)) s.Schriftliste(t).Textstring.clear();
            const int box = static_cast<int>(s.SchriftNummer);
            if (box >= 1 && s.Panel.Text1.Gueltig(box)) s.Panel.Text1(box).clear();
        } else if (rahmen.Objekttyp == u"Bild" && rahmen.bilddaten > 0) {
            const int satz = static_cast<int>(s.DatensatzNummer);
            if (s.Datensaetze.Gueltig(21, satz)) s.Datensaetze(21, satz).clear();
        } else {
            ui.Meldung(QStringLiteral("Sie können nur eingefügte Rahmen löschen"), QStringLiteral("Hinweis"));
            ergebnis = Loeschergebnis::Verweigert;
        }
        ui.DatensatzAnzeigen();
        ui.Neuzeichnen();
        return ergebnis;
    }

    if (!schonGefragt &&
        !ui.Frage(QStringLiteral("Soll dieser Rahmen wirklich gelöscht werden?"), QStringLiteral("Rahmen")))
        return Loeschergebnis::Abgebrochen;

    // The content object leaves its list; frames pointing above it follow it down.
    const QString typ = rahmen.Objekttyp;
    const int objekt = static_cast<int>(rahmen.Objektnummer);
    double* anzahl = nullptr;
    if (typ == u"Schrift") {
        anzahl = &s.SchriftMax;
        EntferneObjekt(s.Schriftliste, s.SchriftMax, objekt);
        s.SchriftNummer = IstKarte(s) ? 21 : 1;
    } else if (typ == u"Bild") {
        anzahl = &s.BildAnzahl;
        EntferneObjekt(s.Bildliste, s.BildAnzahl, objekt);
        s.BildNummer = 1;
    } else if (typ == u"Linie") {
        anzahl = &s.LinieAnzahl;
        EntferneObjekt(s.Linienliste, s.LinieAnzahl, objekt);
        s.LinieNummer = 1;
    } else if (typ == u"RTF") {
        anzahl = &s.RTFAnzahl;
        EntferneObjekt(s.RTFliste, s.RTFAnzahl, objekt);
        s.RTFNummer = 1;
    }
    if (anzahl) {
        const int alteAnzahl = static_cast<int>(*anzahl) + 1;
        for (int k = objekt + 1; k <= alteAnzahl; ++k)
            for (int f = 1; f <= static_cast<int>(s.RahmenAnzahl); ++f)
                if (f != nummer && s.Rahmenliste(f).Objekttyp == typ && s.Rahmenliste(f).Objektnummer == k)
                    s.Rahmenliste(f).Objektnummer = k - 1;
    }

    // The stacking levels close up over the gap.
    const int alle = static_cast<int>(s.RahmenAnzahl);
    const int ebene = rahmen.z;
    if (ebene < alle)
        for (int f = 1; f <= alle; ++f)
            if (f != nummer && s.Rahmenliste(f).z > ebene) s.Rahmenliste(f).z -= 1;

    for (int f = nummer; f < alle; ++f)
        s.Rahmenliste(f) = s.Rahmenliste(f + 1);
    s.Rahmenliste(alle) = ClassRahmen{};
    s.RahmenAnzahl -= 1;

    // The lowest-numbered visible frame becomes current.
    s.RahmenNummer = s.IstEtikett != 0 ? 21 : 1;
    for (int f = static_cast<int>(s.RahmenAnzahl); f >= 1; --f)
        if (s.Rahmenliste(f).Sichtbar != 0) s.RahmenNummer = f;
    ui.AuswahlAktualisieren();
    ui.Neuzeichnen();
    return Loeschergebnis::Geloescht;
}

} // namespace zp
