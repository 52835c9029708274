#pragma once
// Undo and redo of the edits on the document: before each edit the document's lists, counts and
// current numbers are kept as a whole, so that any edit, however many objects it renumbers, goes
// back in one step. Nothing of it is stored in a file; loading a design empties it.

#include "core/runtime/Liste.h"
#include "model/Klassen.h"
#include "model/SeiteEtikett.h"

#include <deque>

namespace zp {

struct AppState;

// What an edit can change: the frames and objects with their counts, the current numbers, the
// side panel's boxes that mirror the texts, the record fields and the page.
struct Dokumentstand {
    Liste<ClassRahmen> Rahmenliste;
    Liste<ClassSchrift> Schriftliste;
    Liste<ClassBild> Bildliste;
    Liste<ClassLinie> Linienliste;
    Liste<QString> RTFliste;
    double RahmenAnzahl = 0, SchriftMax = 0, BildAnzahl = 0, LinieAnzahl = 0, RTFAnzahl = 0;
    double RahmenNummer = 1, SchriftNummer = 1, BildNummer = 0, LinieNummer = 0, RTFNummer = 1;
    Liste<QString> Text1;
    Tabelle<QString> Datensaetze;
    ClassSeite AktuelleSeite;
    ClassEtikett AktuellesEtikett;
    bool Einfuegen = false; // kept by an insertion: a cancelled insertion takes it back unused
};

struct Bearbeitungsverlauf {
    static constexpr int Tiefe = 100; // steps kept; the oldest go first
    std::deque<Dokumentstand> Zurueck;
    std::deque<Dokumentstand> Vor;
    std::deque<Dokumentstand> VorDemLetzten; // the redo steps given up by the last step kept
};

// Keeps the document as it stands, before an edit; the steps undone so far are given up.
void VerlaufMerken(AppState& s, bool einfuegen = false);
// The step just kept changed nothing after all: it goes, and the redo steps come back.
void VerlaufZuruecknehmen(AppState& s);
// An insertion that was cancelled before it finished: its kept step goes, unused.
void EinfuegenVerwerfen(AppState& s);
// The document as before the last edit, or after the last undone one. False when there is none.
bool VerlaufZurueck(AppState& s);
bool VerlaufVor(AppState& s);
void VerlaufLeeren(AppState& s);

} // namespace zp
