// The print run over a sheet of labels, a calendar's pages or a single letter page.
#include "output/PrintDocument.h"

#include "compose/canvas/canvas.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Zeichenkontext.h"
#include "output/Druckausgabe.h"

#include <algorithm>
#include <cmath>
#include <exception>

namespace zp {

namespace {

const QString kTitel = QStringLiteral("Drucken");

QString Kategorietext(const QString& text) {
    return text.trimmed().toUpper();
}

// What a run changes in the state and gives back at its end, whatever way it ends.
struct Gesichert {
    double Seitennummer, DatensatzNummer;
    int32_t Randlinks, Randoben;
    bool RaenderGeaendert = false;

    explicit Gesichert(const AppState& s)
        : Seitennummer(s.Seitennummer), DatensatzNummer(s.DatensatzNummer),
          Randlinks(s.AktuelleSeite.Randlinks), Randoben(s.AktuelleSeite.Randoben) {}

    void DruckwerteZurueck(AppState& s) const {
        s.DruckversatzX = s.DruckversatzY = 0;
        s.EtikettX = s.EtikettY = 0;
    }
    void AllesZurueck(AppState& s) const {
        DruckwerteZurueck(s);
        s.Seitennummer = Seitennummer;
        s.DatensatzNummer = DatensatzNummer;
        if (RaenderGeaendert) {
            s.AktuelleSeite.Randlinks = Randlinks;
            s.AktuelleSeite.Randoben = Randoben;
        }
        s.WocheTag = 0;
        s.WocheMonat = 1;
    }
};

// One run's walk; the members are the locals of the run.
class Druckgang {
public:
    Druckgang(AppState& s, Oberflaeche& o, Druckausgabe& a, const Druckwahl& w, const Druckhilfen& h)
        : s(s), o(o), ausgabe(a), wahl(w), hilfen(h) {}

    Druckergebnis Laufe();

private:
    void ZeigeDatensatz() {
        if (hilfen.ZeigeDatensatz) hilfen.ZeigeDatensatz(s);
    }
    bool Kalender() const { return s.IstKalender != 0; }
    int Typ() const { return static_cast<int>(s.Kalendertyp); }
    bool Einzelseite() const { return s.IstBriefkopf != 0 || (Kalender() && Typ() != 3); }
    // Editions whose sheets follow each other in one job; a calendar's grid prints one sheet.
    bool Bogenfolge() const { return !Kalender() && !Einzelseite(); }

    void WaehleDatensaetze();
    bool NaechsterDatensatz();
    void Stueck();
    void Einzelstueck();
    void Raster();
    bool NaechsteKalenderseite();

    AppState& s;
    Oberflaeche& o;
    Druckausgabe& ausgabe;
    const Druckwahl& wahl;
    const Druckhilfen& hilfen;

    double gewollt = 1;  // pieces wanted, per address
    double fertig = 0;   // pieces done for the current address
    double proBogen = 1; // pieces per sheet
    double start = 1;    // first position to print on the first sheet
    double belegt = 0;   // places of the first sheet counted as used without being walked
    double von = 1, bis = 1;
    QString kategorie;
    int geraeteversatz = 0; // GetDeviceCaps(hDC, 112)
    bool stopp = false;
    bool abgebrochen = false;
    bool offen = false; // a job is open on the printer
};

void Druckgang::WaehleDatensaetze() {
    von = bis = s.DatensatzNummer;
    switch (wahl.Adressen) {
    case Adresswahl::Bereich:
        von = std::floor(basic::Val(wahl.Von));
        bis = std::floor(basic::Val(wahl.Bis));
        if (von < 1 || von > s.DatensatzAnzahl) von = 1;
        if (bis < von || bis > s.DatensatzAnzahl) bis = von;
        s.DatensatzNummer = von;
        ZeigeDatensatz();
        break;
    case Adresswahl::Kategorie:
    case Adresswahl::Alle:
        von = 1;
        bis = s.DatensatzAnzahl;
        s.DatensatzNummer = 1;
        ZeigeDatensatz();
        if (wahl.Adressen == Adresswahl::Kategorie) {
            kategorie = Kategorietext(wahl.Kategorie);
            while (Kategorietext(s.Panel.Text1(30)) != kategorie) {
                s.DatensatzNummer += 1;
                if (s.DatensatzNummer > bis) {
                    stopp = true; // no record of this category: nothing prints, without a message
                    break;
                }
                ZeigeDatensatz();
            }
        }
        break;
    case Adresswahl::Aktiv:
        break;
    }
}

// The next record of the choice; false past the last one.
bool Druckgang::NaechsterDatensatz() {
    for (;;) {
        s.DatensatzNummer += 1;
        if (s.DatensatzNummer > bis) return false;
        ZeigeDatensatz();
        if (wahl.Adressen != Adresswahl::Kategorie || Kategorietext(s.Panel.Text1(30)) == kategorie)
            return true;
    }
}

void Druckgang::Stueck() {
    hilfen.Komposition(s, ausgabe.Leinwand());
    if (hilfen.Fortschritt && !hilfen.Fortschritt(ausgabe.Seiten())) abgebrochen = true;
}

void Druckgang::Einzelstueck() {
    s.DruckversatzX = s.AbgleichX - geraeteversatz;
    s.DruckversatzY = s.AbgleichY;
    s.EtikettX = s.DruckversatzX;
    s.EtikettY = s.DruckversatzY;
    Stueck();
}

void Druckgang::Raster() {
    Canvas& c = ausgabe.Leinwand();
    const ClassSeite& seite = s.AktuelleSeite;
    const ClassEtikett& e = s.AktuellesEtikett;
    const double schrittX = static_cast<double>(e.Breite) + e.Abstand_x;
    const double schrittY = static_cast<double>(e.Höhe) + e.Abstand_y;
    double position = belegt;
    for (;;) {
        bool bogenVoll = false;
        c.SetWindowOrgEx(0, 0);
        s.DruckversatzX = seite.Randlinks;
        s.DruckversatzY = seite.Randoben;
        double spalte = 0, zeile = 0; // offsets of the current column and row
        for (int y = 1; y <= e.Anzahl_y; ++y) {
            for (int x = 1; x <= e.Anzahl_x; ++x) {
                position += 1;
                s.EtikettX = seite.Randlinks + spalte;
                s.EtikettY = seite.Randoben + zeile;
                if (position < start) {
                    // A used label of a started sheet stays empty: the origin moves past it.
                    WendeDruckversatzAn(s, c);
                } else {
                    start = 0;
                    Stueck();
                    fertig += 1;
                    s.Seriennummer += 1;
                }
                if (fertig == gewollt) {
                    if (wahl.Adressen == Adresswahl::Aktiv) {
                        stopp = true;
                    } else {
                        // "Kopien" counts per address: then the next address of the choice.
                        fertig = 0;
                        if (!NaechsterDatensatz()) stopp = true;
                    }
                }
                if (abgebrochen) stopp = true;
                if (stopp) break;
                if (position == proBogen && Bogenfolge()) {
                    // A sheet whose used places were counted ahead is full before its walk ends.
                    ausgabe.NeueSeite();
                    position = 0;
                    bogenVoll = true;
                    break;
                }
                if (s.NurEineKarte != 0 && s.IstVisitenkarte == 0) break;
                s.DruckversatzX = schrittX;
                s.DruckversatzY = 0;
                spalte += schrittX;
            }
            if (stopp || bogenVoll || s.NurEineKarte != 0) break;
            // Back to the first column, one row down.
            s.DruckversatzX = schrittX - spalte;
            spalte = 0;
            s.DruckversatzY = schrittY;
            zeile += schrittY;
        }
        s.DruckversatzX = -seite.Randlinks;
        s.DruckversatzY = schrittY - zeile - seite.Randoben;
        if (stopp || Kalender()) break;
    }
}

// After a calendar page: on to the next one, or false when the job is done.
bool Druckgang::NaechsteKalenderseite() {
    s.Seitennummer += 1;
    if (s.Seitennummer > s.Seitenanzahl || s.Seitennummer > s.DruckBis || abgebrochen) return false;
    if (Typ() == 6) {
        WocheWeiter(s, static_cast<int>(s.Seitennummer) - 1);
        if (s.WocheMonat > 12) return false;
    }
    if (Typ() == 1 && !ausgabe.IstDatei()) {
        // The half-year calendar prints on both sides: each further page is a job of its own, and
        // the user turns the paper over in between.
        ausgabe.Schliesse();
        offen = ausgabe.Oeffne();
        if (!offen) {
            o.Meldung(QStringLiteral(
                          "Der Drucker nimmt den nächsten Auftrag nicht an. Der Druck wurde abgebrochen."),
                      kTitel, ausgabe.Fehlertext());
            abgebrochen = true;
            return false;
        }
        o.Meldung(QStringLiteral("Bitte legen Sie die Rückseite(n) des Papiers in den Drucker!"),
                  QStringLiteral("Warten!"));
        return true;
    }
    ausgabe.NeueSeite();
    return true;
}

Druckergebnis Druckgang::Laufe() {
    const Gesichert alt(s);
    if (Kalender()) {
        s.Seitenanzahl = SeitenanzahlDesTyps(Typ());
        o.SeitentitelAktualisieren();
        s.Seitennummer = s.DruckVon;
    }

    gewollt = std::max(1.0, std::floor(basic::Val(wahl.Kopien)));
    s.Seriennummer = basic::Val(wahl.Seriennummer);
    const ClassEtikett& e = s.AktuellesEtikett;
    if (!Einzelseite() && (e.Anzahl_x < 1 || e.Anzahl_y < 1)) {
        alt.AllesZurueck(s);
        o.Meldung(QStringLiteral("Das Etikettenformat enthält keine Etiketten. Bitte wählen Sie ein "
                                 "Format mit mindestens einer Spalte und einer Zeile."),
                  kTitel);
        return Druckergebnis::Fehler;
    }
    proBogen = static_cast<double>(e.Anzahl_x) * e.Anzahl_y;
    if (wahl.SeiteDrucken || (Kalender() && Typ() == 3)) gewollt *= proBogen;
    start = (s.ErstesEtikett > 1 && s.ErstesEtikett < proBogen) ? s.ErstesEtikett : 1;
    if (s.IstEtikett == 0) {
        // Only a label sheet has used places to pass over. Business cards start at the first
        // place with the margins, and the used places only shorten the first sheet; a calendar's
        // grid always fills its sheet.
        if (s.IstVisitenkarte != 0) belegt = start - 1;
        start = 1;
    }

    WaehleDatensaetze();
    if (stopp) {
        alt.AllesZurueck(s);
        ZeigeDatensatz();
        return Druckergebnis::Gedruckt;
    }

    offen = ausgabe.Oeffne();
    if (!offen) {
        alt.AllesZurueck(s);
        ZeigeDatensatz();
        o.Meldung(QStringLiteral("Der Druck kann nicht beginnen. Es wurde nichts gedruckt."), kTitel,
                  ausgabe.Fehlertext());
        return Druckergebnis::Fehler;
    }

    Gesichert raender = alt;
    raender.RaenderGeaendert = true;
    try {
        // Printer corrections: the physical offset of the printable area is taken off across only.
        geraeteversatz = ausgabe.Leinwand().GetDeviceCaps(PHYSICALOFFSETX);
        s.AktuelleSeite.Randlinks = static_cast<int32_t>(
            basic::RoundHalfEven(s.AktuelleSeite.Randlinks + s.AbgleichX - geraeteversatz));
        s.AktuelleSeite.Randoben =
            static_cast<int32_t>(basic::RoundHalfEven(s.AktuelleSeite.Randoben + s.AbgleichY));
        if (Typ() == 3 && Kalender()) s.NurEineKarte = 0;
        if (Kalender() && Typ() == 6) WocheAufSeite(s, static_cast<int>(s.Seitennummer));

        for (;;) {
            {
                Canvas& c = ausgabe.Leinwand();
                const Zeichenkontext kontext(s, Zeichenkontext::Art::Druck, c.TwipsPerPixelX(),
                                             c.TwipsPerPixelY());
                if (Einzelseite())
                    Einzelstueck();
                else
                    Raster();
            }
            raender.DruckwerteZurueck(s);
            if (!Kalender() || !NaechsteKalenderseite()) break;
        }
        if (offen) ausgabe.Schliesse();
    } catch (const std::exception& fehler) {
        if (offen) ausgabe.Schliesse();
        raender.AllesZurueck(s);
        ZeigeDatensatz();
        o.Meldung(QStringLiteral("Beim Drucken ist ein Fehler aufgetreten. Der Druck wurde abgebrochen."),
                  kTitel, QString::fromLocal8Bit(fehler.what()));
        return Druckergebnis::Fehler;
    }
    raender.AllesZurueck(s);
    ZeigeDatensatz();
    return abgebrochen ? Druckergebnis::Abgebrochen : Druckergebnis::Gedruckt;
}

} // namespace

void WendeDruckversatzAn(const AppState& s, Canvas& c) {
    const Massstab g = Massstab::Geraet(s);
    c.OffsetWindowOrgEx(-static_cast<int32_t>(std::trunc(g.PixelX(g.Twips(s.DruckversatzX)))),
                        -static_cast<int32_t>(std::trunc(g.PixelY(g.Twips(s.DruckversatzY)))));
}

Druckergebnis PrintDocument(AppState& s, Oberflaeche& o, Druckausgabe& ausgabe, const Druckwahl& wahl,
                            const Druckhilfen& hilfen) {
    Druckgang gang(s, o, ausgabe, wahl, hilfen);
    return gang.Laufe();
}

} // namespace zp
