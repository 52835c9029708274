// The calendar's day data (.zpd) and the appointments of the older calendar files (.kal): any
// bytes end in new tables or FormatFehler; what was read writes back and reads again the same.
#include "persist/Kalenderdaten.h"
#include "core/runtime/TextDatei.h"
#include "persist/KalImport.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        const zp::Kalenderdaten daten = zp::ZpdLesen(bytes);
        const QByteArray geschrieben = zp::ZpdBytes(daten);
        if (zp::ZpdBytes(zp::ZpdLesen(geschrieben)) != geschrieben) __builtin_trap();
    } catch (const zp::FormatFehler&) {
    }
    try {
        for (const zp::KalEintrag& e : zp::KalLesen(bytes))
            if (e.tag < 1 || e.tag > 31 || e.monat < 1 || e.monat > 12) __builtin_trap();
    } catch (const zp::FormatFehler&) {
    }
    return 0;
}
