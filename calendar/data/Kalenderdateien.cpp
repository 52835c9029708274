#include "calendar/data/Kalenderdateien.h"

#include "calendar/data/Tagesdaten.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/KalImport.h"
#include "persist/Kalenderdaten.h"

#include <QFileInfo>

namespace zp {

namespace {

void MeldeFormat(Oberflaeche& ui, const QString& pfad, const FormatFehler& f) {
    ui.Meldung(QStringLiteral("Falsches Datenformat"), QStringLiteral("Warnung!"),
               QStringLiteral("%1, Zeile %2: %3").arg(pfad).arg(f.zeile).arg(f.grund));
}

bool Lesbar(Oberflaeche& ui, const QString& pfad, QByteArray& bytes) {
    QString grund;
    const auto gelesen = LeseDatei(pfad, GroessteDatei, &grund);
    if (!gelesen) {
        ui.Meldung(QStringLiteral("Die Datei kann nicht gelesen werden."), QStringLiteral("Warnung!"),
                   pfad + QStringLiteral(": ") + grund);
        return false;
    }
    bytes = *gelesen;
    return true;
}

// What the panel shows after new day data came in.
void PanelNachDaten(AppState& s, Oberflaeche& ui) {
    MonatsbildWaehlen(s, s.Panel.ComboMonat);
    TerminAnzeigen(s);
    FeiertagAnzeigen(s);
    TagesmarkenAufbauen(s);
    ui.PanelAktualisieren();
    ui.StatusDatei(s.Datendatei);
}

} // namespace

bool SpeichereDaten(AppState& s, Oberflaeche& ui) {
    QString fehler;
    if (!SchreibeDateiAtomar(s.Datendatei, ZpdBytes(KalenderdatenAus(s)), &fehler)) {
        ui.Meldung(QStringLiteral("Die Daten konnten nicht gespeichert werden."), QStringLiteral("Warnung!"),
                   s.Datendatei + QStringLiteral(": ") + fehler);
        return false;
    }
    ui.StatusDatei(s.Datendatei);
    return true;
}

Ladeergebnis LadeDaten(AppState& s, Oberflaeche& ui) {
    if (!QFileInfo::exists(s.Datendatei)) return Ladeergebnis::Fehlt;
    QByteArray bytes;
    if (!Lesbar(ui, s.Datendatei, bytes)) return Ladeergebnis::Fehler;
    try {
        KalenderdatenUebernehmen(s, ZpdLesen(bytes));
    } catch (const FormatFehler& f) {
        MeldeFormat(ui, s.Datendatei, f);
        return Ladeergebnis::Fehler;
    }
    PanelNachDaten(s, ui);
    return Ladeergebnis::Geladen;
}

Ladeergebnis DatenOeffnen(AppState& s, Oberflaeche& ui, const QString& pfad) {
    const QString vorher = s.Datendatei;
    s.Datendatei = pfad;
    const Ladeergebnis e = LadeDaten(s, ui);
    if (e == Ladeergebnis::Fehler) s.Datendatei = vorher; // the document stays as it was
    return e;
}

Ladeergebnis KalOeffnen(AppState& s, Oberflaeche& ui, const QString& pfad) {
    if (!QFileInfo::exists(pfad)) {
        ui.Neuzeichnen();
        return Ladeergebnis::Fehlt;
    }
    QByteArray bytes;
    if (!Lesbar(ui, pfad, bytes)) return Ladeergebnis::Fehler;
    std::vector<KalEintrag> eintraege;
    try {
        eintraege = KalLesen(bytes);
    } catch (const FormatFehler& f) {
        MeldeFormat(ui, pfad, f);
        return Ladeergebnis::Fehler;
    }
    s.Datendatei = pfad;
    for (const KalEintrag& e : eintraege)
        s.Termine(e.tag, e.monat) = e.text;
    PanelNachDaten(s, ui);
    ui.Neuzeichnen();
    return Ladeergebnis::Geladen;
}

bool SpeichereAutoDaten(AppState& s, Oberflaeche& ui) {
    s.Datendatei = s.Programmpfad + QStringLiteral("auto.zpd");
    return SpeichereDaten(s, ui);
}

} // namespace zp
