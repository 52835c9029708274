// Whole print runs into one PDF: the 53 pages of a Woche calendar, the 12 pages of Monat 1, and
// 240 addresses on a 3 x 8 label sheet (10 pages).
#include "app/Kommandozeile.h"
#include "core/Programmdruck.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Druckauftrag.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

// The shipped data of the build tree, beside the program `zp`.
QString Daten() {
    return QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/../app/daten")).absolutePath();
}

QTemporaryDir& Arbeitsordner() {
    static QTemporaryDir dir;
    return dir;
}

// A calendar as `zp --typ N --jahr 2027 --feiertage` leaves it: the start-up, the type, the year
// and its holidays, through the same commands as the command line.
zp::AppState Kalender(int typ, zp::BatchOberflaeche& ui) {
    const QString dir = Arbeitsordner().path();
    QString fehler;
    auto zeile = zp::LeseKommandozeile({"--programmpfad", dir + "/kalender", "--edition", "Kalender", "--typ",
                                        QString::number(typ), "--jahr", "2027", "--feiertage"},
                                       &fehler);
    zp::AppState s;
    if (!zeile) return s;
    zeile->datenquelle = Daten();
    // The exit status also counts warnings of the start-up; the calendar is set up all the same.
    (void)zp::FuehreStapellaufAus(*zeile, s, ui);
    return s;
}

// All pages of the calendar into one PDF, as `--pdf` prints them.
void Kalenderdruck(benchmark::State& state, int typ, int seiten) {
    zp::BatchOberflaeche ui;
    const zp::AppState vorlage = Kalender(typ, ui);
    if (vorlage.IstKalender == 0 || vorlage.Kalendertyp != typ) {
        state.SkipWithError("Der Kalender ist nicht eingerichtet");
        return;
    }
    zp::Druckauftrag auftrag;
    const QString pdf = Arbeitsordner().path() + QStringLiteral("/kalender%1.pdf").arg(typ);
    int gedruckt = 0;
    for (auto _ : state) {
        zp::AppState s = vorlage;
        if (zp::Drucke(s, ui, QStringLiteral("PDF-Datei"), pdf, auftrag,
                       [&](int seite, int) {
                           gedruckt = seite;
                           return true;
                       }) != zp::Druckergebnis::Gedruckt ||
            gedruckt != seiten) {
            state.SkipWithError("Der Druck ist gescheitert");
            return;
        }
    }
}

void BM_Wochenkalender53Seiten(benchmark::State& state) {
    Kalenderdruck(state, 6, 53);
}
BENCHMARK(BM_Wochenkalender53Seiten)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Iterations(1)
    ->Repetitions(5);

void BM_Monatskalender12Seiten(benchmark::State& state) {
    Kalenderdruck(state, 4, 12);
}
BENCHMARK(BM_Monatskalender12Seiten)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Iterations(1)
    ->Repetitions(5);

// 240 addresses with name, street and town on 66 x 33.8 mm labels, 3 across and 8 down; the
// label shows the record's first three fields in the panel's text frames 21 to 23.
zp::AppState Etikettenbogen(zp::Oberflaeche& ui) {
    const QString ordner = Arbeitsordner().path() + "/etikett";
    QString fehler;
    zp::RichteProgrammordnerEin(ordner, "Etikett", Daten(), &fehler);
    zp::AppState s;
    zp::Main(s, ordner, ui);
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.AktuelleSeite.Randlinks = 72;
    s.AktuelleSeite.Randoben = 130;
    zp::ClassEtikett& e = s.AktuellesEtikett;
    e.Breite = 660;
    e.Höhe = 338;
    e.Abstand_x = 25;
    e.Abstand_y = 0;
    e.Anzahl_x = 3;
    e.Anzahl_y = 8;
    e.Farbüberlauf = 0;
    for (int i = 1; i <= 3; ++i) {
        zp::ClassRahmen& r = s.Rahmenliste(20 + i);
        r.Objekttyp = QStringLiteral("Schrift");
        r.Objektnummer = 20 + i;
        r.X = 30;
        r.Y = 30 + (i - 1) * 80;
        r.Breite = 600;
        r.Höhe = 70;
        r.Sichtbar = -1;
        s.Schriftliste(20 + i).fontname = QStringLiteral("Arial");
        s.Schriftliste(20 + i).FontSize = 10;
    }
    s.Datensaetze.RedimPreserve(std::max(30, s.Datensaetze.Obergrenze1()), 240);
    for (int n = 1; n <= 240; ++n) {
        s.Datensaetze(1, n) = QStringLiteral("Name %1").arg(n);
        s.Datensaetze(2, n) = QStringLiteral("Hauptstraße %1").arg(n);
        s.Datensaetze(3, n) = QStringLiteral("%1 Musterstadt").arg(10000 + n);
    }
    s.DatensatzAnzahl = 240;
    s.DatensatzNummer = 1;
    return s;
}

void BM_Etikettenbogen240Adressen(benchmark::State& state) {
    zp::Oberflaeche ui;
    const zp::AppState vorlage = Etikettenbogen(ui);
    zp::Druckauftrag auftrag;
    auftrag.Wahl.Adressen = zp::Adresswahl::Alle;
    const QString pdf = Arbeitsordner().path() + "/etiketten.pdf";
    for (auto _ : state) {
        zp::AppState s = vorlage;
        if (zp::Drucke(s, ui, QStringLiteral("PDF-Datei"), pdf, auftrag) != zp::Druckergebnis::Gedruckt) {
            state.SkipWithError("Der Druck ist gescheitert");
            return;
        }
    }
}
BENCHMARK(BM_Etikettenbogen240Adressen)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Iterations(1)
    ->Repetitions(5);

} // namespace
