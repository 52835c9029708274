#pragma once
// Test doubles for the window tests: a user interface with preset answers, and a state set up like Main
// leaves it for an edition.

#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"
#include "dialogs/Fensterantworten.h"
#include "dialogs/FrmMain.h"
#include "dialogs/Hauptfenster.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QStringList>
#include <QUrl>
#include <optional>

namespace zp::test {

// A user who answers as told and whose messages are kept.
using Nutzer = ProtokollOberflaeche;

// The window's answers with the user's side replaced: no dialog ever blocks a test.
struct TestAntworten : Fensterantworten {
    using Fensterantworten::Fensterantworten;
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

// The main window answering through TestAntworten, whose settings and records it shows as its own.
class TestFenster : public FrmMain {
public:
    explicit TestFenster(AppState& s)
        : FrmMain(s, std::make_unique<TestAntworten>(s)), t(static_cast<TestAntworten&>(Antworten())) {}

private:
    TestAntworten& t;

public:
    bool& antwort = t.antwort;
    QString& datei = t.datei;
    QString& filter_ = t.filter_;
    std::optional<QColor>& farbe = t.farbe;
    QStringList &fragen = t.fragen, &meldungen = t.meldungen, &details = t.details, &adressen = t.adressen;
    bool& oeffnenGelingt = t.oeffnenGelingt;
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
