// The calendar frames of one page at zoom 150 on the page picture: every text and shape frame of
// a standard design through its walk and the renderers, in stacking order, as the composition
// calls them. Page 1 of each type and variant, and week page 30.
#include "calendar/Feiertage.h"
#include "calendar/KalenderLauf.h"
#include "calendar/KalenderZeichnen.h"
#include "calendar/Standarddesign.h"
#include "compose/ImageCanvas.h"
#include "core/AppState.h"

#include <QGuiApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

using namespace zp;

// Text output needs a GUI application; the benchmark main doesn't make one.
void SorgeFuerAnwendung() {
    static std::unique_ptr<QGuiApplication> app;
    if (QGuiApplication::instance()) return;
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "zp_bench";
    static char* argv[] = {name, nullptr};
    app = std::make_unique<QGuiApplication>(argc, argv);
}

void Kalenderseite(benchmark::State& state) {
    SorgeFuerAnwendung();
    const int typ = static_cast<int>(state.range(0));
    const int variante = static_cast<int>(state.range(1));
    const int seite = static_cast<int>(state.range(2));
    AppState s;
    s.IstKalender = -1;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Kalenderjahr = 2027;
    s.Seitennummer = seite;
    s.Zoomfaktor = 150;
    s.Zeichenfaktor = 1.5;
    for (int i = 1; i <= 25; ++i)
        s.FeiertagWahl(i) = 1;
    BerechneFeiertage(s);
    s.Termine(14, 2) = QStringLiteral("Valentinstag");
    s.Panel.TextTitel = QStringLiteral("Familienkalender 2027");
    BaueStandarddesign(s, typ, variante);
    if (typ == 6) Wochenstart(2027, seite, s.WocheTag, s.WocheMonat);
    std::vector<int> folge;
    for (int n = 1; n <= static_cast<int>(s.RahmenAnzahl); ++n)
        if (s.Rahmenliste(n).Sichtbar != 0) folge.push_back(n);
    std::sort(folge.begin(), folge.end(),
              [&](int a, int b) { return s.Rahmenliste(a).z < s.Rahmenliste(b).z; });
    const double f = s.Zeichenfaktor * s.Geraetefaktor / 15;
    ImageCanvas c(QSize(static_cast<int>(2100 * f) + 1, static_cast<int>(2970 * f) + 1));
    for (auto _ : state) {
        c.Cls();
        for (int n : folge) {
            if (s.Rahmenliste(n).Objekttyp == u"Schrift") ZeichneKalenderText(s, c, n);
            if (s.Rahmenliste(n).Objekttyp == u"Linie") ZeichneKalenderRahmen(s, c, n);
        }
    }
}

void Seiten(benchmark::internal::Benchmark* b) {
    for (int typ = 1; typ <= 7; ++typ)
        for (int variante = 1; variante <= 2; ++variante)
            b->Args({typ, variante, 1});
    b->Args({6, 1, 30});
    b->Args({6, 2, 30});
    b->ArgNames({"typ", "variante", "seite"});
    b->Unit(benchmark::kMillisecond);
}

BENCHMARK(Kalenderseite)->Apply(Seiten);

} // namespace
