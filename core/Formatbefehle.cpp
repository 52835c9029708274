#include "Formatbefehle.h"

#include "core/Auswahl.h"
#include "core/Positionsdialog.h"
#include "core/Rahmenbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Verlauf.h"

namespace zp {

namespace {
ClassRahmen* Rahmen(AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || n > s.RahmenAnzahl || !s.Rahmenliste.Gueltig(n)) return nullptr;
    return &s.Rahmenliste(n);
}

Wahrheit Umgekehrt(Wahrheit w) {
    return w != 0 ? 0 : -1;
}

constexpr double kKleinsteGroesse = 1;
constexpr double kGroessteGroesse = 1000;
} // namespace

ClassSchrift* SchriftDesRahmens(AppState& s) {
    const ClassRahmen* r = Rahmen(s);
    if (!r || r->Objekttyp != QLatin1String("Schrift")) return nullptr;
    const int n = static_cast<int>(r->Objektnummer);
    if (n < 1 || !s.Schriftliste.Gueltig(n)) return nullptr;
    return &s.Schriftliste(n);
}

Formatzustand UpdateFormatBar(AppState& s) {
    Formatzustand z;
    if (const ClassRahmen* r = Rahmen(s)) {
        z.Rahmen = true;
        z.Gesperrt = r->Verankert != 0;
        z.Linie = r->Objekttyp == QLatin1String("Linie");
    }
    const ClassSchrift* t = SchriftDesRahmens(s);
    if (!t) return z;
    z.Schrift = true;
    z.Fett = t->Bold != 0;
    z.Kursiv = t->Italic != 0;
    z.Unterstrichen = t->Underline != 0;
    z.AusrichtungH = t->AusrichtungH;
    z.AusrichtungV = t->AusrichtungV;
    z.Schriftart = t->fontname;
    z.Groesse = t->FontSize;
    return z;
}

bool Toolbar3Knopf(AppState& s, Oberflaeche& ui, const QString& schluessel) {
    ClassRahmen* r = Rahmen(s);
    if (!r) return false;
    const bool istSchrift = r->Objekttyp == QLatin1String("Schrift");
    const bool istLinie = r->Objekttyp == QLatin1String("Linie");
    if (istSchrift) s.SchriftNummer = r->Objektnummer;
    if (istLinie) s.LinieNummer = r->Objektnummer;

    if (schluessel == u"farbe" || schluessel == u"schatten") {
        const int seite = schluessel == u"farbe" ? Dialogseite::Farbe : Dialogseite::Schatten;
        if (istSchrift)
            ui.SchriftdialogZeigen(seite);
        else if (istLinie)
            ui.LiniendialogZeigen(seite);
        else
            return false;
        return true;
    }
    if (schluessel == u"winkel") {
        if (!istSchrift) return false;
        ui.SchriftdialogZeigen(Dialogseite::Winkel);
        return true;
    }
    if (schluessel == u"positionieren") {
        ui.PositionsdialogZeigen();
        return true;
    }
    if (schluessel == QStringLiteral("löschen")) {
        ui.RahmenLoeschen();
        return true;
    }
    if (schluessel == u"gesperrt") {
        VerankernUmschalten(s, ui);
        ui.FormatleisteAktualisieren();
        return true;
    }

    ClassSchrift* t = SchriftDesRahmens(s);
    if (!t) return false;
    VerlaufMerken(s); // a style or alignment is one step of Rückgängig
    if (schluessel == u"fett")
        t->Bold = Umgekehrt(t->Bold);
    else if (schluessel == u"italic")
        t->Italic = Umgekehrt(t->Italic);
    else if (schluessel == u"underline")
        t->Underline = Umgekehrt(t->Underline);
    else if (schluessel == u"links")
        t->AusrichtungH = 0;
    else if (schluessel == u"center")
        t->AusrichtungH = 1;
    else if (schluessel == u"rechts")
        t->AusrichtungH = 2;
    else if (schluessel == u"textoben")
        t->AusrichtungV = 0;
    else if (schluessel == u"textcenter")
        t->AusrichtungV = 1;
    else if (schluessel == u"textunten")
        t->AusrichtungV = 2;
    else {
        VerlaufZuruecknehmen(s);
        return false;
    }
    ui.FormatleisteAktualisieren();
    ui.Neuzeichnen();
    return true;
}

bool SchriftartSetzen(AppState& s, Oberflaeche& ui, const QString& familie) {
    if (s.LadeSperre != 0) return false;
    ClassSchrift* t = SchriftDesRahmens(s);
    const QString name = familie.trimmed();
    if (!t || name.isEmpty()) return false;
    if (t->fontname != name) VerlaufMerken(s);
    t->fontname = name;
    ui.Neuzeichnen();
    return true;
}

bool SchriftgroesseSetzen(AppState& s, Oberflaeche& ui, const QString& eingabe) {
    if (s.LadeSperre != 0) return false;
    ClassSchrift* t = SchriftDesRahmens(s);
    if (!t) return false;
    const double groesse = Positionszahl(eingabe);
    if (!(groesse >= kKleinsteGroesse && groesse <= kGroessteGroesse)) {
        ui.Meldung(QStringLiteral("Bitte eine Schriftgröße zwischen 1 und 1000 Punkt eingeben."),
                   QStringLiteral("Schriftgröße"), eingabe);
        ui.FormatleisteAktualisieren();
        return false;
    }
    if (t->FontSize != groesse) VerlaufMerken(s);
    t->FontSize = groesse;
    ui.Neuzeichnen();
    return true;
}

bool TextfeldFokus(AppState& s, Oberflaeche& ui, int i, bool nachKlick) {
    if (s.Auswahlmodus != 0 || nachKlick || i < 1) return false;
    s.LadeSperre = 255;
    s.SchriftNummer = i;
    s.RahmenNummer = i;
    UpdateSelection(s, ui);
    s.LadeSperre = 0;
    ui.Neuzeichnen();
    return true;
}

bool AuswahlZeigtText(const AppState& s, int i) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || n > s.RahmenAnzahl || !s.Rahmenliste.Gueltig(n)) return false;
    const ClassRahmen& r = s.Rahmenliste(n);
    return r.Objekttyp == QLatin1String("Schrift") && static_cast<int>(r.Objektnummer) == i;
}

void OpenPropertyDialog(AppState& s, Oberflaeche& ui, int seite) {
    ClassRahmen* r = Rahmen(s);
    if (!r) return;
    r->Sichtbar = -1;
    if (r->Objekttyp == QLatin1String("Schrift")) {
        s.SchriftNummer = r->Objektnummer;
        ui.SchriftdialogZeigen(seite);
    } else if (r->Objekttyp == QLatin1String("Bild")) {
        s.BildNummer = r->Objektnummer;
        ui.BilddialogZeigen();
    } else if (r->Objekttyp == QLatin1String("Linie")) {
        s.LinieNummer = r->Objektnummer;
        ui.LiniendialogZeigen(seite);
    }
}

} // namespace zp
