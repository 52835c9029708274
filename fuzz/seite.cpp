// The page composition on any design: whatever a file brings (sizes, angles, fonts, gradients,
// shadows, frame kinds, calendar types), a loaded design is drawn without fault and in bounded
// time, in every edition.
#include "FuzzHilfe.h"
#include "compose/Seitenbild.h"
#include "core/state/AppState.h"
#include "persist/Design.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    zp::fuzz::StarteAnwendung(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = zp::fuzz::Bytes(data, size);
    // The length chooses edition and page, so that the whole input is the file and the shipped
    // designs load as seeds.
    const auto wahl = static_cast<uint8_t>(size % 15);
    zp::AppState s;
    zp::Oberflaeche ui;
    zp::fuzz::WaehleAusgabe(s, wahl);
    s.Schriftenliste(1) = QStringLiteral("Arial");
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Kalenderjahr = 2027;
    if (!zp::LadeDesignAusBytes(s, ui, bytes)) return 0;
    // A small zoom keeps each run short; the drawing rules are the same at every zoom.
    s.Zoomfaktor = 20;
    s.Zeichenfaktor = 0.2;
    s.Seitennummer = 1 + (wahl / 5) % 3;
    (void)zp::ZeichneSeitenbild(s);
    return 0;
}
