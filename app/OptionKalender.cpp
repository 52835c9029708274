// The calendar's options: --typ, --variante, --jahr, --feiertage and --seite stand for the type
// buttons, the variant box, a click in the year list, the holiday button and the page spinner.
#include "app/Kommandozeile.h"

#include "calendar/data/Kalendertypen.h"
#include "calendar/data/Tagesdaten.h"
#include "calendar/walks/KalenderLauf.h"
#include "core/Kalenderbefehle.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <cmath>
#include <optional>

namespace {

using zp::Batchlauf;

bool Kalender(Batchlauf& lauf, const QString& option) {
    if (lauf.s.IstKalender != 0) return true;
    lauf.Fehler(QStringLiteral("%1 gibt es nur in der Ausgabe Kalender.").arg(option));
    return false;
}

// A whole number from `von` to `bis`, else a German message.
std::optional<int> Zahl(Batchlauf& lauf, const QString& option, const QString& text, int von, int bis) {
    const auto wert = zp::basic::ParseDouble(text);
    if (!wert || *wert != std::floor(*wert) || *wert < von || *wert > bis) {
        lauf.Fehler(QStringLiteral("%1 erwartet eine ganze Zahl von %2 bis %3, nicht \"%4\".")
                        .arg(option)
                        .arg(von)
                        .arg(bis)
                        .arg(text));
        return std::nullopt;
    }
    return static_cast<int>(*wert);
}

// The question of the year list is answered Yes exactly when --feiertage is given as well.
class JahrOberflaeche : public zp::Oberflaeche {
public:
    JahrOberflaeche(zp::Oberflaeche& ui, bool ja) : m_ui(ui), m_ja(ja) {}
    bool Frage(const QString&, const QString&) override { return m_ja; }
    void Meldung(const QString& text, const QString& titel, const QString& detail) override {
        m_ui.Meldung(text, titel, detail);
    }

private:
    zp::Oberflaeche& m_ui;
    bool m_ja;
};

bool Typ(Batchlauf& lauf, const QString& argument) {
    if (!Kalender(lauf, QStringLiteral("--typ"))) return false;
    const auto typ = Zahl(lauf, QStringLiteral("--typ"), argument, 1, 7);
    return typ && zp::CommandTyp(lauf.s, lauf.ui, *typ);
}

bool Variante(Batchlauf& lauf, const QString& argument) {
    if (!Kalender(lauf, QStringLiteral("--variante"))) return false;
    const auto variante = Zahl(lauf, QStringLiteral("--variante"), argument, 1, 2);
    return variante && zp::ComboVariante(lauf.s, lauf.ui, QStringLiteral("Variante %1").arg(*variante));
}

bool Jahr(Batchlauf& lauf, const QString& argument) {
    if (!Kalender(lauf, QStringLiteral("--jahr"))) return false;
    const auto jahr = Zahl(lauf, QStringLiteral("--jahr"), argument, 1, 9999);
    if (!jahr) return false;
    JahrOberflaeche ui(lauf.ui, lauf.Hat(QStringLiteral("--feiertage")));
    return zp::JahrGewaehlt(lauf.s, ui, *jahr);
}

bool Feiertage(Batchlauf& lauf, const QString&) {
    if (!Kalender(lauf, QStringLiteral("--feiertage"))) return false;
    zp::FeiertageBerechnen(lauf.s, lauf.ui);
    return true;
}

bool Seite(Batchlauf& lauf, const QString& argument) {
    if (!Kalender(lauf, QStringLiteral("--seite"))) return false;
    const int seiten = zp::Seitenanzahl(static_cast<int>(lauf.s.Kalendertyp));
    const auto seite = Zahl(lauf, QStringLiteral("--seite"), argument, 1, seiten);
    if (!seite) return false;
    lauf.s.Seitennummer = *seite;
    return true;
}

const bool registriert = [] {
    using zp::Option;
    using zp::OptionArt;
    zp::RegistriereOption(
        {QStringLiteral("--typ"), QStringLiteral("N"),
         QStringLiteral("Kalendertyp 1 bis 7 wählen (Halbjahr, Jahr A5, Tasche, Monat 1, Monat 2, "
                        "Woche, Planer)"),
         OptionArt::Aktion, Typ});
    zp::RegistriereOption({QStringLiteral("--variante"), QStringLiteral("N"),
                           QStringLiteral("Designvariante 1 oder 2 des Kalendertyps wählen"),
                           OptionArt::Aktion, Variante});
    zp::RegistriereOption({QStringLiteral("--jahr"), QStringLiteral("N"),
                           QStringLiteral("Kalenderjahr wählen; die Feiertage werden nur mit --feiertage neu "
                                          "berechnet"),
                           OptionArt::Aktion, Jahr});
    zp::RegistriereOption({QStringLiteral("--feiertage"),
                           {},
                           QStringLiteral("die Feiertage des Kalenderjahrs berechnen"),
                           OptionArt::Aktion,
                           Feiertage});
    zp::RegistriereOption({QStringLiteral("--seite"), QStringLiteral("N"),
                           QStringLiteral("die Kalenderseite N zeigen"), OptionArt::Aktion, Seite});
    return true;
}();

} // namespace
