#pragma once
// Test doubles for the window tests: services that record what was asked of them, a user
// interface with preset answers, and a state set up like Main leaves it for an edition.

#include "common/ProtokollOberflaeche.h"
#include "core/Dokumentdienste.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"
#include "dialogs/FrmMain.h"
#include "dialogs/Hauptfenster.h"

#include <QStringList>
#include <QUrl>
#include <optional>

namespace zp::test {

// Every service call as "Name:AktuelleDatei|Datendatei|Ladevorgabe".
struct Protokoll {
    QStringList aufrufe;
    Dienst dienst(const char* name) {
        return [this, name](AppState& s, Oberflaeche&) {
            aufrufe << QString::fromLatin1(name) + ':' + s.AktuelleDatei + '|' + s.Datendatei + '|' +
                           s.Ladevorgabe;
            return true;
        };
    }
    [[nodiscard]] QStringList namen() const {
        QStringList n;
        for (const QString& a : aufrufe)
            n << a.section(':', 0, 0);
        return n;
    }
};

inline Dokumentdienste AlleDienste(Protokoll& p) {
    Dokumentdienste d;
    d.LoadDesign = p.dienst("LoadDesign");
    d.SaveDesign = p.dienst("SaveDesign");
    d.LadeDaten = p.dienst("LadeDaten");
    d.SpeichereDaten = p.dienst("SpeichereDaten");
    d.ImportKal = p.dienst("ImportKal");
    d.SaveSettings = p.dienst("SaveSettings");
    d.SaveKalenderIni = p.dienst("SaveKalenderIni");
    d.SaveKartenformate = p.dienst("SaveKartenformate");
    d.SpeichereDatensaetze = p.dienst("SpeichereDatensaetze");
    d.LadeDatensaetze = p.dienst("LadeDatensaetze");
    d.CommandBerechnen = p.dienst("CommandBerechnen");
    d.KalenderNeu = VorhandeneDienste().KalenderNeu; // asks through the user, then empties
    return d;
}

// A user who answers as told and whose messages are kept.
using Nutzer = ProtokollOberflaeche;

// The main window with the user's side replaced: no dialog ever blocks a test.
class TestFenster : public FrmMain {
public:
    using FrmMain::FrmMain;
    bool Frage(const QString& text, const QString&) override {
        fragen << text;
        return antwort;
    }
    void Meldung(const QString& text, const QString&, const QString& detail = {}) override {
        meldungen << text;
        details << detail;
    }
    bool AdresseOeffnen(const QUrl& adresse) override {
        adressen << adresse.toString();
        return oeffnenGelingt;
    }
    QString DateiWaehlen(const QString&, const QString& filter, bool) override {
        filter_ = filter;
        return datei;
    }
    QString QtDateiWaehlen(const QString&, const QString& filter) override {
        filter_ = filter;
        return datei;
    }
    std::optional<QColor> FarbeWaehlen(const QColor&) override { return farbe; }

    bool antwort = true;
    QString datei;
    QString filter_;
    std::optional<QColor> farbe;
    QStringList fragen, meldungen, details, adressen;
    bool oeffnenGelingt = true;
};

// The state as Main leaves it: the built-in document of 30 text frames and the letter body.
inline void Grundzustand(AppState& s, const QString& programmname, const QString& pfad) {
    s.Programmname = programmname;
    s.Programmpfad = pfad.endsWith('/') ? pfad : pfad + '/';
    s.RahmenAnzahl = 0;
    for (int n = 1; n <= 30; ++n) {
        ErzeugeRahmen(s, n, QStringLiteral("Schrift"), n);
        ErzeugeSchrift(s, n);
    }
    ErzeugeRahmen(s, 31, QStringLiteral("RTF"), 1);
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2980;
    s.AktuellesEtikett.Breite = 850;
    s.AktuellesEtikett.Höhe = 540;
    const QStringList monate = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                                "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    for (int m = 1; m <= 12; ++m)
        s.Monatsnamen(m) = monate[m - 1];
    s.IstKalender = programmname == QLatin1String("ZP Kalender") ? -1 : 0;
    s.IstVisitenkarte = programmname == QLatin1String("ZP Visitenkarte") ? -1 : 0;
    s.IstBriefkopf = programmname == QLatin1String("ZP Briefkopf") ? -1 : 0;
    s.IstEtikett = programmname == QLatin1String("ZP Etikett") ? -1 : 0;
    s.IstCDHuelle = programmname == QStringLiteral("ZP CD-Hülle") ? -1 : 0;
}

} // namespace zp::test
