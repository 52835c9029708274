// One keystroke in a side panel box, as the window runs it: the text goes to its object and the
// record, the frame shows or hides with it, and the page picture is composed anew at zoom 150.
#include "Musterseiten.h"

#include "compose/Seitenmaler.h"
#include "core/Datensatzbefehle.h"
#include "core/state/Textfelder.h"

#include <benchmark/benchmark.h>

namespace {

// The window's answer to a change notice: the page is composed again.
struct Seitenansicht : zp::Oberflaeche {
    explicit Seitenansicht(zp::AppState& zustand) : s(zustand) {}
    void Geaendert(unsigned was) override {
        if (was & zp::Aenderung::Seite) bild = maler.Zeichne(s);
    }
    zp::AppState& s;
    zp::Seitenmaler maler;
    QImage bild;
};

void Tastendruck(benchmark::State& state, void (*dokument)(zp::AppState&), int box) {
    zp::AppState s;
    dokument(s);
    s.SchriftNummer = box;
    s.RahmenNummer = box;
    s.LadeSperre = 0; // the first paint has ended the start-up lock
    Seitenansicht ui(s);
    const QString ohne = s.Schriftliste(box).Textstring;
    const QString mit = ohne + QStringLiteral("x");
    bool lang = false;
    for (auto _ : state) {
        // A letter typed, then taken back: the text keeps its length from one round to the next.
        lang = !lang;
        const QString& text = lang ? mit : ohne;
        s.Schriftliste(box).Textstring = text;
        zp::ApplyInlineText(s, text);
        zp::FeldboxGeaendert(s, ui, box, text);
        benchmark::DoNotOptimize(ui.bild);
    }
}

void BM_Tastendruck_Standarddokument(benchmark::State& state) {
    Tastendruck(state, zp::bench::StandarddokumentMitTexten, 3);
}
void BM_Tastendruck_Effektseite(benchmark::State& state) {
    Tastendruck(state, zp::bench::EffektseiteMitVierzigRahmen, 3);
}

BENCHMARK(BM_Tastendruck_Standarddokument)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_Tastendruck_Effektseite)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

} // namespace
