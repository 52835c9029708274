#include "core/Rahmenbefehle.h"

#include "core/Auswahl.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Textfelder.h"
#include "core/state/Verlauf.h"

namespace zp {

namespace {

ClassRahmen* AktuellerRahmen(AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || n > static_cast<int>(s.RahmenAnzahl) || !s.Rahmenliste.Gueltig(n)) return nullptr;
    return &s.Rahmenliste(n);
}

int Anzahl(const AppState& s) {
    return std::min(static_cast<int>(s.RahmenAnzahl), s.Rahmenliste.Obergrenze());
}

// The other frame on level `ebene`, the first in list order; 0 when there is none.
int AndererAufEbene(const AppState& s, int ebene, int ausser) {
    for (int f = 1; f <= Anzahl(s); ++f)
        if (f != ausser && s.Rahmenliste(f).z == ebene) return f;
    return 0;
}

// The window after a change of the document: marker, panels, format bar and page.
void AllesZeigen(AppState& s, Oberflaeche& ui) {
    UpdateSelection(s, ui);
    ui.PanelAktualisieren();
    ui.DatensatzAnzeigen();
    ui.FormatleisteAktualisieren();
    ui.ZoomAktualisieren(); // the page's size may have gone back with it
    ui.Neuzeichnen();
}

} // namespace

bool BringToFront(AppState& s, Oberflaeche& ui) {
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r) return false;
    const int alt = r->z;
    bool aendert = alt != Anzahl(s);
    for (int f = 1; f <= Anzahl(s) && !aendert; ++f)
        aendert = s.Rahmenliste(f).z > alt;
    if (!aendert) return false; // already on top
    VerlaufMerken(s);
    for (int f = 1; f <= Anzahl(s); ++f)
        if (s.Rahmenliste(f).z > alt) s.Rahmenliste(f).z -= 1;
    r->z = static_cast<int16_t>(s.RahmenAnzahl);
    ui.Neuzeichnen();
    return true;
}

bool SendToBack(AppState& s, Oberflaeche& ui) {
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r) return false;
    const int alt = r->z;
    bool aendert = alt != 1;
    for (int f = 1; f <= Anzahl(s) && !aendert; ++f)
        aendert = s.Rahmenliste(f).z < alt;
    if (!aendert) return false;
    VerlaufMerken(s);
    for (int f = 1; f <= Anzahl(s); ++f)
        if (s.Rahmenliste(f).z < alt) s.Rahmenliste(f).z += 1;
    r->z = 1;
    ui.Neuzeichnen();
    return true;
}

bool OneForward(AppState& s, Oberflaeche& ui) {
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r || r->z >= s.RahmenAnzahl) return false;
    VerlaufMerken(s);
    r->z += 1;
    const int n = static_cast<int>(s.RahmenNummer);
    if (const int anderer = AndererAufEbene(s, r->z, n)) s.Rahmenliste(anderer).z -= 1;
    ui.Neuzeichnen();
    return true;
}

bool OneBack(AppState& s, Oberflaeche& ui) {
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r || r->z < 2) return false;
    VerlaufMerken(s);
    r->z -= 1;
    const int n = static_cast<int>(s.RahmenNummer);
    if (const int anderer = AndererAufEbene(s, r->z, n)) s.Rahmenliste(anderer).z += 1;
    ui.Neuzeichnen();
    return true;
}

Loeschergebnis DeleteFrame(AppState& s, Oberflaeche& ui) {
    const bool ohneFrage = s.Hilfswert == 9999;
    s.Hilfswert = 0;
    const Loeschergebnis e = LoescheRahmen(s, ui, ohneFrage);
    if (e == Loeschergebnis::Geloescht) UpdateSelection(s, ui);
    return e;
}

bool VerankernUmschalten(AppState& s, Oberflaeche& ui) {
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r) return false;
    VerlaufMerken(s);
    r->Verankert = r->Verankert != 0 ? 0 : -1;
    ui.Neuzeichnen();
    return r->Verankert != 0;
}

void AlleVerankern(AppState& s, Oberflaeche& ui, bool an) {
    VerlaufMerken(s);
    bool aendert = false;
    for (int f = 1; f <= Anzahl(s); ++f) {
        const Wahrheit neu = an ? -1 : 0;
        aendert = aendert || s.Rahmenliste(f).Verankert != neu;
        s.Rahmenliste(f).Verankert = neu;
    }
    if (!aendert) VerlaufZuruecknehmen(s);
    ui.Neuzeichnen();
}

QString EinfuegeTyp(int knopf) {
    switch (knopf) {
    case 1:
        return QStringLiteral("Schrift");
    case 2:
        return QStringLiteral("RTF");
    case 3:
        return QStringLiteral("Bild");
    case 4:
        return QStringLiteral("Linie");
    default:
        return {};
    }
}

int BefehlEinfuegen(AppState& s, Oberflaeche& ui, const QString& typ) {
    if (s.Auswahlmodus != 0 || s.ZiehenAktiv != 0) return 0; // one insertion at a time
    if (!PlatzFuerEinfuegen(s, typ)) {
        ui.Meldung(
            QStringLiteral("Es können keine weiteren Objekte eingefügt werden: das Dokument ist voll."),
            QStringLiteral("Einfügen"), QStringLiteral("höchstens %1 je Art").arg(GroessteAnzahl));
        return 0;
    }
    VerlaufMerken(s, true);
    const int n = FuegeInhaltEin(s, typ);
    if (n == 0) {
        EinfuegenVerwerfen(s);
        ui.Meldung(QStringLiteral("Für einen neuen Brieftext ist kein Dateiname mehr frei."),
                   QStringLiteral("Einfügen"));
        return 0;
    }
    UpdateSelection(s, ui);
    ui.Mauszeiger(2);
    return n;
}

bool PlatzhalterEinfuegen(AppState& s, Oberflaeche& ui, const QString& schluessel) {
    const int n = static_cast<int>(s.SchriftNummer);
    if (n < 1 || !s.Schriftliste.Gueltig(n)) return false;
    VerlaufMerken(s);
    if (n >= 30 || !s.Panel.Text1.Gueltig(n)) {
        // No box in the panel for this text: the object itself takes the keyword.
        s.Schriftliste(n).Textstring.prepend(schluessel);
    } else {
        // The box takes it, and its change carries it to the text and the frame.
        s.Panel.Text1(n).prepend(schluessel);
        s.Schriftliste(n).Textstring = s.Panel.Text1(n);
        ApplyInlineText(s, s.Schriftliste(n).Textstring);
        ui.PanelAktualisieren();
    }
    ui.Neuzeichnen();
    return true;
}

bool BefehlRueckgaengig(AppState& s, Oberflaeche& ui) {
    if (!VerlaufZurueck(s)) return false;
    AllesZeigen(s, ui);
    return true;
}

bool BefehlWiederholen(AppState& s, Oberflaeche& ui) {
    if (!VerlaufVor(s)) return false;
    AllesZeigen(s, ui);
    return true;
}

bool KannRueckgaengig(const AppState& s) {
    return !s.Verlauf.Zurueck.empty();
}

bool KannWiederholen(const AppState& s) {
    return !s.Verlauf.Vor.empty();
}

} // namespace zp
