#include "core/state/Papier.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

namespace zp {

namespace {
struct Papiereintrag {
    const char* name;
    int32_t breite, hoehe;
};
constexpr Papiereintrag Papiere[] = {
    {"DIN A4", 2100, 2970}, {"DIN A5", 1480, 2100},    {"Letter", 2160, 2790},
    {"Legal", 2160, 3560},  {"Executive", 1850, 2670},
};
const QString Benutzerdefiniert = QStringLiteral("Benutzerdefiniert");
constexpr int EigeneZeilen = 5; // catalogue rows that belong to the user

int32_t Wert(const AppState& s, int spalte, int zeile) {
    return static_cast<int32_t>(
        basic::RoundHalfEven(basic::ParseDouble(s.KartenformatWerte(spalte, zeile)).value_or(0)));
}
} // namespace

QStringList Papiernamen() {
    QStringList namen;
    for (const auto& p : Papiere)
        namen << QString::fromLatin1(p.name);
    namen << Benutzerdefiniert;
    return namen;
}

std::optional<Papiergroesse> GroesseDesPapiers(const QString& name) {
    for (const auto& p : Papiere)
        if (name == QLatin1String(p.name)) return Papiergroesse{p.breite, p.hoehe};
    return std::nullopt;
}

bool WendePapierAn(ClassSeite& seite) {
    if (const auto g = GroesseDesPapiers(seite.Papier)) {
        seite.Breite = g->Breite;
        seite.Höhe = g->Höhe;
    }
    return seite.Papier == Benutzerdefiniert;
}

Etikettenplatz EtikettPosition(const ClassSeite& seite, const ClassEtikett& etikett, int spalte, int zeile) {
    return {static_cast<int64_t>(seite.Randlinks) +
                static_cast<int64_t>(spalte - 1) * (static_cast<int64_t>(etikett.Breite) + etikett.Abstand_x),
            static_cast<int64_t>(seite.Randoben) +
                static_cast<int64_t>(zeile - 1) * (static_cast<int64_t>(etikett.Höhe) + etikett.Abstand_y)};
}

bool WendeKartenformatAn(AppState& s, int zeile) {
    if (zeile == 0) return true;
    if (zeile < 1 || zeile > s.KartenformatAnzahl || !s.KartenformatWerte.Gueltig(10, zeile)) return false;
    s.SeiteKopie.Randlinks = Wert(s, 7, zeile);
    s.SeiteKopie.Randoben = Wert(s, 8, zeile);
    s.EtikettKopie.Breite = Wert(s, 1, zeile);
    s.EtikettKopie.Höhe = Wert(s, 2, zeile);
    s.EtikettKopie.Anzahl_x = Wert(s, 3, zeile);
    s.EtikettKopie.Anzahl_y = Wert(s, 4, zeile);
    s.EtikettKopie.Abstand_x = Wert(s, 5, zeile);
    s.EtikettKopie.Abstand_y = Wert(s, 6, zeile);
    s.EtikettKopie.Form = Wert(s, 9, zeile) == 1 ? 1 : 0;
    return true;
}

void MerkeKartenformatwert(AppState& s, int zeile, int spalte, int32_t wert) {
    if (zeile < 1 || zeile > EigeneZeilen || spalte < 1 || spalte > 10) return;
    if (!s.KartenformatWerte.Gueltig(spalte, zeile)) return;
    s.KartenformatWerte(spalte, zeile) = QString::number(wert);
}

} // namespace zp
