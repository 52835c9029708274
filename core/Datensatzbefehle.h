#pragma once
// The record panel of the card and label editions: showing a record in the boxes Text1(21) to
// Text1(30), moving through the records, finding, deleting and inserting one, and the layout
// buttons. Each command works on the state and tells the window through `Oberflaeche`.

#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// Field `feld` of record `datensatz`, or "" where the table has no such cell.
[[nodiscard]] QString DatensatzFeld(const AppState& s, int feld, int datensatz);
// Grows `Datensaetze` to hold records 1 to `anzahl`, keeping what stands. The table is made at
// least 20 fields wide; a wider one keeps its width, so that no record loses its picture column.
void DatensaetzeVergroessern(AppState& s, int anzahl);

// `ZeigeDatensatz`: fields 1 to 10 of `DatensatzNummer` into the boxes Text1(21) to Text1(30) and
// so into the text objects 21 to 30; the record's picture (column 21) into `TextBild`.
void ZeigeDatensatz(AppState& s, Oberflaeche& ui);

void ErsterDatensatz(AppState& s, Oberflaeche& ui);  // ComData1
void VorigerDatensatz(AppState& s, Oberflaeche& ui); // ComData2
// Comdata3: past a filled last record a new empty one is added; an empty last record stays last.
void NaechsterDatensatz(AppState& s, Oberflaeche& ui);
void LetzterDatensatz(AppState& s, Oberflaeche& ui); // Comdata4
// Enter in TextData: the typed number when it names a record, else record 1.
void DatensatzNummerEingegeben(AppState& s, Oberflaeche& ui, const QString& eingabe);

// Command1: the next record, from the one after the current, whose fields 1 to 20 hold `suchtext`
// (case-sensitive), going round once. Returns whether one was found.
bool SucheDatensatz(AppState& s, Oberflaeche& ui, const QString& suchtext);
// Command2: after the question, empties the record and closes the gap; the only record stays as
// an empty one. Returns whether the record was deleted.
bool LoescheDatensatz(AppState& s, Oberflaeche& ui);
// Command3: an empty record at the current place, the records from there on move one down.
void FuegeDatensatzEin(AppState& s, Oberflaeche& ui);

// Text1(i) changed: the box is the text of `Schriftliste(i)`, and boxes 21 to 30 are also fields
// 1 to 10 of the current record.
void FeldboxGeaendert(AppState& s, Oberflaeche& ui, int i, const QString& text);

// Command4(k): lays the page out anew after `Programmpfad` + "Layout<k>.lay".
bool LayoutKnopf(AppState& s, Oberflaeche& ui, int k);

} // namespace zp
