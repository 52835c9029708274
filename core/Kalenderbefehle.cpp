#include "Kalenderbefehle.h"

#include "AppState.h"
#include "Dokumentbefehle.h"
#include "Dokumentdienste.h"
#include "Oberflaeche.h"
#include "Seitennavigation.h"
#include "runtime/Basic.h"

#include <QFile>
#include <QFileInfo>
#include <cmath>

namespace zp {

namespace {

// Loads AktuelleDatei with the change handlers quiet, then updates pages and panel and redraws.
void DesignNeuLaden(AppState& s, Oberflaeche& ui, const Dokumentdienste& d) {
    s.LadeSperre = 255;
    DienstAusfuehren(d.LoadDesign, s, ui);
    Seitenbereich(s);
    ui.SeitentitelAktualisieren();
    ui.PanelAktualisieren();
    ui.AuswahlAktualisieren();
    s.LadeSperre = 0;
    ui.Neuzeichnen();
}

} // namespace

bool BefehlKalendertyp(AppState& s, Oberflaeche& ui, const Dokumentdienste& d, int typ) {
    if (typ < 1 || typ > 7) return false;
    ui.TypKnopfHervorheben(static_cast<int>(s.Kalendertyp), false);
    s.AktuelleDatei = Kalenderdesigndatei(s);
    DienstAusfuehren(d.SaveDesign, s, ui);
    s.Seitennummer = 1;
    s.Kalendertyp = typ;
    ui.TypKnopfHervorheben(typ, true);
    s.AktuelleDatei = Kalenderdesigndatei(s);
    DesignNeuLaden(s, ui, d);
    return true;
}

void BefehlVariante(AppState& s, Oberflaeche& ui, const Dokumentdienste& d, const QString& eintrag) {
    s.AktuelleDatei = Kalenderdesigndatei(s);
    DienstAusfuehren(d.SaveDesign, s, ui);
    const int n = static_cast<int>(basic::Val(eintrag.right(2)));
    s.Designvariante = n > 1 ? QStringLiteral("v") + QString::number(n) : QString();
    s.Seitennummer = 1;
    s.AktuelleDatei = Kalenderdesigndatei(s);
    DesignNeuLaden(s, ui, d);
}

bool BefehlKalenderZuruecksetzen(AppState& s, Oberflaeche& ui, const Dokumentdienste& d) {
    if (!ui.Frage(QStringLiteral("Das aktuelle Kalenderdesign wird gelöscht. Wollen Sie das Standarddesign "
                                 "wieder herstellen?"),
                  s.Programmname))
        return false;
    const QString arbeitsdatei = Kalenderdesigndatei(s);
    const QString vorlage = s.Programmpfad + QStringLiteral("daten/") + QFileInfo(arbeitsdatei).fileName();
    if (!QFileInfo::exists(vorlage)) {
        ui.Meldung(QStringLiteral("Das Standarddesign wurde nicht gefunden."), QStringLiteral("Warnung!"),
                   vorlage);
        return false;
    }
    // Copy to a side file first, so that the working design stays whole if the copy fails.
    const QString neu = arbeitsdatei + QStringLiteral(".neu");
    QFile::remove(neu);
    if (!QFile::copy(vorlage, neu) || (QFileInfo::exists(arbeitsdatei) && !QFile::remove(arbeitsdatei)) ||
        !QFile::rename(neu, arbeitsdatei)) {
        QFile::remove(neu);
        ui.Meldung(QStringLiteral("Das Standarddesign konnte nicht kopiert werden."),
                   QStringLiteral("Warnung!"), arbeitsdatei);
        return false;
    }
    s.AktuelleDatei = arbeitsdatei;
    DesignNeuLaden(s, ui, d);
    return true;
}

bool JahrZulaessig(double jahr) {
    return std::isfinite(jahr) && jahr >= 1 && jahr <= 9999 && jahr == std::floor(jahr);
}

bool JahrGewaehlt(AppState& s, Oberflaeche& ui, const Dokumentdienste& d, double jahr) {
    if (!JahrZulaessig(jahr)) {
        ui.Meldung(QStringLiteral("Bitte ein Jahr zwischen 1 und 9999 angeben."),
                   QStringLiteral("Kalenderjahr"));
        return false;
    }
    s.Kalenderjahr = jahr;
    if (s.LadeSperre == 0 &&
        ui.Frage(QStringLiteral("Sollen die Feiertage neu berechnet werden?"), s.Programmname))
        DienstAusfuehren(d.CommandBerechnen, s, ui);
    ui.PanelAktualisieren();
    ui.Neuzeichnen();
    return true;
}

void Umschalten(float& flag) {
    flag = static_cast<float>(~static_cast<int>(flag));
}

} // namespace zp
