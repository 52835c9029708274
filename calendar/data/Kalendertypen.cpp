#include "calendar/data/Kalendertypen.h"

#include "calendar/data/Standarddesign.h"
#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"

#include <QFileInfo>

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
bool LadeArbeitsdesign(AppState& s, Oberflaeche& ui, const Designablage& ablage) {
    const int typ = static_cast<int>(s.Kalendertyp);
    s.AktuelleDatei = Designdatei(s);
    if (!QFileInfo::exists(s.AktuelleDatei) &&
        QFileInfo::exists(Standarddesigndatei(s, typ, s.Designvariante)))
        KopiereStandard(s, ui, typ);
    s.LadeSperre = 255;
    bool geladen = true;
    if (ablage.laden && QFileInfo::exists(s.AktuelleDatei))
        geladen = ablage.laden(s);
    else // neither a working copy nor a shipped file: the built-in standard design of the type
        BaueStandarddesign(s, typ, s.Designvariante == u"v2" ? 2 : 1);
    s.LadeSperre = 0;
    NachKalenderdesignLaden(s);
    ui.SeitentitelAktualisieren();
    ui.Neuzeichnen();
    return geladen;
}

bool SpeichereArbeitsdesign(AppState& s, const Designablage& ablage) {
    s.AktuelleDatei = Designdatei(s);
    return ablage.speichern ? ablage.speichern(s) : false;
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

bool CommandTyp(AppState& s, Oberflaeche& ui, const Designablage& ablage, int typ) {
    if (!TypGueltig(typ)) return false;
    const int alt = static_cast<int>(s.Kalendertyp);
    ui.TypKnopfHervorheben(alt, false);
    SpeichereArbeitsdesign(s, ablage); // the old design is kept, changed or not
    s.Seitennummer = 1;
    s.Kalendertyp = typ;
    ui.TypKnopfHervorheben(typ, true);
    return LadeArbeitsdesign(s, ui, ablage);
}

bool ComboVariante(AppState& s, Oberflaeche& ui, const Designablage& ablage, const QString& eintrag) {
    SpeichereArbeitsdesign(s, ablage);
    s.Designvariante = VarianteAusText(eintrag);
    s.Seitennummer = 1;
    return LadeArbeitsdesign(s, ui, ablage);
}

bool CommandStandard(AppState& s, Oberflaeche& ui, const Designablage& ablage) {
    if (!ui.Frage(QStringLiteral("Das aktuelle Kalenderdesign wird gelöscht. Wollen Sie das Standarddesign "
                                 "wieder herstellen?"),
                  QStringLiteral("Kalender zurücksetzen")))
        return false;
    if (!KopiereStandard(s, ui, static_cast<int>(s.Kalendertyp))) return false;
    return LadeArbeitsdesign(s, ui, ablage);
}

} // namespace zp
