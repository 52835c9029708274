#include "core/Kalenderbefehle.h"

#include "calendar/data/Feiertage.h"
#include "calendar/data/Kalendertypen.h"
#include "calendar/data/Standarddesign.h"
#include "calendar/data/Tagesdaten.h"
#include "core/Befehlsrahmen.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Design.h"
#include "persist/Unlesbar.h"

#include <QFileInfo>

namespace zp {

namespace {

bool TypGueltig(int typ) {
    return typ >= 1 && typ <= 7;
}

// Copies the standard design over the working file, replacing it in one step.
bool KopiereStandard(AppState& s, Oberflaeche& ui, int typ) {
    const QString quelle = Standarddesigndatei(s, typ, s.Designvariante);
    const auto bytes = LeseDatei(quelle);
    if (!bytes) {
        ui.Meldung(QStringLiteral("Das Standarddesign wurde nicht gefunden."), QStringLiteral("Warnung!"),
                   quelle);
        return false;
    }
    QString fehler;
    const QString ziel = Designdatei(s, typ, s.Designvariante);
    if (!SchreibeDateiAtomar(ziel, *bytes, &fehler)) {
        ui.Meldung(QStringLiteral("Das Kalenderdesign konnte nicht geschrieben werden."),
                   QStringLiteral("Warnung!"), ziel + QStringLiteral(": ") + fehler);
        return false;
    }
    return true;
}

// Loads the working design of the current type and variant; a working copy that isn't there yet
// starts as a copy of the standard design.
bool LadeArbeitsdesign(AppState& s, Oberflaeche& ui) {
    const int typ = static_cast<int>(s.Kalendertyp);
    s.AktuelleDatei = Designdatei(s);
    if (!QFileInfo::exists(s.AktuelleDatei) &&
        QFileInfo::exists(Standarddesigndatei(s, typ, s.Designvariante)))
        KopiereStandard(s, ui, typ);
    s.LadeSperre = 255;
    bool geladen = true;
    if (QFileInfo::exists(s.AktuelleDatei))
        geladen = Sicher(ui, [&] { return LoadDesign(s, ui); });
    else // neither a working copy nor a shipped file: the built-in standard design of the type
        BaueStandarddesign(s, typ, s.Designvariante == u"v2" ? 2 : 1);
    s.LadeSperre = 0;
    NachKalenderdesignLaden(s);
    ui.Geaendert(Aenderung::Seitentitel | Aenderung::Kalendertyp | Aenderung::Panel | Aenderung::Auswahl |
                 Aenderung::Seite);
    return geladen;
}

bool SpeichereArbeitsdesign(AppState& s, Oberflaeche& ui) {
    s.AktuelleDatei = Designdatei(s);
    // A working design that can't be read is kept aside before the session's design replaces it.
    Defektsicherung sicherung(ui);
    if (!sicherung.Frei(s.AktuelleDatei, GroessteDatei,
                        [&s](const QByteArray& bytes) { return LesbarAlsDesign(s, bytes); }))
        return false;
    return Sicher(ui, [&] { return SaveDesign(s, ui); });
}

} // namespace

bool CommandTyp(AppState& s, Oberflaeche& ui, int typ) {
    if (!TypGueltig(typ)) return false;
    SpeichereArbeitsdesign(s, ui); // the old design is kept, changed or not
    s.Seitennummer = 1;
    s.Kalendertyp = typ;
    return LadeArbeitsdesign(s, ui);
}

bool ComboVariante(AppState& s, Oberflaeche& ui, const QString& eintrag) {
    SpeichereArbeitsdesign(s, ui);
    s.Designvariante = VarianteAusText(eintrag);
    s.Seitennummer = 1;
    return LadeArbeitsdesign(s, ui);
}

bool CommandStandard(AppState& s, Oberflaeche& ui) {
    if (!ui.Frage(QStringLiteral("Das aktuelle Kalenderdesign wird gelöscht. Wollen Sie das Standarddesign "
                                 "wieder herstellen?"),
                  QStringLiteral("Kalender zurücksetzen")))
        return false;
    if (!KopiereStandard(s, ui, static_cast<int>(s.Kalendertyp))) return false;
    return LadeArbeitsdesign(s, ui);
}

void FeiertageBerechnen(AppState& s, Oberflaeche& ui) {
    CommandBerechnen(s);
    TagesmarkenAufbauen(s);
    FeiertagAnzeigen(s);
    ui.Geaendert(Aenderung::Panel | Aenderung::Seite);
}

} // namespace zp
