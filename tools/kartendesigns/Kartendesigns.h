#pragma once
// The documents behind the shipped data of the card editions: the gallery of 19 business cards,
// the five layouts of the address texts, and a few sample addresses.

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zp {

struct AppState;

// Business card size of the Visitenkarte edition, tenths of a millimetre.
constexpr int KarteBreite = 850;
constexpr int KarteHoehe = 540;

// The gallery's names, in the order of its list; design n is "design<n>.zpv".
[[nodiscard]] QStringList Galerienamen();

// A fresh card document: 30 text frames over text objects 1 to 30, the letter-body frame 31,
// no pictures and no shapes. Text objects 21 to 30 show fields 1 to 10 of the current record.
void Grunddokument(AppState& s);

// Gallery design n (1 to 19) on a fresh card document.
void BaueKartendesign(AppState& s, int n);

// The design file of a gallery card: a template, whose load keeps the user's addresses.
[[nodiscard]] QByteArray GaleriedesignBytes(const AppState& s);

// Layout k (1 to 5) on a fresh card document: the arrangement of the 30 texts.
void BaueLayout(AppState& s, int k);

// Sample addresses: field 1 name, 2 street, 3 town, 4 phone, 5 e-mail, 6 company, 7 profession.
void BaueBeispieladressen(AppState& s);

} // namespace zp
