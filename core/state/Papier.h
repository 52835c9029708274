#pragma once
// Paper sizes, the label sheet's geometry and the catalogue's templates, as the page dialog
// works them out on the copies `SeiteKopie` and `EtikettKopie`.

#include <QString>
#include <QStringList>
#include <optional>

namespace zp {

struct AppState;
struct ClassSeite;
struct ClassEtikett;

struct Papiergroesse {
    int32_t Breite = 0; // tenths of a millimetre, portrait
    int32_t Höhe = 0;
};

// The names of the paper list, "DIN A4" first and "Benutzerdefiniert" last.
[[nodiscard]] QStringList Papiernamen();
// The size of a named paper; std::nullopt for "Benutzerdefiniert" and unknown names.
[[nodiscard]] std::optional<Papiergroesse> GroesseDesPapiers(const QString& name);

// Applies `seite.Papier`: a named paper sets width and height in portrait, whatever `Querformat`
// says; a user-defined size keeps them. Returns whether the size boxes are open for typing.
bool WendePapierAn(ClassSeite& seite);

// Top-left corner of label (spalte, zeile), both from 1, on the sheet: the page's margins place
// the first label, each further one moves by a label plus its gap.
struct Etikettenplatz {
    int64_t x = 0;
    int64_t y = 0;
};
[[nodiscard]] Etikettenplatz EtikettPosition(const ClassSeite& seite, const ClassEtikett& etikett, int spalte,
                                             int zeile);

// Fills `SeiteKopie` and `EtikettKopie` from catalogue row `zeile` (1 to `KartenformatAnzahl`):
// first label's place, size, count, gaps and the round form of column 9. Row 0 ("Vorgaben")
// changes nothing. Returns false for a row that doesn't exist.
bool WendeKartenformatAn(AppState& s, int zeile);
// An edit of a template box: rows 1 to 5 are the user's own and remember the value in `spalte`;
// later rows are left as shipped.
void MerkeKartenformatwert(AppState& s, int zeile, int spalte, int32_t wert);

} // namespace zp
