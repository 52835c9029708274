#include "core/state/Inhalt.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"
#include "core/state/Textfelder.h"
#include "core/state/Verlauf.h"

#include <QDir>
#include <QFileInfo>

namespace zp {

namespace {

// Object `position` leaves its dense list: the objects above it move down by one place and the
// last place is emptied. Frames of the kind that pointed above it follow their object down.
template <typename T>
void EntferneObjekt(AppState& s, Liste<T>& liste, double& anzahl, int position, const QString& typ) {
    const int letzte = static_cast<int>(anzahl);
    if (position < 1 || position > letzte || letzte > liste.Obergrenze()) return; // points nowhere
    for (int i = position; i < letzte; ++i) {
        liste(i) = liste(i + 1);
        for (int f = 1; f <= static_cast<int>(s.RahmenAnzahl); ++f) {
            ClassRahmen& r = s.Rahmenliste(f);
            if (r.Objekttyp == typ && r.Objektnummer == i + 1) r.Objektnummer = i;
        }
    }
    liste(letzte) = T{};
    anzahl -= 1;
}

bool IstKarte(const AppState& s) {
    return s.IstEtikett != 0 || s.IstVisitenkarte != 0;
}

bool RahmenGueltig(const AppState& s, int n) {
    return n >= 1 && n <= static_cast<int>(s.RahmenAnzahl) && s.Rahmenliste.Gueltig(n);
}

// Frames of the layout stay: a text is emptied, a record picture loses the record's picture.
Loeschergebnis LeereVorlagenrahmen(AppState& s, Oberflaeche& ui, const ClassRahmen& rahmen) {
    if (s.IstKalender != 0) return Loeschergebnis::Unveraendert;
    if (rahmen.Objekttyp != u"Schrift" && rahmen.bilddaten < 1) {
        ui.Meldung(QStringLiteral("Sie können nur eingefügte Rahmen löschen"), QStringLiteral("Hinweis"));
        return Loeschergebnis::Verweigert;
    }
    VerlaufMerken(s);
    if (rahmen.Objekttyp == u"Schrift") {
        const int t = static_cast<int>(rahmen.Objektnummer);
        if (t >= 1 && s.Schriftliste.Gueltig(t)) s.Schriftliste(t).Textstring.clear();
        const int box = static_cast<int>(s.SchriftNummer);
        if (box >= 1 && s.Panel.Text1.Gueltig(box)) s.Panel.Text1(box).clear();
        ApplyInlineText(s, QString()); // the box's change: an empty text hides its frame
    } else {
        const int satz = static_cast<int>(s.DatensatzNummer);
        if (s.Datensaetze.Gueltig(21, satz)) s.Datensaetze(21, satz).clear();
        s.Panel.TextBild.clear();
    }
    ui.PanelAktualisieren();
    ui.DatensatzAnzeigen();
    ui.Neuzeichnen();
    return Loeschergebnis::Geleert;
}

} // namespace

bool PlatzFuerEinfuegen(const AppState& s, const QString& typ) {
    double anzahl = 0;
    if (typ == u"Schrift")
        anzahl = s.SchriftMax;
    else if (typ == u"Bild")
        anzahl = s.BildAnzahl;
    else if (typ == u"Linie")
        anzahl = s.LinieAnzahl;
    else if (typ == u"RTF")
        anzahl = s.RTFAnzahl;
    else
        return false;
    return anzahl < GroessteAnzahl && s.RahmenAnzahl < GroessteAnzahl;
}

QString NeuerBriefname(const QString& ordner) {
    const QDir d(ordner);
    for (int n = 1; n <= 65535; ++n) {
        const QString name = QStringLiteral("RTF") + QString::number(n) + QStringLiteral(".rtf");
        if (!QFileInfo::exists(d.filePath(name))) return name;
    }
    return {};
}

int FuegeInhaltEin(AppState& s, const QString& typ) {
    if (!PlatzFuerEinfuegen(s, typ)) return 0;
    // The list grows by one place when its count has reached its bound.
    const auto wachsen = [](auto& liste, double& anzahl) {
        if (anzahl >= liste.Obergrenze()) liste.RedimPreserve(static_cast<int>(anzahl) + 1);
        anzahl += 1;
        return static_cast<int>(anzahl);
    };
    int objekt = 0;
    if (typ == u"Schrift") {
        objekt = wachsen(s.Schriftliste, s.SchriftMax);
        s.SchriftNummer = objekt;
        ErzeugeSchrift(s, objekt);
    } else if (typ == u"Bild") {
        objekt = wachsen(s.Bildliste, s.BildAnzahl);
        s.BildNummer = objekt;
        ErzeugeBild(s, objekt);
    } else if (typ == u"Linie") {
        objekt = wachsen(s.Linienliste, s.LinieAnzahl);
        s.LinieNummer = objekt;
        ErzeugeLinie(s, objekt);
    } else {
        const QString ordner =
            s.AktuelleDatei.isEmpty() ? s.Programmpfad : QFileInfo(s.AktuelleDatei).absolutePath();
        const QString name = NeuerBriefname(ordner);
        if (name.isEmpty()) return 0;
        objekt = wachsen(s.RTFliste, s.RTFAnzahl);
        s.RTFNummer = objekt;
        s.RTFliste(objekt) = name;
    }
    const int n = static_cast<int>(s.RahmenAnzahl) + 1;
    ErzeugeRahmen(s, n, typ, objekt);
    s.RahmenNummer = n;
    ClassRahmen& r = s.Rahmenliste(n);
    if (typ == u"Bild") r.Proportional = basic::Wahr;
    // Invisible until the user has drawn it on the page.
    r.Sichtbar = basic::Falsch;
    s.Auswahlmodus = 1;
    return n;
}

void ObjektNachRahmen(AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (!RahmenGueltig(s, n)) return;
    const ClassRahmen& r = s.Rahmenliste(n);
    if (r.Objekttyp == u"Schrift")
        s.SchriftNummer = r.Objektnummer;
    else if (r.Objekttyp == u"Bild")
        s.BildNummer = r.Objektnummer;
    else if (r.Objekttyp == u"Linie")
        s.LinieNummer = r.Objektnummer;
    else if (r.Objekttyp == u"RTF")
        s.RTFNummer = r.Objektnummer;
}

void MarkerNachRahmen(AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (!RahmenGueltig(s, n)) return;
    const ClassRahmen& r = s.Rahmenliste(n);
    const double f = Massstab::Ansicht(s).twipsJeZehntel;
    s.Rahmen = {r.X * f, r.Y * f, r.Breite * f, r.Höhe * f};
}

Loeschergebnis LoescheRahmen(AppState& s, Oberflaeche& ui, bool schonGefragt) {
    const int nummer = static_cast<int>(s.RahmenNummer);
    if (!RahmenGueltig(s, nummer)) return Loeschergebnis::Unveraendert;
    const ClassRahmen rahmen = s.Rahmenliste(nummer);

    // Only frames the user inserted go; those of the layout and record pictures stay.
    if (rahmen.bilddaten != 0 || nummer <= s.FesteRahmen) return LeereVorlagenrahmen(s, ui, rahmen);

    if (!schonGefragt &&
        !ui.Frage(QStringLiteral("Soll dieser Rahmen wirklich gelöscht werden?"), QStringLiteral("Rahmen")))
        return Loeschergebnis::Abgebrochen;
    if (schonGefragt)
        EinfuegenVerwerfen(s);
    else
        VerlaufMerken(s);

    // The content object leaves its list.
    const QString& typ = rahmen.Objekttyp;
    const int objekt = static_cast<int>(rahmen.Objektnummer);
    if (typ == u"Schrift")
        EntferneObjekt(s, s.Schriftliste, s.SchriftMax, objekt, typ);
    else if (typ == u"Bild")
        EntferneObjekt(s, s.Bildliste, s.BildAnzahl, objekt, typ);
    else if (typ == u"Linie")
        EntferneObjekt(s, s.Linienliste, s.LinieAnzahl, objekt, typ);
    else if (typ == u"RTF")
        EntferneObjekt(s, s.RTFliste, s.RTFAnzahl, objekt, typ);
    if (IstKarte(s)) s.SchriftNummer = 21;

    // The stacking levels above close up over the gap, level by level.
    const int alle = static_cast<int>(s.RahmenAnzahl);
    for (int ebene = rahmen.z; ebene < alle; ++ebene)
        for (int f = 1; f <= alle; ++f)
            if (f != nummer && s.Rahmenliste(f).z == ebene + 1)
                s.Rahmenliste(f).z = static_cast<int16_t>(ebene);

    // The frames after it move down one place; `bilddaten` stays with the place in the list.
    for (int f = nummer; f < alle; ++f) {
        const int16_t bilddaten = s.Rahmenliste(f).bilddaten;
        s.Rahmenliste(f) = s.Rahmenliste(f + 1);
        s.Rahmenliste(f).bilddaten = bilddaten;
    }
    s.Rahmenliste(alle) = ClassRahmen{};
    s.RahmenAnzahl -= 1;

    // The last visible frame becomes current; on a card, the first address line.
    if (IstKarte(s) && s.RahmenAnzahl >= 21) {
        s.RahmenNummer = 21;
    } else {
        s.RahmenNummer = std::min<double>(s.RahmenNummer, std::max<double>(1, s.RahmenAnzahl));
        for (int f = static_cast<int>(s.RahmenAnzahl); f >= 1; --f)
            if (s.Rahmenliste(f).Sichtbar != 0) {
                s.RahmenNummer = f;
                break;
            }
    }
    ObjektNachRahmen(s);
    MarkerNachRahmen(s);
    ui.AuswahlAktualisieren();
    ui.Neuzeichnen();
    return Loeschergebnis::Geloescht;
}

} // namespace zp
