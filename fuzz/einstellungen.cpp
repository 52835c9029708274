// zp.ini: any bytes are read or refused whole; what was read is written back and read again alike.
#include "persist/Einstellungen.h"
#include "FuzzHilfe.h"
#include "core/state/AppState.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    zp::fuzz::StarteAnwendung(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    zp::AppState s;
    s.Druckername = QStringLiteral("PDF"); // no printer query per input
    const QByteArray vorher = zp::SchreibeEinstellungen(s);
    if (!zp::LeseEinstellungen(s, zp::fuzz::Bytes(data, size))) {
        if (zp::SchreibeEinstellungen(s) != vorher) __builtin_trap();
        return 0;
    }
    const QByteArray geschrieben = zp::SchreibeEinstellungen(s);
    zp::AppState t;
    t.Druckername = s.Druckername;
    if (!zp::LeseEinstellungen(t, geschrieben)) __builtin_trap(); // our own file must read back
    return 0;
}
