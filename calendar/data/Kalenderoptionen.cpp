#include "calendar/data/Kalenderoptionen.h"

#include "core/state/AppState.h"

namespace zp {

const QStringList& Feiertagsschalter() {
    static const QStringList liste = {QStringLiteral("Neujahr"),
                                      QStringLiteral("Hl. drei Könige"),
                                      QStringLiteral("Rosenmontag"),
                                      QStringLiteral("Fastnacht"),
                                      QStringLiteral("Aschermittwoch"),
                                      QStringLiteral("Karfreitag"),
                                      QStringLiteral("Karsamstag"),
                                      QStringLiteral("Ostersonntag"),
                                      QStringLiteral("Ostermontag"),
                                      QStringLiteral("Maifeiertag"),
                                      QStringLiteral("Chriti Himmelfahrt"),
                                      QStringLiteral("Pfingstsonntag"),
                                      QStringLiteral("Pfingstmontag"),
                                      QStringLiteral("Fronleichnam"),
                                      QStringLiteral("Maria Himmelfahrt"),
                                      QStringLiteral("Tag der Dt. Einheit"),
                                      QStringLiteral("Allerheiligen"),
                                      QStringLiteral("Buß- und Bettag"),
                                      QStringLiteral("Totensonntag"),
                                      QStringLiteral("Nikolaus"),
                                      QStringLiteral("Advent"),
                                      QStringLiteral("Hl. Abend"),
                                      QStringLiteral("1. Weihnacht."),
                                      QStringLiteral("2. Weihnacht"),
                                      QStringLiteral("Silvester")};
    return liste;
}

const QStringList& Monatsliste() {
    static const QStringList liste = {
        QStringLiteral("Januar"),  QStringLiteral("Februar"),  QStringLiteral("März"),
        QStringLiteral("April"),   QStringLiteral("Mai"),      QStringLiteral("Juni"),
        QStringLiteral("Juli"),    QStringLiteral("August"),   QStringLiteral("September"),
        QStringLiteral("Oktober"), QStringLiteral("November"), QStringLiteral("Dezember")};
    return liste;
}

const QStringList& Wochentagsliste() {
    static const QStringList liste = {QStringLiteral("Sonntag"),    QStringLiteral("Montag"),
                                      QStringLiteral("Dienstag"),   QStringLiteral("Mittwoch"),
                                      QStringLiteral("Donnerstag"), QStringLiteral("Freitag"),
                                      QStringLiteral("Samstag")};
    return liste;
}

void StandardnamenSetzen(AppState& s) {
    for (int m = 1; m <= 12; ++m)
        s.Monatsnamen(m) = Monatsliste()[m - 1];
    // Calendar cells are narrow: the weekday names on the page are the short forms.
    for (int w = 1; w <= 7; ++w)
        s.Wochentagsnamen(w) = Wochentagsliste()[w - 1].left(2);
    s.Wochentagsnamen(8) = s.Wochentagsnamen(1);
}

Optionenwahl OptionenAusZustand(const AppState& s) {
    Optionenwahl w;
    for (int i = 0; i < static_cast<int>(w.haken.size()); ++i)
        w.haken[static_cast<size_t>(i)] = s.FeiertagWahl.Gueltig(i + 1) && s.FeiertagWahl(i + 1) == 1;
    w.samstag = s.FarbeSamstag;
    w.sonntag = s.FarbeSonntag;
    w.feiertag = s.FarbeFeiertag;
    w.termin = s.FarbeTermin;
    w.isoWochen = s.WochennummernIso;
    w.bundesland = s.Bundesland;
    return w;
}

void OptionenUebernehmen(AppState& s, const Optionenwahl& w) {
    for (int i = 0; i < static_cast<int>(w.haken.size()); ++i)
        if (s.FeiertagWahl.Gueltig(i + 1)) s.FeiertagWahl(i + 1) = w.haken[static_cast<size_t>(i)] ? 1 : 0;
    s.FarbeSamstag = w.samstag;
    s.FarbeSonntag = w.sonntag;
    s.FarbeTermin = w.termin;
    s.FarbeFeiertag = w.feiertag;
    s.Wochentagsnamen(8) = s.Wochentagsnamen(1);
    s.WochennummernIso = w.isoWochen;
    s.Bundesland = w.bundesland;
}

bool BundeslandGewaehlt(Optionenwahl& wahl, const QString& land) {
    if (!BundeslandVorwahl(land, wahl.haken)) return false;
    wahl.bundesland = land;
    return true;
}

void MonatsnameGeaendert(AppState& s, int listenindex, const QString& text) {
    if (listenindex >= 0 && listenindex < 12) s.Monatsnamen(listenindex + 1) = text;
}

void WochentagsnameGeaendert(AppState& s, int listenindex, const QString& text) {
    if (listenindex >= 0 && listenindex < 7) s.Wochentagsnamen(listenindex + 1) = text;
}

} // namespace zp
