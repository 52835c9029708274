#include "calendar/data/Kalendertypen.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

namespace zp {

int Seitenanzahl(int kalendertyp) {
    constexpr int seiten[] = {0, 2, 1, 1, 12, 12, 53, 4};
    return (kalendertyp >= 1 && kalendertyp <= 7) ? seiten[kalendertyp] : 1;
}

namespace {

bool TypGueltig(int typ) {
    return typ >= 1 && typ <= 7;
}

QString Name(int typ, const QString& variante) {
    return QStringLiteral("kal%1%2.zpk").arg(typ).arg(variante);
}

} // namespace

QString Typname(int typ) {
    static const char* namen[] = {"",        "Halbjahr", "Jahr A5", "Tasche",
                                  "Monat 1", "Monat 2",  "Woche",   "Planer"};
    return TypGueltig(typ) ? QString::fromUtf8(namen[typ]) : QString();
}

QString Designdatei(const AppState& s) {
    return Designdatei(s, static_cast<int>(s.Kalendertyp), s.Designvariante);
}
QString Designdatei(const AppState& s, int typ, const QString& variante) {
    return s.Programmpfad + Name(typ, variante);
}
QString Standarddesigndatei(const AppState& s, int typ, const QString& variante) {
    return s.Programmpfad + QStringLiteral("daten/") + Name(typ, variante);
}

QString VarianteAusText(const QString& eintrag) {
    const double n = basic::Val(eintrag.right(2));
    return n > 1 ? QStringLiteral("v%1").arg(static_cast<long long>(n)) : QString();
}

void NachKalenderdesignLaden(AppState& s) {
    const int typ = static_cast<int>(s.Kalendertyp);
    s.FesteRahmen = typ < 4 ? 38 : 39;
    if (s.Schriftliste.Obergrenze() >= 7) {
        s.Schriftliste(1).Textstring = s.Panel.TextTitel;
        s.Schriftliste(7).Textstring = s.Panel.TextUnterschrift;
    }
    if (s.Rahmenliste.Obergrenze() >= 7) {
        s.Rahmenliste(1).Sichtbar = -1;
        s.Rahmenliste(7).Sichtbar = -1;
    }
    s.Seitenanzahl = Seitenanzahl(typ);
    if (s.Seitennummer > s.Seitenanzahl || s.Seitennummer < 1 || typ == 6) s.Seitennummer = 1;
}

} // namespace zp
