// etikett.ini and kalender.ini: any bytes are read or refused without touching the old values.
#include "FuzzHilfe.h"
#include "core/state/AppState.h"
#include "persist/Katalogdateien.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    zp::fuzz::StarteAnwendung(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = zp::fuzz::Bytes(data, size);
    zp::AppState s;
    s.KartenformatAnzahl = 7;
    if (!zp::LeseKartenformate(s, bytes) && s.KartenformatAnzahl != 7) __builtin_trap();
    if (s.KartenformatAnzahl > zp::KartenformateMax) __builtin_trap();
    s.FarbeTermin = 12345;
    if (!zp::LeseKalenderIni(s, bytes) && s.FarbeTermin != 12345) __builtin_trap();
    if (zp::LeseKalenderIni(s, bytes)) {
        zp::AppState t;
        if (!zp::LeseKalenderIni(t, zp::SchreibeKalenderIni(s))) __builtin_trap();
    }
    return 0;
}
