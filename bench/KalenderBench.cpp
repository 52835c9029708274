// A calendar page redrawn at zoom 150 as the main window redraws its page picture after an edit
// (ZeichneSeite on the kept image canvas of a Seitenmaler), with a standard design: page 1 of
// each type and variant, and week page 30.
#include "calendar/data/Feiertage.h"
#include "calendar/data/Standarddesign.h"
#include "calendar/walks/KalenderLauf.h"
#include "compose/Seitenmaler.h"
#include "core/state/AppState.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>

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

void Musterkalender(AppState& s, int typ, int variante, int seite) {
    s.IstKalender = -1;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Kalenderjahr = 2027;
    s.Seitennummer = seite;
    s.Zoomfaktor = 150;
    for (int i = 1; i <= 25; ++i)
        s.FeiertagWahl(i) = 1;
    BerechneFeiertage(s);
    s.Termine(14, 2) = QStringLiteral("Valentinstag");
    s.Panel.TextTitel = QStringLiteral("Familienkalender 2027");
    BaueStandarddesign(s, typ, variante);
}

void Kalenderseite(benchmark::State& state) {
    SorgeFuerAnwendung();
    AppState s;
    Musterkalender(s, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                   static_cast<int>(state.range(2)));
    Seitenmaler maler;
    benchmark::DoNotOptimize(maler.Zeichne(s)); // the window's first picture makes the canvas
    for (auto _ : state)
        benchmark::DoNotOptimize(maler.Zeichne(s));
}

class Zaehler final : public KalenderZeichner {
public:
    long zellen = 0;
    void Schrift(AppState& s, ClassSchrift&, ClassRahmen&) override {
        ++zellen;
        s.Farbvorgabe = -1;
        s.Winkelvorgabe = -1;
    }
    void Linie(AppState& s, ClassLinie&, ClassRahmen&) override {
        ++zellen;
        s.Farbvorgabe = -1;
    }
};

void Kalenderlauf(benchmark::State& state) {
    AppState s;
    const int seite = static_cast<int>(state.range(2));
    Musterkalender(s, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), seite);
    if (s.Kalendertyp == 6) Wochenstart(static_cast<int>(s.Kalenderjahr), seite, s.WocheTag, s.WocheMonat);
    Zaehler zaehler;
    for (auto _ : state) {
        for (int n = 1; n <= static_cast<int>(s.RahmenAnzahl); ++n) {
            if (s.Rahmenliste(n).Objekttyp == QLatin1String("Schrift"))
                KalenderTextLauf(s, zaehler, n);
            else if (s.Rahmenliste(n).Objekttyp == QLatin1String("Linie"))
                KalenderRahmenLauf(s, zaehler, n);
        }
    }
    benchmark::DoNotOptimize(zaehler.zellen);
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
BENCHMARK(Kalenderlauf)->Apply(Seiten)->Unit(benchmark::kMicrosecond);

} // namespace
