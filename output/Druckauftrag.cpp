// The print dialog's "Drucken" command as a headless request.
#include "output/Druckauftrag.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Druckausgabe.h"

#include <algorithm>
#include <cmath>

namespace zp {

namespace {

const QString kTitel = QStringLiteral("Drucken");

bool Kartenausgabe(const AppState& s) {
    return s.IstVisitenkarte != 0 || s.IstEtikett != 0;
}

double Kopien(const Druckwahl& wahl) {
    return std::max(1.0, std::floor(basic::Val(wahl.Kopien)));
}

// The category field of a record as the side panel's box 30 shows it.
QString Kategoriefeld(const AppState& s, int datensatz) {
    return s.Datensaetze.Gueltig(10, datensatz) ? s.Datensaetze(10, datensatz) : QString();
}

// Record numbers that a request prints one after the other, for the editions that don't step
// through the addresses themselves. `genau`: the category is compared as typed, else trimmed and
// upper-cased as the sheet loop does.
std::vector<int> Datensatzfolge(const AppState& s, const Druckwahl& wahl, bool genau) {
    const int anzahl = static_cast<int>(s.DatensatzAnzahl);
    std::vector<int> folge;
    switch (wahl.Adressen) {
    case Adresswahl::Aktiv:
        folge.push_back(static_cast<int>(s.DatensatzNummer));
        break;
    case Adresswahl::Bereich: {
        double von = std::floor(basic::Val(wahl.Von));
        double bis = std::floor(basic::Val(wahl.Bis));
        if (von < 1 || von > anzahl) von = 1;
        if (bis < von || bis > anzahl) bis = von;
        for (int i = static_cast<int>(von); i <= static_cast<int>(bis); ++i)
            folge.push_back(i);
        break;
    }
    case Adresswahl::Kategorie:
    case Adresswahl::Alle:
        for (int i = 1; i <= anzahl; ++i) {
            if (wahl.Adressen == Adresswahl::Kategorie) {
                const QString feld = Kategoriefeld(s, i);
                const bool passt = genau ? feld == wahl.Kategorie
                                         : feld.trimmed().toUpper() == wahl.Kategorie.trimmed().toUpper();
                if (!passt) continue;
            }
            folge.push_back(i);
        }
        break;
    }
    return folge;
}

} // namespace

void UebernimmSeitenbereich(AppState& s, const Druckauftrag& auftrag) {
    s.Seitenanzahl = SeitenanzahlDesTyps(static_cast<int>(s.Kalendertyp));
    double von = std::floor(basic::Val(auftrag.DruckStart));
    double bis =
        auftrag.DruckEnde.trimmed().isEmpty() ? s.Seitenanzahl : std::floor(basic::Val(auftrag.DruckEnde));
    if (von < 1) von = 1;
    if (von > s.Seitenanzahl) von = s.Seitenanzahl;
    // An end beyond the last page stays as typed, and only the last page prints.
    if (bis > s.Seitenanzahl) von = s.Seitenanzahl;
    if (bis < von) bis = von;
    s.DruckVon = von;
    s.DruckBis = bis;
    const double zoom = basic::Val(auftrag.Prozent);
    s.Druckzoom = (zoom < 10 || zoom >= 10000) ? 100 : zoom;
}

double ErwarteteSeiten(const AppState& s, const Druckauftrag& auftrag, bool kopienSelbst) {
    const Druckwahl& wahl = auftrag.Wahl;
    const double kopien = Kopien(wahl);
    const double wiederholt = kopienSelbst ? 1 : kopien;
    if (s.IstKalender != 0) {
        const double bis = std::min(s.DruckBis, s.Seitenanzahl);
        return std::max(1.0, bis - s.DruckVon + 1) * wiederholt;
    }
    if (s.IstBriefkopf != 0)
        return static_cast<double>(std::max<size_t>(1, Datensatzfolge(s, wahl, true).size())) * wiederholt;

    const ClassEtikett& e = s.AktuellesEtikett;
    const double proBogen = std::max(1.0, static_cast<double>(e.Anzahl_x) * e.Anzahl_y);
    const double jeAdresse = wahl.SeiteDrucken ? kopien * proBogen : kopien;
    if (Kartenausgabe(s)) {
        const double adressen = static_cast<double>(Datensatzfolge(s, wahl, false).size());
        const double leer = (s.ErstesEtikett > 1 && s.ErstesEtikett < proBogen) ? s.ErstesEtikett - 1 : 0;
        return std::max(1.0, std::ceil((leer + adressen * jeAdresse) / proBogen));
    }
    const double laeufe = static_cast<double>(std::max<size_t>(1, Datensatzfolge(s, wahl, true).size()));
    const double proLauf = auftrag.EineKarte ? 1 : std::ceil(jeAdresse / proBogen);
    return laeufe * proLauf * wiederholt;
}

Druckergebnis CommandDrucken(AppState& s, Oberflaeche& o, Druckausgabe& ausgabe, const Druckauftrag& auftrag,
                             Druckhilfen hilfen, const Druckfortschritt& fortschritt) {
    const bool kalender = s.IstKalender != 0;
    const int typ = static_cast<int>(s.Kalendertyp);
    if (kalender) UebernimmSeitenbereich(s, auftrag);

    const double gesamt = ErwarteteSeiten(s, auftrag, ausgabe.KopienSelbst());
    if (gesamt > kSeitenOhneFrage &&
        !o.Frage(
            QStringLiteral("Dieser Druckauftrag ergibt etwa %1 Seiten. Soll er wirklich gedruckt werden?")
                .arg(QString::number(gesamt, 'f', 0)),
            kTitel))
        return Druckergebnis::Abgebrochen;

    const int gesamtSeiten = static_cast<int>(std::min(gesamt, 2.0e9));
    if (fortschritt)
        hilfen.Fortschritt = [&fortschritt, gesamtSeiten](int seite) {
            return fortschritt(seite, gesamtSeiten);
        };
    else
        hilfen.Fortschritt = nullptr;

    Druckergebnis ergebnis = Druckergebnis::Gedruckt;
    const auto lauf = [&](const Druckwahl& wahl) {
        const Druckergebnis e = PrintDocument(s, o, ausgabe, wahl, hilfen);
        if (e != Druckergebnis::Gedruckt) ergebnis = e;
        return e == Druckergebnis::Gedruckt;
    };

    if (Kartenausgabe(s)) {
        // Cards and labels step through the addresses within one run.
        s.NurEineKarte = 0;
        lauf(auftrag.Wahl);
    } else {
        const int kopien = static_cast<int>(std::min(Kopien(auftrag.Wahl), 1.0e6));
        ausgabe.SetzeKopien(kopien);
        const int wiederholungen = ausgabe.KopienSelbst() ? 1 : kopien;
        if (kalender)
            s.NurEineKarte = typ == 3 ? 0 : -1;
        else
            s.NurEineKarte = auftrag.EineKarte ? -1 : 0;
        // The device makes the copies; a run prints each piece once.
        Druckwahl einmal = auftrag.Wahl;
        einmal.Kopien = QStringLiteral("1");
        for (int k = 0; k < wiederholungen && ergebnis == Druckergebnis::Gedruckt; ++k) {
            if (kalender) {
                lauf(einmal);
                continue;
            }
            const double aktiv = s.DatensatzNummer;
            const std::vector<int> folge = Datensatzfolge(s, auftrag.Wahl, true);
            einmal.Adressen = Adresswahl::Aktiv;
            for (int nummer : folge) {
                s.DatensatzNummer = nummer;
                if (hilfen.ZeigeDatensatz) hilfen.ZeigeDatensatz(s);
                if (!lauf(einmal)) break;
            }
            s.DatensatzNummer = aktiv;
            if (hilfen.ZeigeDatensatz) hilfen.ZeigeDatensatz(s);
        }
    }

    if (!ausgabe.Abschliessen() && ergebnis != Druckergebnis::Fehler) {
        o.Meldung(QStringLiteral("Die Druckausgabe konnte nicht geschrieben werden."), kTitel,
                  ausgabe.Fehlertext());
        ergebnis = Druckergebnis::Fehler;
    }
    return ergebnis;
}

} // namespace zp
