// A frame dragged on the effect-rich page of 40 frames at zoom 150: the cost of one mouse move
// (the outline over the last page picture, painted where it was and where it is) and the
// composition of the page on release.
#include "Musterseiten.h"

#include "compose/Seitenmaler.h"
#include "compose/Ziehumriss.h"
#include "core/Auswahl.h"
#include "core/Mausbearbeitung.h"

#include <QPainter>
#include <benchmark/benchmark.h>

namespace {

// The page at zoom 150 with frame 10 current and a move drag started inside it.
struct Zug {
    Zug() {
        zp::bench::EffektseiteMitVierzigRahmen(s);
        s.Zoomfaktor = 150;
        s.RahmenNummer = 10;
        zp::UpdateSelection(s, ui);
        seite = maler.Zeichne(s);
        fenster = QImage(seite.size(), QImage::Format_ARGB32_Premultiplied);
        x = s.Rahmen.Left + s.Rahmen.Width / 2;
        y = s.Rahmen.Top + s.Rahmen.Height / 2;
        zp::MausGedrueckt(s, ui, zp::Maustaste::Links, x, y);
        zp::MausBewegt(s, ui, zp::Maustaste::Links, x, y);
        umriss = zp::UmrissPixel(s);
    }
    // One move of the hand by (dx, dy) twips: the outline's old and new strips are painted.
    void Bewegen(double dx, double dy) {
        x += dx;
        y += dy;
        zp::MausBewegt(s, ui, zp::Maustaste::Links, x, y);
        const QRect neu = zp::UmrissPixel(s);
        const QRegion streifen = zp::Umrissstreifen(umriss, neu);
        umriss = neu;
        QPainter p(&fenster);
        for (const QRect& r : streifen)
            zp::MaleSeiteMitUmriss(p, seite, r, umriss);
    }
    zp::AppState s;
    zp::Oberflaeche ui;
    zp::Seitenmaler maler;
    QImage seite, fenster;
    QRect umriss;
    double x = 0, y = 0;
};

void BM_Ziehen_Mausbewegung(benchmark::State& state) {
    Zug z;
    int schritt = 0;
    for (auto _ : state) {
        // To and fro, a few pixels each move, as a hand drags.
        const double d = (schritt++ / 50) % 2 ? -45 : 45;
        z.Bewegen(d, d / 3);
        benchmark::ClobberMemory();
    }
}

void BM_Ziehen_Loslassen(benchmark::State& state) {
    Zug z;
    int schritt = 0;
    for (auto _ : state) {
        z.Bewegen(schritt++ % 2 ? -150 : 150, 0);
        zp::MausLosgelassen(z.s, z.ui, zp::Maustaste::Links, z.x, z.y);
        benchmark::DoNotOptimize(z.maler.Zeichne(z.s));
        state.PauseTiming();
        zp::MausGedrueckt(z.s, z.ui, zp::Maustaste::Links, z.x, z.y);
        zp::MausBewegt(z.s, z.ui, zp::Maustaste::Links, z.x, z.y);
        state.ResumeTiming();
    }
}

BENCHMARK(BM_Ziehen_Mausbewegung)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_Ziehen_Loslassen)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

} // namespace
