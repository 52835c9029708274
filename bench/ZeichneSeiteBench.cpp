// Redraw of the page picture at zoom 150, as after each keystroke or drag.
#include "Musterseiten.h"

#include "compose/Seitenbild.h"
#include "compose/ZeichneSeite.h"
#include "compose/canvas/ImageCanvas.h"

#include <benchmark/benchmark.h>

namespace {

void Neuzeichnen(benchmark::State& state, void (*dokument)(zp::AppState&)) {
    zp::AppState s;
    dokument(s);
    s.Zoomfaktor = 150;
    zp::ImageCanvas seite(zp::SeitenbildGroesse(s));
    zp::Zeichenziele ziele;
    ziele.PictureSeite = &seite;
    for (auto _ : state) {
        zp::ZeichneSeite(s, ziele);
        benchmark::ClobberMemory();
    }
}

void BM_ZeichneSeite_Standarddokument(benchmark::State& state) {
    Neuzeichnen(state, zp::bench::StandarddokumentMitTexten);
}
void BM_ZeichneSeite_Effektseite(benchmark::State& state) {
    Neuzeichnen(state, zp::bench::EffektseiteMitVierzigRahmen);
}

BENCHMARK(BM_ZeichneSeite_Standarddokument)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_ZeichneSeite_Effektseite)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

} // namespace
