// The address readers on arbitrary bytes: daten.dat, layouts, and the .txt and .eti imports.
// Each must end in a result or FormatFehler, never in a crash or an allocation out of proportion.
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Import.h"
#include "persist/Layout.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        zp::Datenbank db;
        (void)zp::LeseDatenbank(bytes, db);
    } catch (const zp::FormatFehler&) {
    }
    (void)zp::LeseTextImport(bytes);
    try {
        (void)zp::LeseEtiImport(bytes);
    } catch (const zp::FormatFehler&) {
    }
    for (const char* name : {"Layout1.lay", "Layout2.lay", "Layout4.lay", "Layout5.lay", "eigen.lay"}) {
        zp::AppState s;
        s.IstEtikett = size % 2 ? -1 : 0;
        s.IstVisitenkarte = s.IstEtikett ? 0 : -1;
        s.RahmenAnzahl = 31;
        s.AktuellesEtikett.Breite = 700;
        s.AktuellesEtikett.Höhe = 370;
        try {
            (void)zp::WendeLayoutAn(s, bytes, QString::fromLatin1(name));
        } catch (const zp::FormatFehler&) {
        }
    }
    return 0;
}
