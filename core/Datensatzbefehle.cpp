#include "core/Datensatzbefehle.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Datensaetze.h"
#include "persist/Layout.h"

#include <algorithm>

namespace zp {

namespace {
int Anzahl(const AppState& s) {
    return std::max(1, static_cast<int>(s.DatensatzAnzahl));
}
int Nummer(const AppState& s) {
    return static_cast<int>(s.DatensatzNummer);
}
int Breite(const AppState& s) {
    return s.Datensaetze.Obergrenze1();
}
void LeereDatensatz(AppState& s, int r, int bisFeld) {
    for (int f = 1; f <= std::min(bisFeld, Breite(s)); ++f)
        s.Datensaetze(f, r).clear();
}
void KopiereDatensatz(AppState& s, int von, int nach) {
    for (int f = 1; f <= Breite(s); ++f)
        s.Datensaetze(f, nach) = s.Datensaetze(f, von);
}
bool IstLeer(const AppState& s, int r) {
    for (int f = 1; f <= DatensatzFelderAlt; ++f)
        if (!DatensatzFeld(s, f, r).isEmpty()) return false;
    return true;
}
} // namespace

QString DatensatzFeld(const AppState& s, int feld, int datensatz) {
    if (feld < 1 || datensatz < 1 || !s.Datensaetze.Gueltig(feld, datensatz)) return {};
    return s.Datensaetze(feld, datensatz);
}

void DatensaetzeVergroessern(AppState& s, int anzahl) {
    const int breite = std::max(DatensatzFelderAlt, Breite(s));
    if (breite == Breite(s) && anzahl <= s.Datensaetze.Obergrenze2()) return;
    s.Datensaetze.RedimPreserve(breite, std::max(anzahl, s.Datensaetze.Obergrenze2()));
}

void ZeigeDatensatz(AppState& s, Oberflaeche& ui) {
    const int r = Nummer(s);
    for (int i = 1; i <= 10; ++i) {
        const QString feld = DatensatzFeld(s, i, r);
        s.Panel.Text1(i + 20) = feld;
        // The box's change carries the field into the text object it edits.
        if (s.Schriftliste.Gueltig(i + 20)) s.Schriftliste(i + 20).Textstring = feld;
    }
    if (s.IstKalender == 0) s.Panel.TextBild = DatensatzFeld(s, 21, r);
    ui.DatensatzAnzeigen();
    if (s.LadeSperre == 0) ui.Neuzeichnen();
}

void ErsterDatensatz(AppState& s, Oberflaeche& ui) {
    s.DatensatzNummer = 1;
    ZeigeDatensatz(s, ui);
}

void VorigerDatensatz(AppState& s, Oberflaeche& ui) {
    if (s.DatensatzNummer > 1) s.DatensatzNummer -= 1;
    ZeigeDatensatz(s, ui);
}

void NaechsterDatensatz(AppState& s, Oberflaeche& ui) {
    const int anzahl = Anzahl(s);
    if (Nummer(s) >= anzahl) {
        // Only a record that holds something is followed by a fresh one.
        if (!IstLeer(s, anzahl)) {
            DatensaetzeVergroessern(s, anzahl + 1);
            LeereDatensatz(s, anzahl + 1, Breite(s));
            s.DatensatzAnzahl = anzahl + 1;
            s.DatensatzNummer = anzahl + 1;
        }
    } else {
        s.DatensatzNummer = Nummer(s) + 1;
    }
    ZeigeDatensatz(s, ui);
}

void LetzterDatensatz(AppState& s, Oberflaeche& ui) {
    s.DatensatzNummer = Anzahl(s);
    ZeigeDatensatz(s, ui);
}

void DatensatzNummerEingegeben(AppState& s, Oberflaeche& ui, const QString& eingabe) {
    const double n = basic::Val(eingabe);
    s.DatensatzNummer = (n >= 1 && n <= Anzahl(s)) ? static_cast<int>(n) : 1;
    ZeigeDatensatz(s, ui);
    ui.FokusFeldbox(21);
}

bool SucheDatensatz(AppState& s, Oberflaeche& ui, const QString& suchtext) {
    if (suchtext.isEmpty()) return false;
    const int anzahl = Anzahl(s);
    int start = Nummer(s) + 1;
    if (start > anzahl || start < 1) start = 1;
    for (int schritt = 0; schritt < anzahl; ++schritt) {
        const int r = (start - 1 + schritt) % anzahl + 1;
        for (int f = 1; f <= DatensatzFelderAlt; ++f) {
            if (DatensatzFeld(s, f, r).contains(suchtext, Qt::CaseSensitive)) {
                s.DatensatzNummer = r;
                ZeigeDatensatz(s, ui);
                return true;
            }
        }
    }
    ui.Statusmeldung(QStringLiteral("\"%1\" wurde in keinem Datensatz gefunden.").arg(suchtext));
    return false;
}

bool LoescheDatensatz(AppState& s, Oberflaeche& ui) {
    if (!ui.Frage(QStringLiteral("Diesen Datensatz löschen?"), QStringLiteral("Datensatz löschen")))
        return false;
    const int anzahl = Anzahl(s);
    const int r = std::clamp(Nummer(s), 1, anzahl);
    DatensaetzeVergroessern(s, anzahl);
    LeereDatensatz(s, r, DatensatzFelderAlt);
    if (anzahl > 1) {
        for (int i = r; i < anzahl; ++i)
            KopiereDatensatz(s, i + 1, i);
        LeereDatensatz(s, anzahl, Breite(s));
        s.DatensatzAnzahl = anzahl - 1;
    }
    s.DatensatzNummer = std::min(r, Anzahl(s));
    ZeigeDatensatz(s, ui);
    return true;
}

void FuegeDatensatzEin(AppState& s, Oberflaeche& ui) {
    const int anzahl = Anzahl(s) + 1;
    const int r = std::clamp(Nummer(s), 1, anzahl - 1);
    DatensaetzeVergroessern(s, anzahl);
    for (int i = anzahl; i > r; --i)
        KopiereDatensatz(s, i - 1, i);
    LeereDatensatz(s, r, Breite(s));
    s.DatensatzAnzahl = anzahl;
    s.DatensatzNummer = r;
    ZeigeDatensatz(s, ui);
    ui.FokusFeldbox(21);
}

void FeldboxGeaendert(AppState& s, Oberflaeche& ui, int i, const QString& text) {
    if (!s.Panel.Text1.Gueltig(i) || i < 1) return;
    s.Panel.Text1(i) = text;
    if (s.LadeSperre != 0) return; // controls are being filled: the state already holds the text
    if (s.Schriftliste.Gueltig(i)) s.Schriftliste(i).Textstring = text;
    if (i >= 21 && i <= 30) {
        const int r = std::max(1, Nummer(s));
        DatensaetzeVergroessern(s, r);
        s.Datensaetze(i - 20, r) = text;
    }
    ui.Neuzeichnen();
}

bool LayoutKnopf(AppState& s, Oberflaeche& ui, int k) {
    s.Ladevorgabe = s.Programmpfad + QStringLiteral("Layout%1.lay").arg(k);
    return LadeLayout(s, ui);
}

} // namespace zp
